// Names that try to break out of their place in a text or a page.
#pragma once

#include <string>
#include <vector>

namespace mortane::test {

inline std::vector<std::string> HostileNames() {
  return {"<script>alert('x')</script>",
          "</td></tr></table><h1>x",
          "\"'&<>",
          "&amp;&#60;&lt;",
          "--><!-- ]]> <![CDATA[ <?php",
          std::string("a\0b\x01\x02\x1B[31m\x7F", 10),
          "line\r\nbreak\ttab",
          std::string("\xE2\x80\xAE") + "desrever\xE2\x80\xAC\xE2\x81\xA7",
          "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D 20x",
          "\xFF\xFE\x80\xC3(\xE2\x82",
          "\xED\xA0\x80\xF4\x90\x80\x80\xC0\xAF",
          "\xEF\xBF\xBE\xEF\xB7\x90",
          std::string(10000, 'x'),
          std::string(5000, '<') + std::string(5000, '&')};
}

}  // namespace mortane::test

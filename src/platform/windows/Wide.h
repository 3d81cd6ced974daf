// UTF-8 to and from the UTF-16 of Windows' calls.
#pragma once

#include <string>
#include <string_view>

namespace mortane {

// What is no valid text in either form becomes the replacement character.
std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view wide);

// Windows' text for an error number, without its line end.
std::string SystemMessage(unsigned long error);

}  // namespace mortane

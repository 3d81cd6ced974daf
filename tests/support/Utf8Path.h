// Paths as texts in UTF-8, on every system.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace mortane::test {

inline std::filesystem::path PathOf(std::string_view utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

inline std::string Utf8Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace mortane::test

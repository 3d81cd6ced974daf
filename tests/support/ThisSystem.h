// On which system the tests run.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace mortane::test {

inline constexpr bool kOnWindows = std::filesystem::path::preferred_separator == '\\';

// Windows' programs on another system; a few of its calls differ there from Windows' own.
bool IsUnderWine();

// The text with the line ends of this system's files, for lines that end with "\n".
std::string NativeLines(std::string_view text);

// A text's bytes in a file of this system that can hold any letter.
std::string NativeBytes(const std::string& utf8);

}  // namespace mortane::test

// UTF-8 text as the whole core holds it: lengths and cuts count characters, never bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace mortane {

// The line break of reports and boxes on every platform; widgets convert it for display.
inline constexpr std::string_view kLineBreak = "\r\n";

// Number of characters. A byte that is no valid UTF-8 counts as one character.
std::size_t CharacterCount(std::string_view text);

// The first (last) `count` characters, or all of a shorter text. Never splits a character.
std::string FirstCharacters(std::string_view text, std::size_t count);
std::string LastCharacters(std::string_view text, std::size_t count);

// These remove blanks (character 32) only: tabs and line ends can be part of a name.
std::string Trim(std::string_view text);
std::string RightTrim(std::string_view text);

// Folds ASCII letters only, so that the meaning of a file does not depend on the locale.
bool EqualsIgnoringCase(std::string_view left, std::string_view right);

// The text up to its first NUL character; the whole text when it has none.
std::string TruncateAtNul(std::string_view text);

// Joins the lines of a report: an empty side gives the other, two texts get one line break. A list
// that is moved in grows where it stands, so a long report does not cost a copy for each line.
std::string AppendLine(std::string list, std::string_view line);

}  // namespace mortane

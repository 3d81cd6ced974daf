#include "common/Text.h"

#include <algorithm>

namespace mortane {
namespace {

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// Length in bytes of the UTF-8 sequence that `lead` begins; 1 for a byte that begins none.
std::size_t SequenceLength(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  if (byte >= 0xC2U && byte < 0xE0U) return 2;
  if (byte >= 0xE0U && byte < 0xF0U) return 3;
  if (byte >= 0xF0U && byte < 0xF5U) return 4;
  return 1;
}

// Offset of the character after the one at `offset`.
std::size_t NextCharacter(std::string_view text, std::size_t offset) {
  const std::size_t length = SequenceLength(text[offset]);
  if (offset + length > text.size()) return offset + 1;
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(text[offset + i])) return offset + 1;
  }
  return offset + length;
}

std::size_t OffsetOfCharacter(std::string_view text, std::size_t character) {
  std::size_t offset = 0;
  while (character > 0 && offset < text.size()) {
    offset = NextCharacter(text, offset);
    --character;
  }
  return offset;
}

char ToLowerAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t offset = 0; offset < text.size(); offset = NextCharacter(text, offset)) ++count;
  return count;
}

std::string FirstCharacters(std::string_view text, std::size_t count) {
  return std::string(text.substr(0, OffsetOfCharacter(text, count)));
}

std::string LastCharacters(std::string_view text, std::size_t count) {
  const std::size_t all = CharacterCount(text);
  return std::string(text.substr(OffsetOfCharacter(text, all > count ? all - count : 0)));
}

std::string RightTrim(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string() : std::string(text.substr(0, last + 1));
}

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string() : RightTrim(text.substr(first));
}

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return ToLowerAscii(a) == ToLowerAscii(b); });
}

std::string TruncateAtNul(std::string_view text) {
  return std::string(text.substr(0, text.find('\0')));
}

std::string AppendLine(std::string list, std::string_view line) {
  if (!list.empty() && !line.empty()) list.append(kLineBreak);
  list.append(line);
  return list;
}

}  // namespace mortane

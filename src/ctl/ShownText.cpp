#include "ctl/ShownText.h"

#include "common/Numbers.h"

namespace mortane::ctl {
namespace {

// The bytes of the UTF-8 character that begins the text; 0 when none does. Overlong forms,
// surrogates and numbers past the last character are none.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  const unsigned char second = byte(1);
  const bool bad = (first == 0xE0 && second < 0xA0) || (first == 0xED && second >= 0xA0) ||
                   (first == 0xF0 && second < 0x90) || (first == 0xF4 && second >= 0x90);
  return bad ? 0 : length;
}

std::string Escaped(unsigned char byte) {
  switch (byte) {
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      return "\\x" + HexPadded(byte, 2);
  }
}

// The second half of the Latin-1 page has control characters too, from U+0080 to U+009F.
bool IsControl(std::string_view character) {
  const auto first = static_cast<unsigned char>(character[0]);
  if (character.size() == 1) return first < 0x20 || first == 0x7F;
  return first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
}

}  // namespace

std::string Shown(std::string_view text) {
  std::string shown;
  shown.reserve(text.size());
  while (!text.empty()) {
    const std::size_t valid = CharacterLength(text);
    const std::string_view character = text.substr(0, valid == 0 ? 1 : valid);
    if (valid == 0 || IsControl(character)) {
      for (const char byte : character) shown += Escaped(static_cast<unsigned char>(byte));
    } else {
      shown += character;
    }
    text.remove_prefix(character.size());
  }
  return shown;
}

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    const std::string_view line = text.substr(0, end);
    if (!line.empty()) lines.emplace_back(line);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

std::string Counted(std::size_t count, std::string_view one, std::string_view many) {
  return std::to_string(count) + " " + std::string(count == 1 ? one : many);
}

}  // namespace mortane::ctl

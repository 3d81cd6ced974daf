#include "controller/replay/SessionValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace mortane::controller {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr std::string_view kSmallOpening = "int16(";

struct Escape {
  char character;
  char letter;
};
constexpr std::array<Escape, 5> kEscapes{
    {{'"', '"'}, {'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}}};

bool IsControl(char character) {
  const auto code = static_cast<unsigned char>(character);
  return code < 0x20 || code == 0x7F;
}

// With a point or an exponent, by which it is told from a whole number.
void AppendReal(std::string& text, double number) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  const std::string_view shortest(digits.data(), static_cast<std::size_t>(end - digits.data()));
  text += shortest;
  if (shortest.find_first_of(".en") == std::string_view::npos) text += ".0";
}

struct Appender {
  std::string& text;

  void operator()(std::monostate) const { text += "nothing"; }
  void operator()(bool flag) const { text += flag ? "true" : "false"; }
  void operator()(std::int16_t number) const {
    text.append(kSmallOpening).append(std::to_string(number)) += ')';
  }
  void operator()(std::int32_t number) const { text += std::to_string(number); }
  void operator()(double number) const { AppendReal(text, number); }
  void operator()(const std::string& value) const { AppendQuoted(text, value); }
  void operator()(ObjectNumber object) const { (text += '#') += std::to_string(object.number); }
};

template <typename Number>
std::optional<Number> WholeText(std::string_view text) {
  Number number{};
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  if (parsed.ec != std::errc() || parsed.ptr != text.data() + text.size()) return std::nullopt;
  return number;
}

// The part of the text that a number can consist of.
std::string_view TakeNumberText(std::string_view& text) {
  constexpr std::string_view kCharacters = "+-.0123456789aefin";
  const std::size_t length = std::min(text.find_first_not_of(kCharacters), text.size());
  const std::string_view taken = text.substr(0, length);
  text.remove_prefix(length);
  return taken;
}

std::optional<SessionValue> TakeNumber(std::string_view& text) {
  const std::string_view digits = TakeNumberText(text);
  if (digits.find_first_of(".en") == std::string_view::npos) {
    if (const auto whole = WholeText<std::int32_t>(digits)) return *whole;
    return std::nullopt;
  }
  if (const auto real = WholeText<double>(digits)) return *real;
  return std::nullopt;
}

std::optional<SessionValue> TakeSmall(std::string_view& text) {
  const auto number = WholeText<std::int16_t>(TakeNumberText(text));
  if (!number || !TakePrefix(text, ")")) return std::nullopt;
  return *number;
}

std::optional<SessionValue> TakeObject(std::string_view& text) {
  const auto number = WholeText<std::uint64_t>(TakeNumberText(text));
  if (!number) return std::nullopt;
  return ObjectNumber{*number};
}

std::optional<char> TakeEscaped(std::string_view& text) {
  if (text.empty()) return std::nullopt;
  const char letter = text.front();
  text.remove_prefix(1);
  for (const Escape& escape : kEscapes) {
    if (escape.letter == letter) return escape.character;
  }
  if (letter != 'x' || text.size() < 2) return std::nullopt;
  const std::size_t high = kHexDigits.find(text[0]);
  const std::size_t low = kHexDigits.find(text[1]);
  if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
  text.remove_prefix(2);
  return static_cast<char>(high * 16 + low);
}

}  // namespace

bool TakePrefix(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

void AppendQuoted(std::string& text, std::string_view value) {
  text += '"';
  for (const char character : value) {
    const auto escape = std::find_if(kEscapes.begin(), kEscapes.end(), [&](const Escape& each) {
      return each.character == character;
    });
    if (escape != kEscapes.end()) {
      (text += '\\') += escape->letter;
    } else if (IsControl(character)) {
      const auto code = static_cast<unsigned char>(character);
      ((text += "\\x") += kHexDigits[code / 16U]) += kHexDigits[code % 16U];
    } else {
      text += character;
    }
  }
  text += '"';
}

void AppendValue(std::string& text, const SessionValue& value) {
  std::visit(Appender{text}, value);
}

std::optional<std::string> TakeQuoted(std::string_view& text) {
  if (!TakePrefix(text, "\"")) return std::nullopt;
  std::string value;
  while (!text.empty()) {
    const char character = text.front();
    text.remove_prefix(1);
    if (character == '"') return value;
    if (character != '\\') {
      value += character;
      continue;
    }
    const auto escaped = TakeEscaped(text);
    if (!escaped) return std::nullopt;
    value += *escaped;
  }
  return std::nullopt;
}

std::optional<SessionValue> TakeValue(std::string_view& text) {
  if (text.starts_with('"')) {
    std::optional<SessionValue> value;
    if (auto quoted = TakeQuoted(text)) value.emplace(std::move(*quoted));
    return value;
  }
  if (TakePrefix(text, "nothing")) return std::monostate();
  if (TakePrefix(text, "true")) return true;
  if (TakePrefix(text, "false")) return false;
  if (TakePrefix(text, kSmallOpening)) return TakeSmall(text);
  if (TakePrefix(text, "#")) return TakeObject(text);
  return TakeNumber(text);
}

}  // namespace mortane::controller

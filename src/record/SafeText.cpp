#include "record/SafeText.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "common/Numbers.h"
#include "common/Text.h"

namespace mortane {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;
constexpr std::uint32_t kControlPictures = 0x2400;
constexpr std::uint32_t kDeletePicture = 0x2421;
constexpr std::uint32_t kDelete = 0x7F;

void AppendUtf8(std::string& text, std::uint32_t code) {
  const auto byte = [&](std::uint32_t value) { text += static_cast<char>(value); };
  if (code < 0x80) {
    byte(code);
  } else if (code < 0x800) {
    byte(0xC0U | code >> 6U);
    byte(0x80U | (code & 0x3FU));
  } else if (code < 0x10000) {
    byte(0xE0U | code >> 12U);
    byte(0x80U | (code >> 6U & 0x3FU));
    byte(0x80U | (code & 0x3FU));
  } else {
    byte(0xF0U | code >> 18U);
    byte(0x80U | (code >> 12U & 0x3FU));
    byte(0x80U | (code >> 6U & 0x3FU));
    byte(0x80U | (code & 0x3FU));
  }
}

struct Form {
  std::size_t bytes;
  std::uint32_t least;  // a lower code in this form is none
  std::uint32_t mask;
};

Form FormOf(unsigned char lead) {
  if (lead < 0x80) return {1, 0, 0x7F};
  if (lead >= 0xC2 && lead < 0xE0) return {2, 0x80, 0x1F};
  if (lead >= 0xE0 && lead < 0xF0) return {3, 0x800, 0x0F};
  if (lead >= 0xF0 && lead < 0xF5) return {4, 0x10000, 0x07};
  return {0, 0, 0};
}

// Takes one character from the front.
std::uint32_t TakeCode(std::string_view& text) {
  const Form form = FormOf(static_cast<unsigned char>(text.front()));
  std::uint32_t code = static_cast<unsigned char>(text.front()) & form.mask;
  for (std::size_t i = 1; i < form.bytes; ++i) {
    const unsigned byte = i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    if ((byte & 0xC0U) != 0x80U) {
      text.remove_prefix(1);
      return kReplacement;
    }
    code = code << 6U | (byte & 0x3FU);
  }
  const bool valid =
      form.bytes > 0 && code >= form.least && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  text.remove_prefix(valid ? form.bytes : 1);
  return valid ? code : kReplacement;
}

// Control characters and what is no character for an exchange of texts.
std::uint32_t Visible(std::uint32_t code) {
  if (code < 0x20) return kControlPictures + code;
  if (code == kDelete) return kDeletePicture;
  const bool isNone = (code >= 0x80 && code < 0xA0) || (code & 0xFFFEU) == 0xFFFEU ||
                      (code >= 0xFDD0 && code <= 0xFDEF);
  return isNone ? kReplacement : code;
}

bool IsDirection(std::uint32_t code) {
  return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E) ||
         (code >= 0x2066 && code <= 0x2069);
}

bool IsLineBreak(std::uint32_t code) {
  return code == 0x2028 || code == 0x2029;
}

}  // namespace

std::string Readable(std::string_view text) {
  std::string readable;
  while (!text.empty()) AppendUtf8(readable, Visible(TakeCode(text)));
  return readable;
}

std::string Escaped(std::string_view text) {
  std::string escaped;
  while (!text.empty()) {
    const std::uint32_t code = Visible(TakeCode(text));
    switch (code) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&#39;";
        break;
      default:
        AppendUtf8(escaped, code);
    }
  }
  return escaped;
}

std::string Plain(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const std::uint32_t code = Visible(TakeCode(text));
    if (IsDirection(code) || IsLineBreak(code)) {
      plain += "<U+" + HexPadded(static_cast<std::int32_t>(code), 4) + ">";
    } else {
      AppendUtf8(plain, code);
    }
  }
  return plain;
}

std::vector<std::string> Wrapped(std::string_view text, std::size_t width) {
  std::vector<std::string> lines;
  std::string rest(text);
  std::string_view left = rest;
  for (;;) {
    std::string line = FirstCharacters(left, width);
    if (line.size() == left.size()) break;
    const std::size_t blank = left[line.size()] == ' ' ? line.size() : line.rfind(' ');
    if (blank != std::string::npos && blank > 0) line.resize(std::min(blank, line.size()));
    left.remove_prefix(line.size());
    if (left.starts_with(' ')) left.remove_prefix(1);
    lines.push_back(std::move(line));
  }
  lines.emplace_back(left);
  return lines;
}

}  // namespace mortane

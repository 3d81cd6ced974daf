#include "common/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include "common/Text.h"

namespace mortane {
namespace {

NumberFormat& MutableSystemFormat() {
  static NumberFormat format;
  return format;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// A zero with a sign equals zero but would be shown and stored as "-0".
double WithoutSignOfZero(double value) {
  return value == 0 ? 0 : value;
}

// Removes `prefix` from the front of `text`; false when it is not there.
bool Take(std::string_view& text, std::string_view prefix) {
  if (prefix.empty() || !text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

std::size_t TakeDigits(std::string_view& text, std::string& plain) {
  std::size_t count = 0;
  while (count < text.size() && IsDigit(text[count])) ++count;
  plain.append(text.substr(0, count));
  text.remove_prefix(count);
  return count;
}

// The digits before the decimal point. A group separator needs one to three digits before the
// first one and exactly three after each.
bool TakeWholePart(std::string_view& text, const NumberFormat& format, std::string& plain,
                   std::size_t& digits) {
  digits = TakeDigits(text, plain);
  if (digits == 0 || digits > 3) return true;
  while (Take(text, format.groupSeparator)) {
    const std::size_t group = TakeDigits(text, plain);
    if (group != 3) return false;
    digits += group;
  }
  return true;
}

// An exponent without digits makes the conversion of `plain` fail.
void TakeExponent(std::string_view& text, std::string& plain) {
  if (text.empty() || (text.front() != 'e' && text.front() != 'E')) return;
  text.remove_prefix(1);
  plain += 'e';
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
    plain += text.front();
    text.remove_prefix(1);
  }
  TakeDigits(text, plain);
}

}  // namespace

const NumberFormat& PointFormat() {
  static const NumberFormat format;
  return format;
}

const NumberFormat& SystemNumberFormat() {
  return MutableSystemFormat();
}

void SetSystemNumberFormat(NumberFormat format) {
  MutableSystemFormat() = std::move(format);
}

std::optional<double> ParseNumber(std::string_view text, const NumberFormat& format) {
  const std::string trimmed = Trim(text);
  std::string_view rest = trimmed;
  std::string plain;
  if (!rest.empty() && (rest.front() == '+' || rest.front() == '-')) {
    if (rest.front() == '-') plain += '-';
    rest.remove_prefix(1);
  }
  std::size_t wholeDigits = 0;
  if (!TakeWholePart(rest, format, plain, wholeDigits)) return std::nullopt;
  std::size_t fractionDigits = 0;
  if (Take(rest, format.decimalPoint)) {
    plain += '.';
    fractionDigits = TakeDigits(rest, plain);
  }
  if (wholeDigits + fractionDigits == 0) return std::nullopt;
  TakeExponent(rest, plain);
  if (!rest.empty()) return std::nullopt;

  double value = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (error != std::errc() || end != plain.data() + plain.size()) return std::nullopt;
  return WithoutSignOfZero(value);
}

bool IsNumeric(std::string_view text, const NumberFormat& format) {
  return ParseNumber(text, format).has_value();
}

double ToDouble(std::string_view text, const NumberFormat& format) {
  return ParseNumber(text, format).value_or(0);
}

std::int32_t ToLong(std::string_view text, const NumberFormat& format) {
  const std::optional<double> value = ParseNumber(text, format);
  return value ? RoundToLong(*value).value_or(0) : 0;
}

std::optional<std::int32_t> RoundToLong(double value) {
  // The default rounding mode of the platform is to nearest, ties to even; nothing changes it.
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
        rounded <= std::numeric_limits<std::int32_t>::max())) {
    return std::nullopt;
  }
  return static_cast<std::int32_t>(rounded);
}

double LeadingNumber(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return 0;
  text.remove_prefix(first);
  if (text.starts_with('+')) text.remove_prefix(1);
  // from_chars would also take "inf" and "nan".
  const std::size_t start = text.starts_with('-') ? 1 : 0;
  if (start >= text.size() || !(IsDigit(text[start]) || text[start] == '.')) return 0;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() ? WithoutSignOfZero(value) : 0;
}

std::string ShortestGeneral(double value, const NumberFormat& format) {
  std::array<char, 40> buffer{};
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                          WithoutSignOfZero(value), std::chars_format::general, 15);
  std::string text(buffer.data(), end);
  const std::size_t point = text.find('.');
  if (point != std::string::npos) text.replace(point, 1, format.decimalPoint);
  return text;
}

std::string Hex(std::int32_t value) {
  return HexPadded(value, 0);
}

std::string HexPadded(std::int32_t value, int width) {
  std::array<char, 16> buffer{};
  const int digits =
      std::snprintf(buffer.data(), buffer.size(), "%X", static_cast<unsigned>(value));
  std::string text(static_cast<std::size_t>(std::max(width - digits, 0)), '0');
  return text.append(buffer.data());
}

}  // namespace mortane

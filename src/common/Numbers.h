// Numbers as text: what a person types and reads, what files and devices hold, hexadecimal.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mortane {

// How a number is written. Separators are UTF-8 texts; an empty group separator means that
// groups are refused.
struct NumberFormat {
  std::string decimalPoint = ".";
  std::string groupSeparator;
};

// The format of files, devices and versions: a decimal point and no groups, on every system.
const NumberFormat& PointFormat();

// The format in which the user types and reads. It starts as PointFormat; the program sets it once
// from the operating system.
const NumberFormat& SystemNumberFormat();
void SetSystemNumberFormat(NumberFormat format);

// No number is ever -0: it is read and shown as 0.

// The value of the whole text, blanks around it allowed; nothing when it is no number.
// Exponents are numbers; hexadecimal, "nan" and "inf" are not; groups only every three digits.
std::optional<double> ParseNumber(std::string_view text,
                                  const NumberFormat& format = SystemNumberFormat());
bool IsNumeric(std::string_view text, const NumberFormat& format = SystemNumberFormat());

// The value of the text; 0 when it cannot be converted.
double ToDouble(std::string_view text, const NumberFormat& format = SystemNumberFormat());

// The value rounded to the nearest whole number, ties to the even one; 0 when the text is no
// number or lies outside 32 bits.
std::int32_t ToLong(std::string_view text, const NumberFormat& format = SystemNumberFormat());

// Nearest whole number, ties to the even one; nothing outside 32 bits.
std::optional<std::int32_t> RoundToLong(double value);

// The number that a text begins with, in PointFormat; 0 when it begins with none.
double LeadingNumber(std::string_view text);

// Up to 15 significant digits, no trailing zeros.
std::string ShortestGeneral(double value, const NumberFormat& format = SystemNumberFormat());

// Upper-case hexadecimal of the 32-bit two's complement, without a prefix.
std::string Hex(std::int32_t value);

// The same, filled with zeros on the left up to `width`; longer values are not cut.
std::string HexPadded(std::int32_t value, int width);

}  // namespace mortane

#include "common/DigitCode.h"

namespace mortane {

std::string DigitToChar(std::int32_t n) {
  if (n < 0) return " ";
  if (n <= 9) return std::string(1, static_cast<char>('0' + n));
  if (n <= 35) return std::string(1, static_cast<char>('A' + n - 10));
  if (n <= 61) return std::string(1, static_cast<char>('a' + n - 36));
  return {};
}

std::int32_t CharToDigit(std::string_view text) {
  if (text.empty()) return 0;
  const int code = static_cast<unsigned char>(text.front());
  if (code < 48) return -1;
  if (code <= 57) return code - 48;
  if (code <= 64) return -2;
  if (code <= 90) return code - 55;
  if (code <= 122) return code - 61;
  return -3;
}

}  // namespace mortane

#include "common/DigitCode.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace mortane {
namespace {

TEST(DigitToChar, CodesEveryNumberThatHasACharacter) {
  const std::string characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  for (std::int32_t n = 0; n < 62; ++n)
    EXPECT_EQ(DigitToChar(n), std::string(1, characters[static_cast<std::size_t>(n)])) << n;
}

TEST(DigitToChar, OfSixtyTwoAndAboveIsEmpty) {
  EXPECT_EQ(DigitToChar(62), "");
  EXPECT_EQ(DigitToChar(std::numeric_limits<std::int32_t>::max()), "");
}

TEST(DigitToChar, BelowZeroIsASingleBlank) {
  EXPECT_EQ(DigitToChar(-1), " ");
  EXPECT_EQ(DigitToChar(std::numeric_limits<std::int32_t>::min()), " ");
}

TEST(CharToDigit, TurnsEveryCodeBack) {
  for (std::int32_t n = 0; n < 62; ++n) EXPECT_EQ(CharToDigit(DigitToChar(n)), n);
}

TEST(CharToDigit, OfAnEmptyTextIsZero) {
  EXPECT_EQ(CharToDigit(""), 0);
}

TEST(CharToDigit, LooksAtTheFirstCharacterOnly) {
  EXPECT_EQ(CharToDigit("7z"), 7);
}

TEST(CharToDigit, OfAnUnderscoreIsThirtyFour) {
  EXPECT_EQ(CharToDigit("_"), 34);
}

struct CodeRow {
  const char* text;
  std::int32_t digit;
};

TEST(CharToDigit, DividesTheCharactersAtTheseBounds) {
  const CodeRow rows[] = {{" ", -1}, {"/", -1},  {"0", 0},   {"9", 9},    {":", -2}, {"@", -2},
                          {"A", 10}, {"Z", 35},  {"[", 30},  {"\\", 31},  {"]", 32}, {"^", 33},
                          {"`", 35}, {"a", 36},  {"z", 61},  {"{", -3},   {"~", -3}, {"\x7F", -3},
                          {"µ", -3}, {"顕", -3}, {"\n", -1}, {"\xFF", -3}};
  for (const CodeRow& row : rows) EXPECT_EQ(CharToDigit(row.text), row.digit) << row.text;
}

}  // namespace
}  // namespace mortane

#include "common/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace mortane {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

const NumberFormat kComma{",", "."};
const NumberFormat kGrouped{".", ","};

TEST(ToDouble, OfLettersIsZero) {
  EXPECT_EQ(ToDouble("abc"), 0);
}

TEST(ToLong, OfAnEmptyTextIsZero) {
  EXPECT_EQ(ToLong(""), 0);
}

struct NumberRow {
  const char* text;
  double value;
};

TEST(ParseNumber, TakesTheWholeText) {
  const NumberRow rows[] = {{"0", 0},          {"12", 12},  {"-3.5", -3.5}, {"+7", 7},
                            {" 4 ", 4},        {".5", 0.5}, {"5.", 5},      {"1e3", 1000},
                            {"1.5E-2", 0.015}, {"007", 7},  {"1e+2", 100}};
  for (const NumberRow& row : rows) {
    ASSERT_TRUE(ParseNumber(row.text)) << row.text;
    EXPECT_DOUBLE_EQ(*ParseNumber(row.text), row.value) << row.text;
    EXPECT_TRUE(IsNumeric(row.text)) << row.text;
  }
}

TEST(ParseNumber, RefusesWhatIsNoNumberFromEndToEnd) {
  for (const char* text : {"",     " ",     "abc", "1a",  "a1",  "1 2",   "--1", "+-1", "- 1",
                           ".",    "-",     "e5",  "1e",  "1e+", "0x10",  "nan", "inf", "infinity",
                           "1..2", "1.2.3", "1,5", "\t1", "1\n", "1e999", "µ"}) {
    EXPECT_FALSE(ParseNumber(text)) << text;
    EXPECT_FALSE(IsNumeric(text)) << text;
    EXPECT_EQ(ToDouble(text), 0) << text;
    EXPECT_EQ(ToLong(text), 0) << text;
  }
}

TEST(ParseNumber, FollowsTheFormatThatItIsGiven) {
  EXPECT_EQ(ToDouble("1,5", kComma), 1.5);
  EXPECT_EQ(ToDouble("1.234,5", kComma), 1234.5);
  EXPECT_EQ(ToDouble("1,234,567.5", kGrouped), 1234567.5);
  EXPECT_EQ(ToDouble("12,345", kGrouped), 12345);
  EXPECT_EQ(ToDouble("123,456", kGrouped), 123456);
  EXPECT_EQ(ToDouble("1.5", kComma), 0) << "a group has three digits";
  EXPECT_EQ(ToDouble("1234.567", kComma), 0) << "no group after four digits";
  EXPECT_EQ(ToDouble("1,23,456", kGrouped), 0);
  EXPECT_EQ(ToDouble(",123", kGrouped), 0);
}

class SystemFormat : public ::testing::Test {
 protected:
  ~SystemFormat() override { SetSystemNumberFormat(PointFormat()); }
};

TEST_F(SystemFormat, HoldsForWhatAPersonTypesAndReads) {
  SetSystemNumberFormat(kComma);
  EXPECT_EQ(ToDouble("2,5"), 2.5);
  EXPECT_EQ(ShortestGeneral(2.5), "2,5");
}

TEST_F(SystemFormat, NeverReachesFilesAndDevices) {
  SetSystemNumberFormat(kComma);
  EXPECT_EQ(ToDouble("2.5", PointFormat()), 2.5);
  EXPECT_EQ(LeadingNumber("1.30b"), 1.3);
  EXPECT_EQ(PointFormat().decimalPoint, ".");
}

struct LongRow {
  const char* text;
  std::int32_t value;
};

TEST(ToLong, RoundsHalvesToTheEvenNeighbour) {
  const LongRow rows[] = {{"0.5", 0},   {"1.5", 2},   {"2.5", 2},   {"3.5", 4},  {"-0.5", 0},
                          {"-1.5", -2}, {"-2.5", -2}, {"2.4", 2},   {"2.6", 3},  {"0.49", 0},
                          {"1e2", 100}, {"2.51", 3},  {"-2.6", -3}, {" 12 ", 12}};
  for (const LongRow& row : rows) EXPECT_EQ(ToLong(row.text), row.value) << row.text;
}

TEST(ToLong, OfANumberBeyondThirtyTwoBitsIsZero) {
  EXPECT_EQ(ToLong("2147483647"), kLargest);
  EXPECT_EQ(ToLong("-2147483648"), kSmallest);
  EXPECT_EQ(ToLong("2147483647.4"), kLargest);
  EXPECT_EQ(ToLong("2147483647.5"), 0);
  EXPECT_EQ(ToLong("2147483648"), 0);
  EXPECT_EQ(ToLong("-2147483649"), 0);
  EXPECT_EQ(ToLong("1e300"), 0);
}

TEST(RoundToLong, GivesNothingOutsideThirtyTwoBits) {
  EXPECT_EQ(RoundToLong(-2147483648.5), kSmallest) << "ties go to the even neighbour";
  EXPECT_FALSE(RoundToLong(2147483648.0));
  EXPECT_FALSE(RoundToLong(std::nan("")));
  EXPECT_FALSE(RoundToLong(std::numeric_limits<double>::infinity()));
}

TEST(LeadingNumber, ReadsWhatATextBeginsWith) {
  const NumberRow rows[] = {{"1.30", 1.3}, {"1.30b", 1.3}, {"  2.5 x", 2.5}, {"-4a", -4},
                            {"+3", 3},     {".5", 0.5},    {"1.2.3", 1.2},   {"DEMO", 0},
                            {"", 0},       {"inf", 0},     {"nan", 0},       {"-inf", 0},
                            {"-", 0},      {"+", 0},       {"1e2x", 100},    {"V1", 0}};
  for (const NumberRow& row : rows)
    EXPECT_DOUBLE_EQ(LeadingNumber(row.text), row.value) << row.text;
}

struct GeneralRow {
  double value;
  const char* text;
};

TEST(ShortestGeneral, WritesNoZerosThatSayNothing) {
  const GeneralRow rows[] = {{0, "0"},
                             {1, "1"},
                             {-2.5, "-2.5"},
                             {0.05, "0.05"},
                             {100, "100"},
                             {0.1 + 0.2, "0.3"},
                             {1234567, "1234567"},
                             {0.123456789012345, "0.123456789012345"},
                             {1.2345678901234567, "1.23456789012346"}};
  for (const GeneralRow& row : rows) EXPECT_EQ(ShortestGeneral(row.value), row.text);
}

TEST(NegativeZero, IsZeroWhereverANumberIsReadOrShown) {
  EXPECT_EQ(ShortestGeneral(-0.0), "0");
  for (const char* text : {"-0", "-0.0", "-0e5", " -0 ", "-.0"}) {
    EXPECT_FALSE(std::signbit(ToDouble(text))) << text;
    EXPECT_FALSE(std::signbit(ParseNumber(text).value_or(-1))) << text;
    EXPECT_FALSE(std::signbit(LeadingNumber(text))) << text;
  }
  EXPECT_TRUE(std::signbit(ToDouble("-0.1"))) << "other numbers keep their sign";
}

TEST(HexPadded, FillsWithZerosAndNeverCuts) {
  EXPECT_EQ(HexPadded(255, 4), "00FF");
  EXPECT_EQ(HexPadded(4096, 2), "1000");
  EXPECT_EQ(HexPadded(0, 0), "0");
  EXPECT_EQ(HexPadded(0, 2), "00");
  EXPECT_EQ(HexPadded(-1, 2), "FFFFFFFF");
  EXPECT_EQ(HexPadded(10, -1), "A");
  EXPECT_EQ(HexPadded(-1, 8), "FFFFFFFF");
  EXPECT_EQ(HexPadded(-1, 9), "0FFFFFFFF");
  EXPECT_EQ(HexPadded(10, 33), std::string(32, '0') + "A");
  EXPECT_EQ(HexPadded(10, 32767).size(), 32767U);
}

TEST(Hex, IsUpperCaseTwosComplementWithoutPrefix) {
  EXPECT_EQ(Hex(0), "0");
  EXPECT_EQ(Hex(37), "25");
  EXPECT_EQ(Hex(kSmallest + 0x4005), "80004005");
  EXPECT_EQ(Hex(-2147467259), "80004005");
}

TEST(Numbers, HoldEachOfTheTenDigits) {
  for (int digit = 0; digit <= 9; ++digit) {
    const std::string text = std::to_string(digit);
    EXPECT_EQ(ToLong(text, PointFormat()), digit);
    EXPECT_DOUBLE_EQ(ToDouble("1." + text, PointFormat()), 1 + digit / 10.0);
    EXPECT_TRUE(IsNumeric(text, PointFormat())) << digit;
  }
}

}  // namespace
}  // namespace mortane

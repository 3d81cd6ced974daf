// The twelve characters of an optional objective.
#include "objectives/ObjectiveCode.h"

#include <gtest/gtest.h>

#include "common/DigitCode.h"
#include "common/Failure.h"

namespace mortane {
namespace {

struct Coded {
  ObjectiveValues values;
  std::int32_t condenser;
  const char* code;
};

TEST(ObjectiveCode, PutsEachValueInItsPlace) {
  for (const Coded& row : {
           Coded{{}, 0, "000000000000"},
           Coded{{1, 2, 10, 1, 0.25}, 3, "120640640FA3"},
           Coded{{10, 35, 1.5, 0.17, 1.4}, 9, "AZ00F0115789"},
           Coded{{36, 61, 2.5, 10.5, 0.06}, 1, "az01941A03C1"},
           Coded{{0, 0, 200, 40, 2}, 0, "007D0FA07D00"},
           Coded{{0, 0, 409.5, 40.95, 4.095}, 0, "00FFFFFFFFF0"},
       }) {
    EXPECT_EQ(EncodeObjective(row.values, row.condenser), row.code);
    EXPECT_EQ(DecodeObjective(row.code), row.values) << row.code;
    EXPECT_EQ(CondenserDigit(row.code), row.condenser) << row.code;
  }
}

TEST(ObjectiveCode, RoundsHalvesToTheEvenNumber) {
  EXPECT_EQ(EncodeObjective({0, 0, 1.25, 0.125, 0.0625}, 0), "0000C00C03E0");
  EXPECT_EQ(EncodeObjective({0, 0, 1.75, 0.375, 0.1875}, 0), "000120260BC0");
}

TEST(ObjectiveCode, EveryCharacterOfTheAlphabetStandsForSeriesAndType) {
  for (std::int32_t digit = 0; digit <= 61; ++digit) {
    const std::string code = EncodeObjective({digit, 61 - digit, 0, 0, 0}, 0);
    ASSERT_EQ(code.size(), kObjectiveCodeLength);
    EXPECT_EQ(DecodeObjective(code).series, digit);
    EXPECT_EQ(DecodeObjective(code).type, 61 - digit);
  }
}

TEST(ObjectiveCode, SixMoreCharactersStandForTheValuesOfUToZ) {
  const std::string doubled = "[\\]^_`";
  for (std::size_t i = 0; i < doubled.size(); ++i) {
    const std::string code = std::string(2, doubled[i]) + "0000000000";
    EXPECT_EQ(DecodeObjective(code).series, 30 + static_cast<std::int32_t>(i));
    EXPECT_EQ(DecodeObjective(code).type, CharToDigit("U") + static_cast<std::int32_t>(i));
  }
}

TEST(ObjectiveCode, CharactersOutsideTheAlphabetGiveNegativeCodes) {
  for (const char* first : {" ", "/", ":", "@", "{", "~", "é"}) {
    EXPECT_LT(DecodeObjective(std::string(first) + "00000000000").series, 0) << first;
    EXPECT_LT(DecodeObjective("0" + std::string(first) + "0000000000").type, 0) << first;
  }
}

TEST(ObjectiveCode, ValuesBeyondTheLimitsGiveAnotherLength) {
  EXPECT_EQ(EncodeObjective({-1, 0, 0, 0, 0}, 0), "00000000000");
  EXPECT_EQ(EncodeObjective({0, 62, 0, 0, 0}, 0), "00000000000");
  EXPECT_EQ(EncodeObjective({0, 0, 0, 0, 0}, 10), "0000000000010");
  EXPECT_EQ(EncodeObjective({0, 0, 409.6, 0, 0}, 0), "0010000000000");
  EXPECT_EQ(EncodeObjective({0, 0, -0.1, 0, 0}, 0), "00FFFFFFFF0000000");
}

TEST(ObjectiveCode, AProductThatDoesNotFitRaisesAnOverflow) {
  try {
    EncodeObjective({0, 0, 1e300, 0, 0}, 0);
    FAIL() << "nothing was raised";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kOverflowError);
  }
}

struct Digits {
  const char* text;
  double magnification;
};

TEST(ObjectiveCode, HexadecimalNumbersEndWhereTheirDigitsEnd) {
  for (const Digits& row :
       {Digits{"064", 10}, Digits{"0fA", 25}, Digits{"003", 0.3}, Digits{"0G4", 0},
        Digits{"1Z0", 0.1}, Digits{"0x1", 0}, Digits{"-12", 0}, Digits{"+12", 0}, Digits{" 64", 10},
        Digits{"64 ", 10}, Digits{"6 4", 0.6}, Digits{"   ", 0}, Digits{"é64", 0}}) {
    const ObjectiveValues values = DecodeObjective("00" + std::string(row.text) + "0640FA0");
    EXPECT_EQ(values.magnification, row.magnification) << row.text;
    EXPECT_EQ(values.workingDistance, 1) << row.text;
    EXPECT_EQ(values.numericalAperture, 0.25) << row.text;
  }
}

TEST(ObjectiveCode, ValuesComeBackAsTheSameDoubles) {
  for (int i = 0; i <= 4095; ++i) {
    const ObjectiveValues values{0, 0, i / 10.0, i / 100.0, i / 1000.0};
    ASSERT_EQ(DecodeObjective(EncodeObjective(values, 0)), values) << i;
  }
}

TEST(ObjectiveCode, ALastCharacterThatIsNoDigitRaisesAConversionFailure) {
  for (const char* code : {"", "00000000000x", "00000000000 ", "00000000000é"}) {
    try {
      CondenserDigit(code);
      FAIL() << "nothing was raised for \"" << code << '"';
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), kConversionError);
    }
  }
}

}  // namespace
}  // namespace mortane

// Positions as text: steps from what a person types, micrometres from what a drive answers.
#include "drives/DrivePosition.h"

#include <gtest/gtest.h>

#include <limits>

#include "common/Numbers.h"

namespace mortane {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

class DrivePosition : public testing::Test {
 protected:
  ~DrivePosition() override { SetSystemNumberFormat(PointFormat()); }
};

struct StepsRow {
  const char* text;
  std::int32_t steps;
};

TEST_F(DrivePosition, TextIsTwentyStepsAMicrometre) {
  for (const StepsRow& row : {StepsRow{"1", 20}, StepsRow{"-2.5", -50}, StepsRow{"0.05", 1},
                              StepsRow{" 50000 ", 1000000}, StepsRow{"-100000", -2000000},
                              StepsRow{"1e2", 2000}, StepsRow{"0", 0}, StepsRow{"-0", 0}}) {
    EXPECT_EQ(StepsOfText(row.text), row.steps) << row.text;
  }
}

TEST_F(DrivePosition, HalfAStepGoesToTheEvenOne) {
  for (const StepsRow& row :
       {StepsRow{"0.125", 2}, StepsRow{"0.375", 8}, StepsRow{"0.025", 0}, StepsRow{"0.075", 2},
        StepsRow{"-0.125", -2}, StepsRow{"-0.375", -8}, StepsRow{"-0.025", 0}, StepsRow{"0.126", 3},
        StepsRow{"0.124", 2}, StepsRow{"50000.02", 1000000}, StepsRow{"50000.03", 1000001}}) {
    EXPECT_EQ(StepsOfText(row.text), row.steps) << row.text;
  }
}

TEST_F(DrivePosition, TextThatIsNoNumberIsZero) {
  for (const char* text : {"", " ", "abc", "No Setting", "nan", "inf", "-infinity", "0x10", "12abc",
                           "1,5", "1 2", "--1"}) {
    EXPECT_EQ(StepsOfText(text), 0) << text;
  }
  EXPECT_EQ(StepsOfText(std::string(400, '9')), 0) << "no double holds it";
}

TEST_F(DrivePosition, StepsOutside32BitsAreNone) {
  EXPECT_EQ(StepsOfText("107374182.35"), kLargest);
  EXPECT_EQ(StepsOfText("107374182.4"), std::nullopt);
  EXPECT_EQ(StepsOfText("-107374182.4"), kSmallest);
  EXPECT_EQ(StepsOfText("-107374182.45"), std::nullopt);
  for (const char* text : {"1e300", "-1e300", "1e308", "1e9"}) {
    EXPECT_EQ(StepsOfText(text), std::nullopt) << text;
  }
}

struct TextRow {
  std::int32_t steps;
  const char* text;
};

TEST_F(DrivePosition, StepsAreShownAsMicrometresWithNoMoreDecimalsThanTheyNeed) {
  for (const TextRow& row :
       {TextRow{0, "0"}, TextRow{1, "0.05"}, TextRow{-1, "-0.05"}, TextRow{2, "0.1"},
        TextRow{3, "0.15"}, TextRow{20, "1"}, TextRow{50, "2.5"}, TextRow{-900000, "-45000"},
        TextRow{1000000, "50000"}, TextRow{kLargest, "107374182.35"},
        TextRow{kSmallest, "-107374182.4"}}) {
    EXPECT_EQ(TextOfSteps(row.steps), row.text);
  }
}

TEST_F(DrivePosition, EveryShownPositionReadsBackAsItWas) {
  for (const NumberFormat& format : {PointFormat(), NumberFormat{",", "."}}) {
    SetSystemNumberFormat(format);
    for (const std::int32_t center : {kSmallest + 500, -2000000, 0, 1000000, kLargest - 500}) {
      for (std::int32_t steps = center - 500; steps < center + 500; ++steps) {
        ASSERT_EQ(StepsOfText(TextOfSteps(steps)), steps);
      }
    }
  }
}

TEST_F(DrivePosition, FollowsTheUsersDecimalComma) {
  SetSystemNumberFormat({",", "."});
  EXPECT_EQ(TextOfSteps(50), "2,5");
  EXPECT_EQ(StepsOfText("2,5"), 50);
  EXPECT_EQ(StepsOfText("-0,375"), -8);
  EXPECT_EQ(StepsOfText("2.5"), 0) << "a group has three digits";
  EXPECT_EQ(StepsOfText("1.000"), 20000) << "a group of thousands";
  EXPECT_TRUE(IsMicrometres("49999,5", -50000, 50000));
  EXPECT_FALSE(IsMicrometres("49999.5", -50000, 50000));
}

TEST_F(DrivePosition, AFieldTakesNumbersWithinItsBoundsBeforeRounding) {
  for (const char* text : {"50000", "-100000", "0", " 1.5 ", "5e4", "50000.000"}) {
    EXPECT_TRUE(IsMicrometres(text, -100000, 50000)) << text;
  }
  for (const char* text : {"50000.01", "-100000.01", "50001", "-100001", "1e300", "-1e300", "nan",
                           "inf", "", " ", "No Setting", "1,5"}) {
    EXPECT_FALSE(IsMicrometres(text, -100000, 50000)) << text;
  }
  EXPECT_FALSE(IsMicrometres(std::string(400, '9'), -100000, 50000));
}

}  // namespace
}  // namespace mortane

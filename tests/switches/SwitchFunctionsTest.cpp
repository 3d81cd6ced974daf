// The table of switch functions and the lists and defaults that are made of it.
#include "switches/SwitchFunctions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "switches/FunctionNames.h"

namespace mortane::test {
namespace {

using Codes = std::vector<int>;

Names NamesOf(const SwitchFunctionList& list) {
  Names names;
  for (const SwitchFunction& function : list) names.emplace_back(function.name);
  return names;
}

template <typename Array>
Codes Plain(const Array& codes) {
  return {codes.begin(), codes.end()};
}

TEST(SwitchFunctions, AreFiftyTwoEachAtThePlaceOfItsCode) {
  EXPECT_EQ(NamesOf(AllSwitchFunctions()), AllNames());
  for (std::size_t place = 0; place < AllSwitchFunctions().size(); ++place) {
    EXPECT_EQ(AllSwitchFunctions()[place].code, static_cast<int>(place));
  }
}

// A list's entry is found by its text too.
TEST(SwitchFunctions, HaveNamesThatDiffer) {
  for (const SwitchFunctionList* list :
       {&AllSwitchFunctions(), &DialFunctions(), &PushFunctions(), &JoypadFunctions()}) {
    const Names names = NamesOf(*list);
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
  }
}

TEST(SwitchFunctions, ForDialsHaveTheFirstCodeOfTheirPair) {
  EXPECT_EQ(DialFunctions(), (SwitchFunctionList{{kDashes, 0},
                                                 {"Objective CW/CCW", 1},
                                                 {"DIA Field Stop OPEN/CLOSE", 7},
                                                 {"DIA Aperture Stop OPEN/CLOSE", 9},
                                                 {"Filter Cube CW/CCW", 11},
                                                 {"Condenser CW/CCW", 14},
                                                 {"ND Filter BRIGHT/DARK", 16},
                                                 {"DIA Lamp UP/DOWN", 18},
                                                 {"Optical Zoom UP/DOWN", 20},
                                                 {"Epi Field Stop OPEN/CLOSE", 22}}));
}

TEST(SwitchFunctions, OfADialsOtherDirectionFollowOrAreNone) {
  EXPECT_EQ(SecondOfPair(0), 0);
  EXPECT_EQ(SecondOfPair(1), 2);
  EXPECT_EQ(SecondOfPair(22), 23);
}

TEST(SwitchFunctions, ForPushSwitchesStandInTheirOrder) {
  EXPECT_EQ(NamesOf(PushFunctions()), PushNames());
}

TEST(SwitchFunctions, ForPushSwitchesHaveTheCodeOfTheSameText) {
  for (const SwitchFunction& function : PushFunctions()) {
    const Names& names = AllNames();
    const auto place = std::find(names.begin(), names.end(), function.name) - names.begin();
    EXPECT_EQ(function.code, place) << function.name;
  }
}

TEST(SwitchFunctions, OfTheJoypadShareTheFirstCodesAndThenAreItsOwn) {
  Names names(AllNames().begin(), AllNames().begin() + 41);
  names.insert(names.end(),
               {"Z Focus Position Up", "Z Focus Position Down", "X Position Move(X>0)",
                "X Position Move(X<0)", "Y Position Move(Y>0)", "Y Position Move(Y<0)"});
  EXPECT_EQ(NamesOf(JoypadFunctions()), names);
  EXPECT_EQ(JoypadFunctions().size(), 47U);
  for (std::size_t place = 0; place < JoypadFunctions().size(); ++place) {
    EXPECT_EQ(JoypadFunctions()[place].code, static_cast<int>(place));
  }
}

TEST(SwitchFunctions, AreFoundByTheirCode) {
  for (int code = 0; code < 52; ++code) {
    EXPECT_EQ(FunctionName(AllSwitchFunctions(), code), AllNames()[static_cast<std::size_t>(code)]);
  }
  for (const int code : {-3, -1, 52, 61, 1000}) {
    EXPECT_EQ(FunctionName(AllSwitchFunctions(), code), "") << code;
  }
  EXPECT_EQ(FunctionName(DialFunctions(), 7), "DIA Field Stop OPEN/CLOSE");
  EXPECT_EQ(FunctionName(DialFunctions(), 8), "") << "the second of a pair";
  EXPECT_EQ(FunctionName(PushFunctions(), 29), "") << "not on offer";
  EXPECT_EQ(FunctionName(JoypadFunctions(), 46), "Y Position Move(Y<0)");
  EXPECT_EQ(FunctionName(JoypadFunctions(), 47), "");
}

TEST(SwitchFunctions, AreReportedWithTwoNamesExchanged) {
  Names reported = AllNames();
  std::swap(reported[3], reported[4]);
  for (int code = 0; code < 52; ++code) {
    EXPECT_EQ(ReportedName(code), reported[static_cast<std::size_t>(code)]);
    EXPECT_TRUE(IsSwitchFunction(code));
  }
  EXPECT_EQ(ReportedName(3), "Z Escape");
  EXPECT_EQ(ReportedName(4), "Z Focus Knob Speed Change");
  for (const int code : {-32768, -3, -1, 52, 61, 65539}) {
    EXPECT_EQ(ReportedName(code), "Nothing") << code;
    EXPECT_FALSE(IsSwitchFunction(code)) << code;
  }
}

struct RowExpected {
  const char* name;
  int position;
  SwitchKind kind;
  int defaultCode;
};

TEST(SwitchRows, OfTheBodyAreTen) {
  const RowExpected expected[] = {
      {"CW/CCW_1", 13, SwitchKind::Dial, 9},  {"CW/CCW_2", 15, SwitchKind::Dial, 7},
      {"CW/CCW_3", 11, SwitchKind::Dial, 11}, {"CW/CCW_4", 9, SwitchKind::Dial, 1},
      {"SW_1", 1, SwitchKind::Push, 3},       {"SW_2", 6, SwitchKind::Push, 13},
      {"SW_3", 7, SwitchKind::Push, 5},       {"SW_4", 5, SwitchKind::Push, 6},
      {"SW_5", 2, SwitchKind::Push, 3},       {"SW_6", 3, SwitchKind::Push, 4}};
  ASSERT_EQ(kBodyRows.size(), std::size(expected));
  for (std::size_t i = 0; i < kBodyRows.size(); ++i) {
    EXPECT_EQ(kBodyRows[i].name, expected[i].name);
    EXPECT_EQ(kBodyRows[i].position, expected[i].position);
    EXPECT_EQ(kBodyRows[i].kind, expected[i].kind);
    EXPECT_EQ(kBodyRows[i].defaultCode, expected[i].defaultCode);
  }
}

TEST(SwitchRows, OfTheHandControllerAreSixOnEachOfTwoPages) {
  const std::vector<std::pair<std::string, int>> expected[] = {
      {{"CW/CCW(A)", 1}, {"L (A)", 3}, {"R (A)", 4}, {"1 (A)", 5}, {"2 (A)", 6}, {"3 (A)", 7}},
      {{"CW/CCW(B)", 8},
       {"L (B)", 10},
       {"R (B)", 11},
       {"1 (B)", 12},
       {"2 (B)", 13},
       {"3 (B)", 14}}};
  ASSERT_EQ(kTactorPages.size(), 2U);
  for (std::size_t page = 0; page < 2; ++page) {
    ASSERT_EQ(kTactorPages[page].size(), 6U);
    for (std::size_t i = 0; i < 6; ++i) {
      const TactorRow& row = kTactorPages[page][i];
      EXPECT_EQ(row.name, expected[page][i].first);
      EXPECT_EQ(row.position, expected[page][i].second);
      EXPECT_EQ(row.kind, i == 0 ? SwitchKind::Dial : SwitchKind::Push);
    }
  }
}

TEST(SwitchDefaults, OfTheBodyFillBothDirectionsOfADial) {
  EXPECT_EQ(Plain(BodyDefaults()), (Codes{3, 3, 4, 0, 6, 13, 5, 0, 1, 2, 11, 12, 9, 10, 7, 8}));
}

struct TypeRow {
  int type;
  Codes codes;
};

TEST(SwitchDefaults, OfTheHandControllerGoByTheMicroscopesType) {
  for (const TypeRow& row : {TypeRow{0, {1, 2, 3, 25, 4, 26, 5, 14, 15, 0, 0, 0, 0, 0}},
                             TypeRow{1, {11, 12, 20, 21, 6, 24, 13, 22, 23, 0, 0, 0, 0, 0}},
                             TypeRow{3, {1, 2, 3, 25, 46, 26, 13, 11, 12, 0, 0, 0, 0, 0}},
                             TypeRow{4, {1, 2, 3, 25, 4, 26, 13, 14, 15, 0, 0, 0, 0, 0}}}) {
    EXPECT_EQ(Plain(TactorDefaults(row.type)), row.codes) << row.type;
  }
  for (const int type : {-1, 2, 5, 6, 7}) {
    EXPECT_EQ(Plain(TactorDefaults(type)), Codes(14, 0)) << type;
  }
}

}  // namespace
}  // namespace mortane::test

// What a choice on the sub-page of the body's switches makes of the codes, and what codes show.
#include <gtest/gtest.h>

#include "gui/support/PageActs.h"
#include "gui/switches/SwitchPages.h"
#include "switches/SwitchFunctions.h"
#include "widgets/ComboBox.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

using Names = std::vector<std::string>;

constexpr const char* kDashes = "-----------------";

class BodyFunctions : public testing::Test {
 protected:
  BodyFunctions() {
    // Without a knob mode there is nothing to tell about knobs.
    rig.k70().COther.curAutoZ = rig.k70().COther.curAutoXY = -1;
  }

  clsDbSwitch& unit() { return rig.k70().curSwitch; }
  std::string cell(int row) const { return page.ListView1->cell(row, 1).toStdString(); }
  std::string text() const { return page.textSwFunc->text().toStdString(); }
  Names FirstCells(int count) const {
    Names cells = Column(*page.ListView1, 1);
    cells.resize(static_cast<std::size_t>(count));
    return cells;
  }

  PageRig rig{"Harbour"};
  SwitchSettingCtl& page = rig.Show(MakeSwitchSettingCtl(rig.k70()));
};

struct ControlRow {
  int row;
  std::int16_t position;
};

constexpr ControlRow kDialRows[] = {{0, 13}, {1, 15}, {2, 11}, {3, 9}};
constexpr ControlRow kPushRows[] = {{4, 1}, {5, 6}, {6, 7}, {7, 5}, {8, 2}, {9, 3}};

struct PairRow {
  const char* text;
  int first;
  int second;
};

constexpr PairRow kPairs[] = {
    {kDashes, 0, 0},
    {"Objective CW/CCW", 1, 2},
    {"DIA Field Stop OPEN/CLOSE", 7, 8},
    {"DIA Aperture Stop OPEN/CLOSE", 9, 10},
    {"Filter Cube CW/CCW", 11, 12},
    {"Condenser CW/CCW", 14, 15},
    {"ND Filter BRIGHT/DARK", 16, 17},
    {"DIA Lamp UP/DOWN", 18, 19},
    {"Optical Zoom UP/DOWN", 20, 21},
    {"Epi Field Stop OPEN/CLOSE", 22, 23},
};

TEST_F(BodyFunctions, ADialGetsAPairOfCodes) {
  for (const ControlRow& dial : kDialRows) {
    for (int entry = 0; entry < 10; ++entry) {
      const PairRow& pair = kPairs[entry];
      SetCodes(unit(), 50);
      ClickRow(*page.ListView1, dial.row);
      ChooseRow(*page.ComboCWCCW, entry);
      std::vector<int> expected(16, 50);
      expected[static_cast<std::size_t>(dial.position - 1)] = pair.first;
      expected[static_cast<std::size_t>(dial.position)] = pair.second;
      EXPECT_EQ(CodesOf(unit()), expected) << dial.row << pair.text;
      EXPECT_EQ(cell(dial.row), pair.text);
      EXPECT_EQ(text(), pair.text);
    }
  }
}

TEST_F(BodyFunctions, DashesOnADialMakeBothItsPositionsZero) {
  ClickRow(*page.ListView1, 1);
  ASSERT_EQ(unit().Func(15), 7);
  ASSERT_EQ(unit().Func(16), 8);
  ChooseRow(*page.ComboCWCCW, 0);
  EXPECT_EQ(unit().Func(15), 0);
  EXPECT_EQ(unit().Func(16), 0);
}

constexpr int kPushCodes[] = {0,  3,  4,  5,  6,  13, 20, 21, 24, 25, 26, 27,
                              28, 41, 42, 43, 44, 45, 46, 47, 48, 49, 50, 51};

TEST_F(BodyFunctions, APushSwitchGetsOneCode) {
  for (const ControlRow& push : kPushRows) {
    for (int entry = 0; entry < 24; ++entry) {
      SetCodes(unit(), 1);
      ClickRow(*page.ListView1, push.row);
      ChooseRow(*page.ComboFunction, entry);
      std::vector<int> expected(16, 1);
      expected[static_cast<std::size_t>(push.position - 1)] = kPushCodes[entry];
      EXPECT_EQ(CodesOf(unit()), expected) << push.row << " " << entry;
      const std::string name(FunctionName(AllSwitchFunctions(), kPushCodes[entry]));
      EXPECT_EQ(cell(push.row), name);
      EXPECT_EQ(text(), name);
    }
  }
}

TEST_F(BodyFunctions, OneFunctionMayStandOnSeveralSwitches) {
  for (const ControlRow& push : kPushRows) {
    ClickRow(*page.ListView1, push.row);
    ChooseRow(*page.ComboFunction, 2);
    EXPECT_EQ(unit().Func(push.position), 4) << push.row;
  }
}

TEST_F(BodyFunctions, ChoosingTheEntryOnShowStoresItAgain) {
  ClickRow(*page.ListView1, 4);
  unit().Func(1, 30);
  ChooseRow(*page.ComboFunction, 1);
  EXPECT_EQ(unit().Func(1), 3);
  ClickRow(*page.ListView1, 3);
  unit().Func(10, 30);
  ChooseRow(*page.ComboCWCCW, 1);
  EXPECT_EQ(unit().Func(10), 2);
}

TEST_F(BodyFunctions, AnEntryThatTheProgramSetsActsAsAChoice) {
  ClickRow(*page.ListView1, 4);
  page.ComboFunction->setIndex(2);
  EXPECT_EQ(unit().Func(1), 4);
  EXPECT_EQ(cell(4), "Z Escape");
  ClickRow(*page.ListView1, 0);
  page.ComboCWCCW->setIndex(1);
  EXPECT_EQ(unit().Func(13), 1);
  EXPECT_EQ(unit().Func(14), 2);
}

TEST_F(BodyFunctions, SelectingRowsStoresNothing) {
  const std::vector<int> before = CodesOf(unit());
  for (int round = 0; round < 2; ++round) {
    for (int row = 0; row < 10; ++row) ClickRow(*page.ListView1, row);
  }
  EXPECT_EQ(CodesOf(unit()), before);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(BodyFunctions, ADialCodeThatBeginsNoPairKeepsTheTextOfTheRowBefore) {
  unit().Func(15, 8);
  page.LoadData();
  EXPECT_EQ(FirstCells(4), (Names{"DIA Aperture Stop OPEN/CLOSE", "DIA Aperture Stop OPEN/CLOSE",
                                  "Filter Cube CW/CCW", "Objective CW/CCW"}));
  EXPECT_EQ(unit().Func(15), 8);
}

struct KeptRow {
  std::int16_t codes[4];
  Names shown;
};

TEST_F(BodyFunctions, TheTextOfTheRowBeforeIsEmptyInTheFirstRowAndGoesOnThroughSeveral) {
  for (const KeptRow& row : {
           KeptRow{{2, 7, 8, 10},
                   {"", "DIA Field Stop OPEN/CLOSE", "DIA Field Stop OPEN/CLOSE",
                    "DIA Field Stop OPEN/CLOSE"}},
           KeptRow{{-1, -3, 52, 3}, {"", "", "", ""}},
           KeptRow{{0, 12, 24, 25}, {kDashes, kDashes, kDashes, kDashes}},
           KeptRow{{22, 13, 1, 29},
                   {"Epi Field Stop OPEN/CLOSE", "Epi Field Stop OPEN/CLOSE", "Objective CW/CCW",
                    "Objective CW/CCW"}},
       }) {
    for (std::size_t i = 0; i < 4; ++i) unit().Func(kDialRows[i].position, row.codes[i]);
    page.LoadData();
    EXPECT_EQ(FirstCells(4), row.shown);
  }
}

TEST_F(BodyFunctions, TheTextBoxShowsTheKeptTextOfADial) {
  unit().Func(15, 8);
  page.LoadData();
  ClickRow(*page.ListView1, 1);
  EXPECT_EQ(text(), "DIA Aperture Stop OPEN/CLOSE");
  EXPECT_EQ(page.ComboCWCCW->index(), -1);
}

TEST_F(BodyFunctions, EveryPushRowShowsTheNameOfItsCode) {
  for (const ControlRow& push : kPushRows) {
    for (int code = 0; code <= 51; ++code) {
      unit().Func(push.position, static_cast<std::int16_t>(code));
      page.LoadData();
      EXPECT_EQ(cell(push.row), FunctionName(AllSwitchFunctions(), code)) << push.row << code;
    }
  }
}

TEST_F(BodyFunctions, APushRowOfACodeThatIsNoFunctionShowsAnEmptyText) {
  for (const int number : {-3, -1, 52, 61, 32767, -32768}) {
    const auto code = static_cast<std::int16_t>(number);
    unit().Func(6, code);
    page.LoadData();
    EXPECT_EQ(cell(5), "") << code;
    EXPECT_EQ(unit().Func(6), code);
  }
}

TEST_F(BodyFunctions, AllClearMakesAllPositionsZeroThoseWithoutAControlToo) {
  SetCodes(unit(), 5);
  ClickRow(*page.ListView1, 2);
  ClickButton(*page.cmdAllClear);
  EXPECT_EQ(CodesOf(unit()), std::vector<int>(16, 0));
  EXPECT_EQ(Column(*page.ListView1, 1), Names(10, kDashes));
  EXPECT_EQ(text(), kDashes);
  EXPECT_EQ(page.ComboCWCCW->currentText(), kDashes);
  EXPECT_EQ(page.ListView1->index(), 2);
}

TEST_F(BodyFunctions, DefaultGivesEachControlItsOwnFunction) {
  SetCodes(unit(), 50);
  page.LoadData();
  ClickRow(*page.ListView1, 4);
  ClickButton(*page.cmdDefault);
  EXPECT_EQ(CodesOf(unit()),
            (std::vector<int>{3, 3, 4, 0, 6, 13, 5, 0, 1, 2, 11, 12, 9, 10, 7, 8}));
  EXPECT_EQ(cell(0), "DIA Aperture Stop OPEN/CLOSE");
  EXPECT_EQ(cell(9), "Z Escape");
  EXPECT_EQ(text(), "Z Focus Knob Speed Change");
}

// While the box stands the function is stored and the text box tells of it; the row follows.
TEST_F(BodyFunctions, TheRowIsWrittenAfterThePersonWasToldOfAKnob) {
  rig.k70().COther.curAutoZ = 1;
  ClickRow(*page.ListView1, 5);
  std::vector<std::string> during;
  rig.prompts.ExpectBox("Focus Knob Setting is changed to Manual mode.", box::kOk, Answer::Ok, {},
                        [&] {
                          during = {text(), std::to_string(unit().Func(6)), cell(5),
                                    std::to_string(rig.k70().COther.curAutoZ)};
                        });
  ChooseRow(*page.ComboFunction, 1);
  EXPECT_EQ(during, (Names{"Z Focus Knob Speed Change", "3", "Shutter OPEN/CLOSE", "1"}));
  EXPECT_EQ(cell(5), "Z Focus Knob Speed Change");
  EXPECT_EQ(rig.k70().COther.curAutoZ, 0);
}

TEST_F(BodyFunctions, TheReportNamesCodeThreeAsZEscapeAlthoughThePageDoesNot) {
  ClickRow(*page.ListView1, 5);
  ChooseRow(*page.ComboFunction, 1);
  EXPECT_EQ(cell(5), "Z Focus Knob Speed Change");
  std::string report;
  EXPECT_EQ(unit().ModifySdk(report), "");
  EXPECT_NE(report.find("Switch Function[6] Z Escape"), std::string::npos) << report;
}

TEST_F(BodyFunctions, AnEditAsksTheControllerNothing) {
  rig.journal.Clear();
  ClickRow(*page.ListView1, 5);
  ChooseRow(*page.ComboFunction, 4);
  ClickButton(*page.cmdDefault);
  ClickButton(*page.cmdAllClear);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

}  // namespace
}  // namespace mortane::test

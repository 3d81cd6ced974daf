// What a choice on the sub-page of the hand controller makes of the codes, and what codes show.
#include <gtest/gtest.h>

#include <QImage>
#include <QPushButton>
#include <array>

#include "drawings/SwitchDrawing.h"
#include "gui/support/PageActs.h"
#include "gui/switches/SwitchPages.h"
#include "support/Sample.h"
#include "switches/SwitchFunctions.h"
#include "widgets/ComboBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

using Names = std::vector<std::string>;
using Codes = std::vector<int>;

constexpr const char* kDashes = "-----------------";
constexpr int kPageA = 1;
constexpr int kPageB = 2;

class TactorFunctions : public testing::Test {
 protected:
  TactorFunctions() {
    // Without a knob mode there is nothing to tell about knobs.
    rig.k70().COther.curAutoZ = rig.k70().COther.curAutoXY = -1;
    unit().ControlMode = 1;
    rig.Show(&page);
  }

  clsControlTactor& unit() { return rig.k70().curTactor; }
  void ShowPage(int switches) { ClickButton(*page.optChg->button(switches)); }
  std::string cell(int row) const { return page.ListView1->cell(row, 1).toStdString(); }

  PageRig rig{"Harbour"};
  TactorSwitchSettingCtl& page = *MakeTactorSwitchSettingCtl(rig.k70());
};

// A corner is round where it lacks the colour of the line above the letter.
bool IsRound(const QImage& letter, int x) {
  return letter.pixelColor(x, 0) != letter.pixelColor(letter.width() / 2, 0);
}

TEST_F(TactorFunctions, LettersOfPagesAreOneControlWithRoundEnds) {
  const QWidget& a = *page.optChg->button(kPageA);
  const QWidget& b = *page.optChg->button(kPageB);
  EXPECT_EQ(a.geometry().right() + 1, b.geometry().left());
  for (const int chosen : {kPageA, kPageB}) {
    ShowPage(chosen);
    const QImage left = page.optChg->button(kPageA)->grab().toImage();
    const QImage right = page.optChg->button(kPageB)->grab().toImage();
    EXPECT_TRUE(IsRound(left, 0)) << chosen;
    EXPECT_FALSE(IsRound(right, 0)) << chosen;
    EXPECT_TRUE(IsRound(right, right.width() - 1)) << chosen;
  }
}

TEST_F(TactorFunctions, DrawingAndIconsOfFilesAreThoseOfTheHandController) {
  EXPECT_EQ(page.optBtn->objectName(), "handController");
  for (const QPushButton* button : std::array<const QPushButton*, 3>{
           page.btnNewFileOpen, page.btnReadFileOpen, page.Command1}) {
    EXPECT_EQ(button->iconSize(), QSize(20, 20));
  }
}

TEST_F(TactorFunctions, TheDialOfEachPageGetsAPairOfCodes) {
  for (const auto& [switches, position] : {std::pair{kPageA, 1}, {kPageB, 8}}) {
    ShowPage(switches);
    ClickRow(*page.ListView1, 0);
    for (const SwitchFunction& function : DialFunctions()) {
      SetCodes(unit(), 50);
      ChooseRow(*page.ComboCWCCW, page.ComboCWCCW->rowOf(static_cast<int>(function.code)));
      Codes expected(14, 50);
      expected[static_cast<std::size_t>(position - 1)] = function.code;
      expected[static_cast<std::size_t>(position)] = function.code == 0 ? 0 : function.code + 1;
      EXPECT_EQ(CodesOf(unit()), expected) << function.name;
      EXPECT_EQ(cell(0), function.name);
    }
  }
}

TEST_F(TactorFunctions, APushSwitchOfEachPageGetsOneCode) {
  for (const auto& [switches, base] : {std::pair{kPageA, 1}, {kPageB, 8}}) {
    ShowPage(switches);
    for (int row = 1; row < 6; ++row) {
      ClickRow(*page.ListView1, row);
      for (const SwitchFunction& function :
           ColumnsOfRow(static_cast<std::size_t>(row), PushFunctions(), 5)) {
        SetCodes(unit(), 1);
        ChooseRow(*page.ComboFunction, page.ComboFunction->rowOf(static_cast<int>(function.code)));
        Codes expected(14, 1);
        expected[static_cast<std::size_t>(base) + static_cast<std::size_t>(row)] = function.code;
        EXPECT_EQ(CodesOf(unit()), expected) << row << function.name;
        EXPECT_EQ(cell(row), function.name);
      }
    }
  }
}

TEST_F(TactorFunctions, AHiddenListOfAllFunctionsActsAsAChoice) {
  ASSERT_EQ(page.ComboSWFunc->count(), 52);
  for (const auto& [switches, base] : {std::pair{kPageA, 1}, {kPageB, 8}}) {
    ShowPage(switches);
    for (int row = 1; row < 6; ++row) {
      ClickRow(*page.ListView1, row);
      EXPECT_FALSE(page.ComboSWFunc->isVisible());
      for (const int code : {28 + row, 51}) {
        page.ComboSWFunc->setIndex(code);
        EXPECT_EQ(unit().Func(static_cast<std::int16_t>(base + row + 1)), code);
        EXPECT_EQ(cell(row), FunctionName(AllSwitchFunctions(), code));
      }
    }
  }
}

// Its positions are those of push switches, also where the row is a dial.
TEST_F(TactorFunctions, TheHiddenListGivesADialsOtherDirectionTheFunction) {
  for (const auto& [switches, position] : {std::pair{kPageA, 2}, {kPageB, 9}}) {
    ShowPage(switches);
    ClickRow(*page.ListView1, 0);
    SetCodes(unit(), 1);
    page.ComboSWFunc->setIndex(switches + 29);
    Codes expected(14, 1);
    expected[static_cast<std::size_t>(position - 1)] = switches + 29;
    EXPECT_EQ(CodesOf(unit()), expected);
  }
}

TEST_F(TactorFunctions, TheHiddenListTellsOfTheKnobsToo) {
  SetCodes(unit(), 0);
  SetCodes(rig.k70().curSwitch, 0);
  ClickRow(*page.ListView1, 1);
  rig.k70().COther.curAutoZ = 1;
  rig.k70().COther.curAutoXY = 0;
  rig.prompts.ExpectBox("Focus Knob Setting is changed to Manual mode.", box::kOk);
  rig.prompts.ExpectBox("XYstage Knob Setting is changed to Auto mode.", box::kOk);
  page.ComboSWFunc->setIndex(3);
  EXPECT_EQ(rig.k70().COther.curAutoZ, 0);
  EXPECT_EQ(rig.k70().COther.curAutoXY, 1);
  rig.prompts.ExpectBox("XYstage Knob Setting is changed to Manual mode.", box::kOk);
  rig.prompts.ExpectBox("Focus Knob Setting is changed to Auto mode.", box::kOk);
  page.ComboSWFunc->setIndex(25);
}

// Page B has no row for the mark that is chosen.
TEST_F(TactorFunctions, WithoutARowTheListsAreDisabled) {
  EXPECT_FALSE(page.ComboFunction->isEnabled());
  ClickRow(*page.ListView1, 1);
  EXPECT_TRUE(page.ComboFunction->isEnabled());
  page.OptMode->select(0);
  page.optChg->select(2);
  EXPECT_EQ(page.ListView1->rowCount(), 1);
  EXPECT_FALSE(page.ComboFunction->isEnabled());
  EXPECT_FALSE(page.ComboCWCCW->isEnabled());
  EXPECT_EQ(page.ComboCWCCW->toolTip(), "Select a switch to choose its function.");
}

TEST_F(TactorFunctions, AChoiceWithoutARowDoesNothing) {
  const Codes before = CodesOf(unit());
  for (ComboBox* combo :
       std::initializer_list<ComboBox*>{page.ComboCWCCW, page.ComboFunction, page.ComboSWFunc}) {
    for (int entry = 0; entry < combo->count(); ++entry) combo->setIndex(entry);
  }
  EXPECT_EQ(CodesOf(unit()), before);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(TactorFunctions, ChoosingTheEntryOnShowStoresItAgain) {
  ClickRow(*page.ListView1, 1);
  ASSERT_EQ(page.ComboFunction->currentText(), "Z Focus Knob Speed Change");
  unit().Func(3, 30);
  ChooseRow(*page.ComboFunction, 1);
  EXPECT_EQ(unit().Func(3), 3);
}

TEST_F(TactorFunctions, ADialCodeThatBeginsNoPairShowsAnEmptyText) {
  for (const int switches : {kPageA, kPageB}) {
    const auto position = static_cast<std::int16_t>(switches == kPageA ? 1 : 8);
    for (const std::int16_t code : std::initializer_list<std::int16_t>{2, 8, 3, 29, 52, -3}) {
      unit().Func(position, code);
      ShowPage(switches);
      EXPECT_EQ(cell(0), "") << code;
      EXPECT_EQ(unit().Func(position), code);
    }
  }
}

TEST_F(TactorFunctions, EveryPushRowShowsTheNameOfItsCode) {
  for (int row = 1; row < 6; ++row) {
    for (int code = 0; code < 52; ++code) {
      unit().Func(static_cast<std::int16_t>(row + 2), static_cast<std::int16_t>(code));
      page.LoadData();
      EXPECT_EQ(cell(row), FunctionName(AllSwitchFunctions(), code));
    }
  }
}

TEST_F(TactorFunctions, ACodeOfMinusOneCountsAsNoneAndOthersThatAreNoFunctionShowNothing) {
  unit().Func(1, -1);
  unit().Func(3, -1);
  unit().Func(4, -3);
  unit().Func(5, 52);
  page.LoadData();
  EXPECT_EQ(cell(0), kDashes);
  EXPECT_EQ(cell(1), kDashes);
  EXPECT_EQ(cell(2), "");
  EXPECT_EQ(cell(3), "");
  EXPECT_EQ(unit().Func(1), -1);
}

TEST_F(TactorFunctions, AllClearMakesAllPositionsOfBothPagesZero) {
  for (const int switches : {kPageA, kPageB}) {
    SetCodes(unit(), 5);
    ShowPage(switches);
    ClickRow(*page.ListView1, 2);
    ClickButton(*page.cmdAllClear);
    EXPECT_EQ(CodesOf(unit()), Codes(14, 0));
    EXPECT_EQ(Column(*page.ListView1, 1), Names(6, kDashes));
    EXPECT_EQ(page.ListView1->index(), 2);
  }
}

struct TypeRow {
  std::int32_t type;
  Codes codes;
};

const TypeRow kTypeRows[] = {
    {0, {1, 2, 3, 25, 4, 26, 5, 14, 15, 0, 0, 0, 0, 0}},
    {1, {11, 12, 20, 21, 6, 24, 13, 22, 23, 0, 0, 0, 0, 0}},
    {2, Codes(14, 0)},
    {3, {1, 2, 3, 25, 46, 26, 13, 11, 12, 0, 0, 0, 0, 0}},
    {4, {1, 2, 3, 25, 4, 26, 13, 14, 15, 0, 0, 0, 0, 0}},
    {5, Codes(14, 0)},
    {6, Codes(14, 0)},
};

TEST_F(TactorFunctions, DefaultGoesByTheMicroscopesType) {
  for (const TypeRow& row : kTypeRows) {
    rig.k70().curType = row.type;
    SetCodes(unit(), 50);
    ClickButton(*page.cmdDefault);
    EXPECT_EQ(CodesOf(unit()), row.codes) << row.type;
  }
}

TEST_F(TactorFunctions, DefaultMakesTheModeStandardWhateverItWas) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{0, 1, 2}) {
    unit().ControlMode = mode;
    page.LoadData();
    ClickButton(*page.cmdDefault);
    EXPECT_EQ(unit().ControlMode, 0) << mode;
    EXPECT_TRUE(page.OptMode->button(0)->isChecked());
    EXPECT_TRUE(page.frmMode->isEnabled());
  }
}

TEST_F(TactorFunctions, DefaultShowsTheRowsOfStandardMode) {
  ShowPage(kPageB);
  ClickButton(*page.cmdDefault);
  EXPECT_EQ(Column(*page.ListView1, 0), Names{"CW/CCW(B)"});
  EXPECT_EQ(cell(0), "Condenser CW/CCW");
  unit().Func(8, 16);
  ClickButton(*page.cmdDefault);
  EXPECT_EQ(cell(0), "Condenser CW/CCW") << "loads with the mode selected already";
}

TEST_F(TactorFunctions, DefaultOfATypeWithoutDefaultsClearsAndTellsOfTheKnobs) {
  rig.k70().curType = 2;
  SetCodes(rig.k70().curSwitch, 0);
  rig.k70().COther.curAutoZ = rig.k70().COther.curAutoXY = 0;
  rig.prompts.ExpectBox("Focus Knob Setting is changed to Auto mode.", box::kOk);
  rig.prompts.ExpectBox("XYstage Knob Setting is changed to Auto mode.", box::kOk);
  ClickButton(*page.cmdDefault);
  EXPECT_EQ(CodesOf(unit()), Codes(14, 0));
  EXPECT_EQ(rig.prompts.Boxes().size(), 2U);
}

TEST_F(TactorFunctions, AnEditAsksTheControllerNothing) {
  rig.journal.Clear();
  ClickRow(*page.ListView1, 1);
  ChooseRow(*page.ComboFunction, 4);
  ShowPage(kPageB);
  ClickButton(*page.OptMode->button(0));
  ClickButton(*page.optHandle->button(1));
  ClickButton(*page.cmdDefault);
  ClickButton(*page.cmdAllClear);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

}  // namespace
}  // namespace mortane::test

// The sub-page of the body's switches: rows, marks and lists, and the ways to choose a row.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QScrollBar>
#include <QTest>

#include "drawings/SwitchDrawing.h"
#include "gui/support/PageActs.h"
#include "gui/switches/SwitchPages.h"
#include "switches/FunctionNames.h"
#include "widgets/ComboBox.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

constexpr int kRows = 10;
constexpr int kDials = 4;

class BodySwitchPage : public testing::Test {
 protected:
  clsDbSwitch& unit() { return rig.k70().curSwitch; }
  Names Functions() const { return Column(*page.ListView1, 1); }
  std::string text() const { return page.textSwFunc->text().toStdString(); }

  // The row, its mark, the text and the list of functions agree.
  void ExpectSelected(int row) {
    EXPECT_EQ(page.ListView1->index(), row);
    EXPECT_EQ(page.ListView1->boldRow(), row);
    for (int i = 0; i < kRows; ++i) {
      EXPECT_EQ(page.ListView1->topLevelItem(i)->font(0).bold(), i == row) << i;
      EXPECT_EQ(page.ListView1->topLevelItem(i)->font(1).bold(), i == row) << i;
      EXPECT_EQ(page.optBtn->mark(i)->isChecked(), i == row) << i;
    }
    EXPECT_EQ(page.ComboCWCCW->isVisible(), row < kDials) << row;
    EXPECT_EQ(page.ComboFunction->isVisible(), row >= kDials) << row;
    EXPECT_EQ(text(), page.ListView1->cell(row, 1).toStdString());
  }

  PageRig rig{"Harbour"};
  SwitchSettingCtl& page = rig.Show(MakeSwitchSettingCtl(rig.k70()));
};

TEST_F(BodySwitchPage, HasARowForEachControlOfTheBody) {
  EXPECT_EQ(Column(*page.ListView1, 0), (Names{"CW/CCW_1", "CW/CCW_2", "CW/CCW_3", "CW/CCW_4",
                                               "SW_1", "SW_2", "SW_3", "SW_4", "SW_5", "SW_6"}));
  EXPECT_EQ(
      Functions(),
      (Names{"DIA Aperture Stop OPEN/CLOSE", "DIA Field Stop OPEN/CLOSE", "Filter Cube CW/CCW",
             "Objective CW/CCW", "Z Focus Knob Speed Change", "Shutter OPEN/CLOSE",
             "DIA Lamp Preset", "LightPath Change", "Z Focus Knob Speed Change", "Z Escape"}));
  EXPECT_EQ(page.ListView1->headerItem()->text(0), "Switch");
  EXPECT_EQ(page.ListView1->headerItem()->text(1), "Function");
}

TEST_F(BodySwitchPage, ShowsTheLongestFunctionWholeInANarrowWindowToo) {
  rig.window().resize(920, 560);
  ClickRow(*page.ListView1, 0);
  for (int entry = 0; entry < page.ComboCWCCW->count(); ++entry) {
    page.ComboCWCCW->setIndex(entry);
    QApplication::processEvents();
    EXPECT_EQ(page.ListView1->horizontalScrollBar()->maximum(), 0)
        << page.ComboCWCCW->itemText(entry).toStdString();
  }
}

TEST_F(BodySwitchPage, HasTheGapsOfTheGrid) {
  const QWidget* picture = page.optBtn->parentWidget();
  EXPECT_EQ(page.ListView1->x(), picture->geometry().right() + 1 + grid::kBetweenColumns);
}

TEST_F(BodySwitchPage, OffersEachKindItsOwnFunctions) {
  EXPECT_EQ(RowsOf(*page.ComboCWCCW), DialNames());
  EXPECT_EQ(RowsOf(*page.ComboFunction), PushNames());
}

TEST_F(BodySwitchPage, KeepsTheNamesOfAllFunctionsInAListThatIsNeverShown) {
  ASSERT_EQ(page.lstSwFunc->rowCount(), 52);
  for (int code = 0; code < 52; ++code) EXPECT_EQ(page.lstSwFunc->data(code).toInt(), code);
  EXPECT_EQ(page.lstSwFunc->text(28), "Image Capture ");
  for (int row = 0; row < kRows; ++row) {
    ClickRow(*page.ListView1, row);
    EXPECT_FALSE(page.lstSwFunc->isVisible());
  }
}

TEST_F(BodySwitchPage, SelectsNothingByItself) {
  EXPECT_EQ(page.ListView1->index(), -1);
  EXPECT_EQ(page.ListView1->boldRow(), -1);
  EXPECT_EQ(page.optBtn->index(), -1);
  EXPECT_EQ(text(), "");
  EXPECT_NE(page.ComboCWCCW->isVisible(), page.ComboFunction->isVisible());
  EXPECT_EQ(page.ComboCWCCW->index(), -1);
  EXPECT_EQ(page.ComboFunction->index(), -1);
}

TEST_F(BodySwitchPage, WithoutARowTheListsOfFunctionsAreDisabledAndSayWhy) {
  const std::initializer_list<ComboBox*> combos{page.ComboCWCCW, page.ComboFunction};
  for (const ComboBox* combo : combos) {
    EXPECT_FALSE(combo->isEnabled());
    EXPECT_EQ(combo->toolTip(), "Select a switch to choose its function.");
  }
  ClickRow(*page.ListView1, 5);
  for (const ComboBox* combo : combos) {
    EXPECT_TRUE(combo->isEnabled());
    EXPECT_EQ(combo->toolTip(), "");
  }
}

// Where its drawing and list do not fit side by side.
TEST_F(BodySwitchPage, PutsTheListAboveTheDrawingInANarrowWindow) {
  EXPECT_LE(page.minimumSizeHint().width(), kSmallestRoom);
  rig.window().resize(kSmallestRoom, 900);
  QApplication::processEvents();
  EXPECT_LT(page.ListView1->mapTo(&page, page.ListView1->rect().bottomLeft()).y(),
            page.optBtn->mapTo(&page, QPoint()).y());
  rig.window().resize(1048, 560);
  QApplication::processEvents();
  EXPECT_GT(page.ListView1->mapTo(&page, QPoint()).x(),
            page.optBtn->mapTo(&page, page.optBtn->rect().topRight()).x());
}

TEST_F(BodySwitchPage, AChoiceWithoutARowDoesNothing) {
  rig.k70().COther.curAutoZ = 1;
  const std::vector<int> before = CodesOf(unit());
  const Names functions = Functions();
  for (ComboBox* combo : std::initializer_list<ComboBox*>{page.ComboCWCCW, page.ComboFunction}) {
    for (int entry = 0; entry < combo->count(); ++entry) combo->setIndex(entry);
  }
  EXPECT_EQ(CodesOf(unit()), before);
  EXPECT_EQ(Functions(), functions);
  EXPECT_EQ(text(), "");
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(BodySwitchPage, AClickOnARowChoosesItsMark) {
  for (int row = kRows - 1; row >= 0; --row) {
    ClickRow(*page.ListView1, row);
    ExpectSelected(row);
  }
}

TEST_F(BodySwitchPage, AClickOnAMarkChoosesItsRow) {
  for (int row = 0; row < kRows; ++row) {
    QTest::mouseClick(page.optBtn->mark(row), Qt::LeftButton);
    ExpectSelected(row);
  }
}

TEST_F(BodySwitchPage, KeysInTheListChooseTheNextRow) {
  ClickRow(*page.ListView1, 3);
  QTest::keyClick(page.ListView1, Qt::Key_Down);
  ExpectSelected(4);
  QTest::keyClick(page.ListView1, Qt::Key_End);
  ExpectSelected(9);
  QTest::keyClick(page.ListView1, Qt::Key_Home);
  ExpectSelected(0);
}

// From the left of the drawing to its right, and round.
TEST_F(BodySwitchPage, KeysOnTheDrawingGoThroughAllMarks) {
  QTest::mouseClick(page.optBtn->mark(6), Qt::LeftButton);
  for (const int row : {7, 2, 0, 4, 5, 1, 3, 8, 9, 6}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    ExpectSelected(row);
  }
  for (const int row : {9, 8, 3}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    ExpectSelected(row);
  }
}

TEST_F(BodySwitchPage, ARowThatTheProgramSelectsIsSelectedLikeAPersons) {
  page.ListView1->setIndex(7);
  ExpectSelected(7);
}

TEST_F(BodySwitchPage, MarksBearTheNumbersOfTheirRows) {
  Names numbers;
  for (int row = 0; row < kRows; ++row) {
    numbers.push_back(page.optBtn->mark(row)->text().toStdString());
  }
  EXPECT_EQ(numbers, (Names{"1", "2", "3", "4", "1", "2", "3", "4", "5", "6"}));
}

TEST_F(BodySwitchPage, MarksTellRowAndFunction) {
  EXPECT_EQ(page.optBtn->mark(5)->accessibleName(), "SW_2, Shutter OPEN/CLOSE");
  EXPECT_EQ(page.optBtn->mark(0)->accessibleName(), "CW/CCW_1, DIA Aperture Stop OPEN/CLOSE");
  ClickRow(*page.ListView1, 5);
  ChooseRow(*page.ComboFunction, 2);
  EXPECT_EQ(page.optBtn->mark(5)->accessibleName(), "SW_2, Z Escape");
  EXPECT_TRUE(page.optBtn->accessibleDescription().contains("SW_2, Z Escape"));
}

TEST_F(BodySwitchPage, TheListOfFunctionsShowsTheFunctionOfTheRow) {
  ClickRow(*page.ListView1, 5);
  EXPECT_EQ(page.ComboFunction->currentText(), "Shutter OPEN/CLOSE");
  ClickRow(*page.ListView1, 3);
  EXPECT_EQ(page.ComboCWCCW->currentText(), "Objective CW/CCW");
  unit().Func(6, 29);
  page.LoadData();
  ClickRow(*page.ListView1, 5);
  EXPECT_EQ(page.ComboFunction->index(), -1) << "which is not on offer";
  EXPECT_EQ(text(), "Observation Brightfield");
}

TEST_F(BodySwitchPage, ALoadKeepsTheSelection) {
  ClickRow(*page.ListView1, 8);
  unit().Func(2, 41);
  page.LoadData();
  ExpectSelected(8);
  EXPECT_EQ(text(), "DIC <-> Brightfield");
  EXPECT_EQ(page.ComboFunction->currentText(), "DIC <-> Brightfield");
  EXPECT_EQ(page.ListView1->rowCount(), kRows);
  EXPECT_EQ(page.ComboFunction->count(), 24);
}

TEST_F(BodySwitchPage, TheTextCannotBeTyped) {
  ClickRow(*page.ListView1, 8);
  QTest::mouseClick(page.textSwFunc, Qt::LeftButton);
  EXPECT_FALSE(page.textSwFunc->hasFocus());
  EXPECT_TRUE(page.textSwFunc->isReadOnly());
}

TEST_F(BodySwitchPage, RowsBearTheirMarksAndTheSelectedOneIsAmber) {
  const QSize size(MarkIconSide(), MarkIconSide());
  for (int row = 0; row < kRows; ++row) {
    const QIcon icon = page.ListView1->topLevelItem(row)->icon(0);
    const QImage resting = icon.pixmap(size, QIcon::Normal).toImage();
    const QImage chosen = icon.pixmap(size, QIcon::Selected).toImage();
    const QPoint onGround(10, 3);
    EXPECT_EQ(chosen.pixelColor(onGround), ToneColor(Tone::Amber)) << row;
    EXPECT_EQ(resting.pixelColor(onGround), ToneColor(Tone::DrawingFill)) << row;
  }
}

}  // namespace
}  // namespace mortane::test

// The sub-page of the hand controller: its two pages of switches, its mode and its knob.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTest>

#include "drawings/SwitchDrawing.h"
#include "gui/support/PageActs.h"
#include "gui/switches/SwitchPages.h"
#include "switches/FunctionNames.h"
#include "widgets/ComboBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

constexpr int kMarks = 6;
constexpr int kStandard = 0;
constexpr int kExtend = 1;
constexpr int kPageA = 1;
constexpr int kPageB = 2;

const Names kRowsA{"CW/CCW(A)", "L (A)", "R (A)", "1 (A)", "2 (A)", "3 (A)"};
const Names kRowsB{"CW/CCW(B)", "L (B)", "R (B)", "1 (B)", "2 (B)", "3 (B)"};

class TactorPageTest : public testing::Test {
 protected:
  explicit TactorPageTest(std::string_view bench = "Harbour") : rig(bench) {
    for (std::int16_t i = 1; i <= 14; ++i) unit().Func(i, static_cast<std::int16_t>(40 + i));
    unit().Func(1, 1);
    unit().Func(8, 14);
    unit().ControlMode = kExtend;
    rig.Show(&page);
  }

  clsControlTactor& unit() { return rig.k70().curTactor; }
  void Click(OptionGroup* group, int index) { ClickButton(*group->button(index)); }
  Names rows() const { return Column(*page.ListView1, 0); }
  Names functions() const { return Column(*page.ListView1, 1); }
  std::string name() const { return page.textSW->text().toStdString(); }
  std::vector<bool> enabledMarks() const {
    std::vector<bool> enabled;
    enabled.reserve(kMarks);
    for (int i = 0; i < kMarks; ++i) enabled.push_back(page.optBtn->mark(i)->isEnabled());
    return enabled;
  }

  void ExpectSelected(int row) {
    EXPECT_EQ(page.ListView1->index(), row);
    EXPECT_EQ(page.ListView1->boldRow(), row);
    for (int i = 0; i < page.ListView1->rowCount(); ++i) {
      EXPECT_EQ(page.ListView1->topLevelItem(i)->font(0).bold(), i == row) << i;
    }
    for (int i = 0; i < kMarks; ++i) EXPECT_EQ(page.optBtn->mark(i)->isChecked(), i == row) << i;
    EXPECT_EQ(page.ComboCWCCW->isVisible(), row == 0) << row;
    EXPECT_EQ(page.ComboFunction->isVisible(), row > 0) << row;
    EXPECT_EQ(name(), rows()[static_cast<std::size_t>(row)]);
  }

  PageRig rig;
  TactorSwitchSettingCtl& page = *MakeTactorSwitchSettingCtl(rig.k70());
};

TEST_F(TactorPageTest, OffersEachKindItsOwnFunctionsAndHoldsAllInAListThatIsNeverShown) {
  EXPECT_EQ(RowsOf(*page.ComboCWCCW), DialNames());
  EXPECT_EQ(RowsOf(*page.ComboFunction), PushNames());
  EXPECT_EQ(RowsOf(*page.ComboSWFunc), AllNames());
  for (int code = 0; code < 52; ++code) EXPECT_EQ(page.ComboSWFunc->data(code).toInt(), code);
  EXPECT_FALSE(page.ComboSWFunc->isVisible());
}

const std::vector<bool> kAllMarks(kMarks, true);
const std::vector<bool> kDialAlone{true, false, false, false, false, false};

TEST_F(TactorPageTest, BeginsWithPageA) {
  EXPECT_TRUE(page.optChg->button(kPageA)->isChecked());
  EXPECT_EQ(rows(), kRowsA);
  EXPECT_EQ(functions(), (Names{"Objective CW/CCW", "Fluorescence <-> Brightfield",
                                "Phase Contrast <-> Brightfield", "Darkfield <-> Brightfield",
                                "Option 1 <-> Brightfield", "Option 2 <-> Brightfield"}));
  EXPECT_EQ(enabledMarks(), kAllMarks);
  EXPECT_EQ(page.ListView1->headerItem()->text(0), "Switch");
  EXPECT_EQ(page.ListView1->headerItem()->text(1), "Function");
}

TEST_F(TactorPageTest, ShowsPageBOfAnExtendedModeWhole) {
  Click(page.optChg, kPageB);
  EXPECT_EQ(rows(), kRowsB);
  EXPECT_EQ(functions(), (Names{"Condenser CW/CCW", "Option 5 <-> Brightfield",
                                "Option 6 <-> Brightfield", "", "", ""}));
  EXPECT_EQ(enabledMarks(), kAllMarks);
}

TEST_F(TactorPageTest, OffersTheDialAloneOnPageBInStandardMode) {
  Click(page.optChg, kPageB);
  Click(page.OptMode, kStandard);
  EXPECT_EQ(rows(), Names{"CW/CCW(B)"});
  EXPECT_EQ(functions(), Names{"Condenser CW/CCW"});
  EXPECT_EQ(enabledMarks(), kDialAlone);
}

TEST_F(TactorPageTest, NamesTheDialOfPageBAlsoWhenItComesFromPageAInStandardMode) {
  Click(page.OptMode, kStandard);
  Click(page.optChg, kPageB);
  EXPECT_EQ(rows(), Names{"CW/CCW(B)"});
  Click(page.optChg, kPageA);
  EXPECT_EQ(rows(), kRowsA);
}

TEST_F(TactorPageTest, HasTheGapsOfTheGrid) {
  EXPECT_EQ(page.textSW->y(), page.ListView1->geometry().bottom() + 1 + grid::kBetweenControls);
  EXPECT_EQ(page.ComboCWCCW->y(), page.textSW->geometry().bottom() + 1 + grid::kBetweenControls);
}

TEST_F(TactorPageTest, KeepsAndSendsTheCodesOfPageBInStandardMode) {
  Click(page.optChg, kPageB);
  Click(page.OptMode, kStandard);
  for (std::int16_t i = 10; i <= 14; ++i) EXPECT_EQ(unit().Func(i), 40 + i);
  rig.journal.Clear();
  EXPECT_EQ(unit().WriteSdk(), "");
  for (const char* position : {"A", "B", "C", "D", "E"}) {
    const std::string call =
        std::string("ControllerSettings.SetSwitchFunction(4, \"") + position + "\"";
    const auto& lines = rig.journal.Lines();
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
      return line.starts_with(call);
    })) << position;
  }
}

TEST_F(TactorPageTest, ShowsPageAWholeInStandardModeToo) {
  Click(page.OptMode, kStandard);
  EXPECT_EQ(rows(), kRowsA);
  EXPECT_EQ(enabledMarks(), kAllMarks);
}

TEST_F(TactorPageTest, ComesBackFromTheDialAlone) {
  Click(page.OptMode, kStandard);
  Click(page.optChg, kPageB);
  ASSERT_EQ(enabledMarks(), kDialAlone);
  Click(page.OptMode, kExtend);
  EXPECT_EQ(rows(), kRowsB);
  EXPECT_EQ(enabledMarks(), kAllMarks);
  Click(page.OptMode, kStandard);
  Click(page.optChg, kPageA);
  EXPECT_EQ(rows(), kRowsA);
  EXPECT_EQ(enabledMarks(), kAllMarks);
}

// The rows are those of the mode before until the mode's option has run the loading again.
TEST_F(TactorPageTest, ALoadWithAnotherModeEndsWithTheRowsOfThatMode) {
  Click(page.optChg, kPageB);
  unit().ControlMode = kStandard;
  page.LoadData();
  EXPECT_EQ(rows(), Names{"CW/CCW(B)"});
  EXPECT_TRUE(page.OptMode->button(kStandard)->isChecked());
  unit().ControlMode = kExtend;
  page.LoadData();
  EXPECT_EQ(rows(), kRowsB);
  EXPECT_TRUE(page.OptMode->button(kExtend)->isChecked());
}

TEST_F(TactorPageTest, AClickOnAModeSetsIt) {
  Click(page.OptMode, kStandard);
  EXPECT_EQ(unit().ControlMode, 0);
  Click(page.OptMode, kExtend);
  EXPECT_EQ(unit().ControlMode, 1);
}

TEST_F(TactorPageTest, AModeThatIsNoneDisablesItsFrameAndStays) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{2, -1, 300}) {
    unit().ControlMode = mode;
    page.LoadData();
    EXPECT_FALSE(page.frmMode->isEnabled()) << mode;
    EXPECT_EQ(unit().ControlMode, mode);
    EXPECT_TRUE(page.frmHandle->isEnabled());
  }
  unit().ControlMode = kStandard;
  page.LoadData();
  EXPECT_TRUE(page.frmMode->isEnabled()) << "with a device that has a mode";
}

TEST_F(TactorPageTest, AClickOnASideSetsItAndTurnsTheDrawing) {
  EXPECT_FALSE(page.optBtn->isMirrored());
  Click(page.optHandle, 1);
  EXPECT_EQ(unit().HandleMode, 1);
  EXPECT_TRUE(page.optBtn->isMirrored());
  Click(page.optHandle, 0);
  EXPECT_EQ(unit().HandleMode, 0);
  EXPECT_FALSE(page.optBtn->isMirrored());
}

struct SideRow {
  std::int16_t side;
  bool usable;
};

TEST_F(TactorPageTest, ASideThatIsNoneDisablesFrameAndOptionsAndStays) {
  for (const SideRow& row : {SideRow{1, true}, SideRow{2, false}, SideRow{0, true},
                             SideRow{-1, false}, SideRow{1, true}}) {
    unit().HandleMode = row.side;
    page.LoadData();
    EXPECT_EQ(page.frmHandle->isEnabled(), row.usable) << row.side;
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(page.optHandle->button(i)->isEnabledTo(page.frmHandle), row.usable) << row.side;
    }
    if (row.usable) {
      EXPECT_EQ(page.optHandle->selected(), row.side);
      EXPECT_EQ(page.optBtn->isMirrored(), row.side == 1);
    }
    EXPECT_EQ(unit().HandleMode, row.side);
    EXPECT_TRUE(page.frmMode->isEnabled());
  }
}

// Hub has a hand controller and no stage.
class TactorPageWithoutStage : public TactorPageTest {
 protected:
  TactorPageWithoutStage() : TactorPageTest("Hub") {}
};

TEST_F(TactorPageWithoutStage, TheKnobIsDisabledAndItsSideStays) {
  for (const std::int16_t side : std::initializer_list<std::int16_t>{0, 1, 3}) {
    unit().HandleMode = side;
    page.LoadData();
    EXPECT_FALSE(page.frmHandle->isEnabled());
    EXPECT_FALSE(page.optHandle->button(0)->isEnabledTo(page.frmHandle));
    EXPECT_FALSE(page.optHandle->button(1)->isEnabledTo(page.frmHandle));
    EXPECT_EQ(unit().HandleMode, side);
  }
}

TEST_F(TactorPageTest, AClickOnARowChoosesItsMark) {
  for (const int switches : {kPageA, kPageB}) {
    Click(page.optChg, switches);
    for (int row = kMarks - 1; row >= 0; --row) {
      ClickRow(*page.ListView1, row);
      ExpectSelected(row);
    }
  }
}

TEST_F(TactorPageTest, AClickOnAMarkChoosesItsRow) {
  for (const int switches : {kPageA, kPageB}) {
    Click(page.optChg, switches);
    for (int row = 0; row < kMarks; ++row) {
      QTest::mouseClick(page.optBtn->mark(row), Qt::LeftButton);
      ExpectSelected(row);
    }
  }
}

TEST_F(TactorPageTest, KeysOnTheDrawingGoThroughAllMarks) {
  QTest::mouseClick(page.optBtn->mark(0), Qt::LeftButton);
  for (const int row : {1, 2, 3, 4, 5, 0}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    ExpectSelected(row);
  }
}

TEST_F(TactorPageTest, AAndBAreAsHighAsTheButtonsBesideThem) {
  EXPECT_EQ(page.optChg->button(1)->height(), page.cmdDefault->height());
  EXPECT_EQ(page.optChg->button(2)->height(), page.cmdDefault->height());
}

TEST_F(TactorPageTest, PutsTheListAboveTheDrawingInANarrowWindow) {
  EXPECT_LE(page.minimumSizeHint().width(), kSmallestRoom);
  rig.window().resize(kSmallestRoom, 900);
  QApplication::processEvents();
  EXPECT_LT(page.ListView1->mapTo(&page, page.ListView1->rect().bottomLeft()).y(),
            page.optBtn->mapTo(&page, QPoint()).y());
}

TEST_F(TactorPageTest, KeysOnTheDrawingPassOverMarksWithoutARow) {
  Click(page.optChg, kPageB);
  Click(page.OptMode, kStandard);
  QTest::mouseClick(page.optBtn->mark(0), Qt::LeftButton);
  QTest::keyClick(page.optBtn->mark(0), Qt::Key_Right);
  ExpectSelected(0);
  QTest::mouseClick(page.optBtn->mark(3), Qt::LeftButton);
  ExpectSelected(0);
}

TEST_F(TactorPageTest, TheOtherPageKeepsTheChosenMark) {
  ClickRow(*page.ListView1, 4);
  Click(page.optChg, kPageB);
  ExpectSelected(4);
  EXPECT_EQ(name(), "2 (B)");
}

TEST_F(TactorPageTest, AMarkThatLosesItsRowIsSelectedAgainWithIt) {
  Click(page.optChg, kPageB);
  ClickRow(*page.ListView1, 4);
  Click(page.OptMode, kStandard);
  EXPECT_EQ(page.ListView1->index(), -1);
  EXPECT_EQ(name(), "");
  EXPECT_EQ(page.ComboFunction->index(), -1);
  Click(page.OptMode, kExtend);
  ExpectSelected(4);
}

TEST_F(TactorPageTest, SelectsNothingByItself) {
  EXPECT_EQ(page.ListView1->index(), -1);
  EXPECT_EQ(page.optBtn->index(), -1);
  EXPECT_EQ(name(), "");
  EXPECT_NE(page.ComboCWCCW->isVisible(), page.ComboFunction->isVisible());
}

TEST_F(TactorPageTest, MarksTellRowAndFunction) {
  EXPECT_EQ(page.optBtn->mark(0)->accessibleName(), "CW/CCW(A), Objective CW/CCW");
  EXPECT_EQ(page.optBtn->mark(5)->accessibleName(), "3 (A), Option 2 <-> Brightfield");
  Click(page.optChg, kPageB);
  EXPECT_EQ(page.optBtn->mark(1)->accessibleName(), "L (B), Option 5 <-> Brightfield");
  Click(page.OptMode, kStandard);
  EXPECT_EQ(page.optBtn->mark(1)->accessibleName(), "L (B)");
}

TEST_F(TactorPageTest, MarksBearTheGlyphsOfTheirKeys) {
  Names glyphs;
  for (int i = 0; i < kMarks; ++i) glyphs.push_back(page.optBtn->mark(i)->text().toStdString());
  EXPECT_EQ(glyphs, (Names{"CW/CCW", "L", "R", "1", "2", "3"}));
}

// (16, 24, 56), whatever is chosen and in what palette.
TEST_F(TactorPageTest, AMarkKeepsTheColourOfThePlateWhenItIsChosen) {
  for (int i = 0; i < kMarks; ++i) {
    QTest::mouseClick(page.optBtn->mark(i), Qt::LeftButton);
    const QImage picture = page.optBtn->grab().toImage();
    const QRect area = page.optBtn->mark(i)->geometry();
    const QPoint onGround(area.center().x(), area.bottom() - area.height() / 4);
    EXPECT_EQ(picture.pixelColor(onGround), QColor(16, 24, 56)) << i;
  }
}

TEST_F(TactorPageTest, LoadingChangesNothingInTheUnit) {
  for (const int switches : {kPageA, kPageB}) {
    for (const std::int16_t mode : std::initializer_list<std::int16_t>{0, 1, 2}) {
      for (const std::int16_t side : std::initializer_list<std::int16_t>{0, 1, 2}) {
        Click(page.optChg, switches);
        const std::vector<int> before = CodesOf(unit());
        unit().ControlMode = mode;
        unit().HandleMode = side;
        page.LoadData();
        EXPECT_EQ(CodesOf(unit()), before);
        EXPECT_EQ(unit().ControlMode, mode);
        EXPECT_EQ(unit().HandleMode, side);
      }
    }
  }
}

// A controller of an unknown mode, before any other was connected.
class TactorPageWithoutMode : public testing::Test {
 protected:
  TactorPageWithoutMode() {
    rig.k70().curTactor.ControlMode = 2;
    rig.k70().COther.curAutoZ = rig.k70().COther.curAutoXY = -1;
    SetCodes(rig.k70().curTactor, 0);
    rig.k70().curTactor.Func(3, 4);
    rig.k70().curTactor.Func(10, 5);
    rig.Show(&page);
    ClickButton(*page.optChg->button(kPageB));
  }

  PageRig rig{"Harbour"};
  TactorSwitchSettingCtl& page = *MakeTactorSwitchSettingCtl(rig.k70());
};

TEST_F(TactorPageWithoutMode, PageBKeepsTheRowsAndHasItsOwnCodes) {
  EXPECT_EQ(page.OptMode->selected(), -1);
  EXPECT_EQ(Column(*page.ListView1, 0), kRowsA);
  EXPECT_EQ(page.ListView1->cell(1, 1), "DIA Lamp Preset");
  ClickRow(*page.ListView1, 1);
  page.ComboFunction->setIndex(12);
  EXPECT_EQ(rig.k70().curTactor.Func(10), 28);
  EXPECT_EQ(rig.k70().curTactor.Func(3), 4);
}

// Before its first loading it has no rows to keep.
TEST(TactorPageUnloaded, StaysEmptyOnPageBWithoutAMode) {
  PageRig rig{"Harbour"};
  rig.k70().curTactor.ControlMode = 2;
  const std::unique_ptr<TactorSwitchSettingCtl> page(MakeTactorSwitchSettingCtl(rig.k70()));
  page->optChg->select(kPageB);
  EXPECT_EQ(page->ListView1->rowCount(), 0);
  page->optChg->select(kPageA);
  EXPECT_EQ(Column(*page->ListView1, 0), kRowsA);
}

TEST_F(TactorPageWithoutMode, AModeBringsTheRowsOfPageB) {
  rig.k70().curTactor.ControlMode = kExtend;
  page.LoadData();
  EXPECT_EQ(Column(*page.ListView1, 0), kRowsB);
}

}  // namespace
}  // namespace mortane::test

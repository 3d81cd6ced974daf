// The stage page: what loading shows, its positions, and its moves.
#include <QLabel>
#include <QTest>

#include "common/Numbers.h"
#include "gui/drives/DrivePages.h"
#include "widgets/Card.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

const Lines kMoveStart{"NosepieceDevice.BeginPositioning()", "XYDriveDevice.MoveProfile = 9"};

TEST(StagePage, TheFirstLoadingPreparesTheStageTwiceAndTheNextOnce) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeControlXYStageCtl(rig.k70()));
  EXPECT_EQ(rig.journal.Lines(), kMoveStart + kMoveStart);
  rig.journal.Clear();
  page.LoadData();
  EXPECT_EQ(rig.journal.Lines(), kMoveStart);
}

struct ControlRow {
  const char* bench;
  bool shown;
};

// A stage without a nosepiece that turns hides the moves, no stage at all shows them.
TEST(StagePage, AStageWithoutANosepieceHidesTheMovesAndNoStageShowsThem) {
  for (const ControlRow& row :
       {ControlRow{"Quay", true}, ControlRow{"Harbour", true}, ControlRow{"Pair", true},
        ControlRow{"Lantern", true}, ControlRow{"Relay", false}, ControlRow{"Watch", false},
        ControlRow{"Hub", true}, ControlRow{"Outpost", true}, ControlRow{"Deck", true},
        ControlRow{"Hollow", true}, ControlRow{"Shell", true}}) {
    PageRig rig(row.bench, Link::Reported);
    rig.prompts.AcceptAnyBox();
    auto& page = rig.Show(MakeControlXYStageCtl(rig.k70()));
    EXPECT_EQ(page.FrameXYControl->isVisible(), row.shown) << row.bench;
    EXPECT_EQ(page.CheckRealMove->isChecked(), row.shown) << row.bench;
    EXPECT_EQ(!rig.journal.Lines().empty(), row.shown) << row.bench;
  }
}

TEST(StagePage, WithoutAStageEachPreparingIsABox) {
  PageRig rig("Hub");
  rig.prompts.ExpectBox("MoveStart Error!!", box::kCritical);
  rig.prompts.ExpectBox("MoveStart Error!!", box::kCritical);
  rig.Show(MakeControlXYStageCtl(rig.k70()));
}

TEST(StagePage, TheMovesComeBackWithTheNextMicroscope) {
  PageRig rig(List({"Quay", "Harbour", "Relay"}));
  auto& page = rig.Show(MakeControlXYStageCtl(rig.k70()));
  ASSERT_FALSE(page.FrameXYControl->isVisible());
  rig.k70().Disconnect();
  rig.k70().Connect(1);
  page.LoadData();
  EXPECT_TRUE(page.FrameXYControl->isVisible());
}

TEST(StagePage, OffersAllThreeCompensationsUnlessTheValueIsUnknown) {
  struct Row {
    std::int32_t code;
    int selected;
  };
  for (const Row& row : {Row{2, 0}, Row{3, 1}, Row{1, 2}, Row{-1, -1}, Row{7, -1}}) {
    StageRig rig;
    rig.stage().curFocusCompensation = row.code;
    if (row.selected < 0) rig.page.optFocusCompensation->clear();
    rig.page.LoadData();
    EXPECT_EQ(rig.page.optFocusCompensation->selected(), row.selected) << row.code;
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(rig.page.optFocusCompensation->button(i)->isHidden(), row.code == -1) << row.code;
    }
    EXPECT_EQ(rig.stage().curFocusCompensation, row.code);
  }
}

TEST(StagePage, ACompensationThatIsNoOptionSelectsNone) {
  StageRig rig;
  ASSERT_EQ(rig.page.optFocusCompensation->selected(), 1);
  rig.stage().curFocusCompensation = 7;
  rig.page.LoadData();
  EXPECT_EQ(rig.page.optFocusCompensation->selected(), -1);
  EXPECT_EQ(rig.stage().curFocusCompensation, 7);
}

// Another page changes it meanwhile.
TEST(StagePage, ShowsTheCompensationOfTheUnitWheneverItIsShown) {
  StageRig rig;
  struct Row {
    std::int32_t code;
    int selected;
  };
  for (const Row& row : {Row{1, 2}, Row{2, 0}, Row{3, 1}, Row{7, -1}, Row{1, 2}}) {
    rig.page.hide();
    rig.stage().curFocusCompensation = row.code;
    rig.page.show();
    EXPECT_EQ(rig.page.optFocusCompensation->selected(), row.selected) << row.code;
    EXPECT_EQ(rig.stage().curFocusCompensation, row.code);
  }
}

TEST(StagePage, ShowingItLoadsNothingElseAndAsksNothing) {
  StageRig rig;
  rig.fieldX(0).setText("1.5");
  rig.page.CheckRealMove->setChecked(false);
  rig.Forget();
  rig.stage().NoseCount = 5;
  rig.stage().PositionX(2, 77);
  rig.page.hide();
  rig.page.show();
  EXPECT_EQ(rig.shownX(0), "1.5");
  EXPECT_EQ(rig.shownX(1), "0");
  EXPECT_TRUE(rig.fieldX(5).isVisible());
  EXPECT_FALSE(rig.page.CheckRealMove->isChecked());
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_TRUE(rig.prompts.Log().empty());
}

TEST(StagePage, TheCompensationIsOfTheStageAloneAndLeavesTheInterlocks) {
  StageRig rig;
  auto& interlock = rig.k70().ILOther;
  const std::int32_t focus = interlock.Status(12);
  const std::int32_t stage = interlock.Status(14);
  for (int option = 2; option >= 0; --option) {
    ClickButton(*rig.page.optFocusCompensation->button(option));
    EXPECT_EQ(interlock.Status(12), focus);
    EXPECT_EQ(interlock.Status(14), stage);
  }
  EXPECT_EQ(rig.stage().curFocusCompensation, 2);
}

TEST(StagePage, HasARowForEachAddressUpToSeven) {
  struct Row {
    const char* bench;
    int rows;
  };
  for (const Row& given : {Row{"Harbour", 6}, Row{"Pair", 7}, Row{"Attic", 7}, Row{"Relay", 0}}) {
    StageRig rig(given.bench);
    for (int row = 0; row < 7; ++row) {
      EXPECT_EQ(rig.page.optNosepiece->button(row)->isVisible(), row < given.rows) << given.bench;
      EXPECT_EQ(rig.fieldX(row).isVisible(), row < given.rows) << given.bench;
      EXPECT_EQ(rig.fieldY(row).isVisible(), row < given.rows) << given.bench;
    }
  }
}

TEST(StagePage, NamesItsFieldsByAddressAndAxis) {
  StageRig rig;
  EXPECT_EQ(rig.fieldX(2).accessibleName(), "Address 3 X");
  EXPECT_EQ(rig.fieldY(6).accessibleName(), "Address 7 Y");
  EXPECT_EQ(rig.fieldX(0).font(), FixedFont());
}

TEST(StagePage, EachAxisHasItsHeaderOverItsFields) {
  StageRig rig;
  for (const auto& [text, field] :
       {std::pair{"X", &rig.fieldX(0)}, std::pair{"Y", &rig.fieldY(0)}}) {
    const QLabel* header = nullptr;
    for (const auto* label : rig.page.FrameNosepiece->findChildren<QLabel*>()) {
      if (label->text() == text) header = label;
    }
    ASSERT_NE(header, nullptr) << text;
    EXPECT_GE(header->x(), field->x());
    EXPECT_LE(header->geometry().right(), field->geometry().right());
    EXPECT_LE(header->geometry().bottom(), field->y());
  }
}

TEST(StagePage, EachRowStandsInLineAndRightBelowTheOneBefore) {
  StageRig rig;
  for (int row = 0; row < 6; ++row) {
    const QRect x = rig.fieldX(row).geometry();
    const QRect y = rig.fieldY(row).geometry();
    const QRect option = rig.page.optNosepiece->button(row)->geometry();
    EXPECT_EQ(y.top(), x.top());
    EXPECT_GT(y.left(), x.right());
    EXPECT_LE(qAbs(option.center().y() - x.center().y()), 1) << row;
    EXPECT_LT(option.right(), x.left());
    if (row == 0) continue;
    const int gap = x.top() - rig.fieldX(row - 1).geometry().bottom() - 1;
    EXPECT_EQ(gap, grid::kUnit) << row;
  }
}

TEST(StagePage, ASelectedRowAsksNothing) {
  StageRig rig;
  ClickButton(*rig.page.optNosepiece->button(1));
  EXPECT_EQ(rig.prompts.Log(), (Lines{"pointer 11", "pointer 0", "flush"}));
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

// positions

TEST(StagePositions, FiftyThousandMicrometresEitherWayPassFieldAndSaving) {
  StageRig rig;
  for (const auto& [text, steps] : {std::pair{"50000", 1000000}, std::pair{"-50000", -1000000}}) {
    Enter(rig.fieldX(0), text);
    EXPECT_EQ(rig.stage().PositionX(1), steps);
    Enter(rig.fieldY(5), text);
    EXPECT_EQ(rig.stage().PositionY(6), steps);
    rig.page.SaveData();
    EXPECT_EQ(rig.stage().PositionX(1), steps);
    EXPECT_EQ(rig.stage().PositionY(6), steps);
  }
}

TEST(StagePositions, SavingMakesZeroOfWhatIsNoPosition) {
  struct Row {
    const char* text;
    std::int32_t saved;
  };
  for (const Row& row : {Row{"50000.01", 1000000}, Row{"50000.05", 0}, Row{"-50000.02", -1000000},
                         Row{"-50000.05", 0}, Row{"0.375", 8}, Row{"0.125", 2}, Row{"abc", 0},
                         Row{"", 0}, Row{"1e300", 0}, Row{"nan", 0}}) {
    StageRig rig;
    rig.stage().PositionX(1, 77);
    rig.stage().PositionY(6, 78);
    rig.fieldX(0).setText(row.text);
    rig.fieldY(5).setText(row.text);
    rig.page.SaveData();
    EXPECT_EQ(rig.stage().PositionX(1), row.saved) << row.text;
    EXPECT_EQ(rig.stage().PositionY(6), row.saved) << row.text;
  }
}

TEST(StagePositions, SavingReachesTheRowPastTheLastAddressAndNoFurther) {
  StageRig rig;
  rig.stage().NoseCount = 10;
  for (std::int32_t address = 1; address <= 10; ++address) {
    rig.stage().PositionX(address, address);
    rig.stage().PositionY(address, -address);
  }
  rig.stage().NoseCount = 5;
  rig.page.LoadData();
  rig.page.SaveData();
  rig.stage().NoseCount = 10;
  for (std::int32_t address = 1; address <= 10; ++address) {
    EXPECT_EQ(rig.stage().PositionX(address), address == 6 ? 0 : address);
    EXPECT_EQ(rig.stage().PositionY(address), address == 6 ? 0 : -address);
  }
}

TEST(StagePositions, FollowTheUsersDecimalComma) {
  SetSystemNumberFormat({",", "."});
  {
    StageRig rig;
    rig.stage().PositionX(1, -1);
    rig.page.LoadData();
    EXPECT_EQ(rig.shownX(0), "-0,05");
    Enter(rig.fieldY(0), "0,375");
    EXPECT_EQ(rig.stage().PositionY(1), 8);
  }
  SetSystemNumberFormat(PointFormat());
}

TEST(StagePositions, TheEnterKeyIsSwallowedAndStores) {
  StageRig rig;
  TypeInto(rig.fieldX(2), "2.5");
  QTest::keyClick(&rig.fieldX(2), Qt::Key_Return);
  EXPECT_EQ(rig.stage().PositionX(3), 50);
  EXPECT_EQ(rig.stage().PositionY(3), 0);
  TypeInto(rig.fieldY(2), "");
  rig.stage().PositionY(3, 12);
  QTest::keyClick(&rig.fieldY(2), Qt::Key_Enter);
  EXPECT_EQ(rig.stage().PositionY(3), 0);
  TypeInto(rig.fieldY(2), "x");
  rig.prompts.ExpectBox(kWrongValue, box::kOk);
  QTest::keyClick(&rig.fieldY(2), Qt::Key_Enter);
}

}  // namespace
}  // namespace mortane::test

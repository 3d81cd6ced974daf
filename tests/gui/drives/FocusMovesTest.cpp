// Real moves of the focus drive from its page.
#include <QTest>

#include "gui/drives/DrivePages.h"

namespace mortane::test {
namespace {

Lines MoveFrom(std::int32_t position, std::int32_t steps) {
  return {"ZDriveDevice.Position -> " + std::to_string(position),
          "ZDriveDevice.Position = " + std::to_string(position + steps)};
}

TEST(FocusMoves, AMoveTeachesTheSelectedRow) {
  FocusRig rig;
  rig.Select(4);
  ClickButton(*rig.page.ButtonUpLarge);
  EXPECT_EQ(rig.shown(4), "22.5");
  EXPECT_EQ(rig.drive().Position(5), 450);
  Lines expected = MoveFrom(400, 50);
  expected.emplace_back("ZDriveDevice.Position -> 450");
  EXPECT_EQ(rig.journal.Lines(), expected);
}

TEST(FocusMoves, APositionOfExactlyZeroIsNeverTaught) {
  FocusRig rig;
  rig.instrument().zDrive.position = 1;
  rig.drive().Position(1, 77);
  rig.page.LoadData();
  rig.page.FrameZNose->show();
  rig.Select(0);
  ClickButton(*rig.page.ButtonDownSmall);
  EXPECT_EQ(rig.instrument().zDrive.position, 0);
  EXPECT_EQ(rig.shown(0), "0");
  EXPECT_EQ(rig.drive().Position(1), 77);
  ClickButton(*rig.page.ButtonDownSmall);
  EXPECT_EQ(rig.shown(0), "-0.05");
  EXPECT_EQ(rig.drive().Position(1), -1);
}

TEST(FocusMoves, AMoveThatFailsIsABoxAndTheRowShowsWhereTheDriveStands) {
  FocusRig rig;
  rig.Select(0);
  rig.faults.Add({"put ZDriveDevice.Position"});
  rig.prompts.ExpectBox("Move Error!!", box::kCritical);
  ClickButton(*rig.page.ButtonUpLarge);
  EXPECT_EQ(rig.shown(0), "20");
  EXPECT_EQ(rig.drive().Position(1), 400);
}

TEST(FocusMoves, APositionThatCannotBeReadIsZeroAndNotTaught) {
  FocusRig rig;
  rig.drive().Position(1, 77);
  rig.Select(0);
  rig.faults.Add({"get ZDriveDevice.Position", 2});
  rig.prompts.ExpectBox("GetPosition Error!!", box::kCritical);
  ClickButton(*rig.page.ButtonUpLarge);
  EXPECT_EQ(rig.shown(0), "0");
  EXPECT_EQ(rig.drive().Position(1), 77);
}

// rows

TEST(FocusRows, ASelectedRowAsksAndTeachesOnOk) {
  FocusRig rig;
  rig.Select(2, Answer::Ok);
  EXPECT_EQ(rig.prompts.Log(),
            (Lines{"pointer 11", "pointer 0", std::string("box 1 [Move Focus Postion]: ") + kTeach,
                   "flush"}));
  EXPECT_EQ(rig.journal.Lines(), Lines{"ZDriveDevice.Position -> 400"});
  EXPECT_EQ(rig.shown(2), "20");
  EXPECT_EQ(rig.drive().Position(3), 400);
}

TEST(FocusRows, ACancelledQuestionTeachesNothingButSelects) {
  FocusRig rig;
  rig.Select(2, Answer::Cancel);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_EQ(rig.drive().Position(3), 0);
  ClickButton(*rig.page.ButtonUpSmall);
  EXPECT_EQ(rig.drive().Position(3), 401);
}

TEST(FocusRows, AtZeroTheAnswerOkTeachesNothing) {
  FocusRig rig;
  rig.instrument().zDrive.position = 0;
  rig.drive().Position(3, 77);
  rig.Select(2, Answer::Ok);
  EXPECT_EQ(rig.shown(2), "0");
  EXPECT_EQ(rig.drive().Position(3), 77);
}

TEST(FocusRows, AClickOnTheSelectedRowAsksAgain) {
  FocusRig rig;
  rig.Select(2);
  rig.Select(2, Answer::Ok);
  EXPECT_EQ(rig.drive().Position(3), 400);
}

TEST(FocusRows, AnArrowKeySelectsAndDropsNoInput) {
  FocusRig rig;
  rig.Select(0);
  rig.page.optNosepiece->button(0)->setFocus();
  rig.prompts.ExpectBox(kTeach, box::kOkCancel, Answer::Cancel, kTeachCaption);
  QTest::keyClick(rig.page.optNosepiece->button(0), Qt::Key_Down);
  EXPECT_EQ(rig.page.optNosepiece->selected(), 1);
  EXPECT_EQ(rig.prompts.Log().back().substr(0, 3), "box");
}

TEST(FocusRows, TheRightButtonReleasedOverAnOptionDropsTheInputToo) {
  FocusRig rig;
  QAbstractButton* option = rig.page.optNosepiece->button(1);
  QTest::mouseClick(option, Qt::RightButton, {}, QPoint(5, 5));
  EXPECT_EQ(rig.prompts.Log(), Lines{"flush"});
  rig.Forget();
  QTest::mousePress(option, Qt::LeftButton, {}, QPoint(5, 5));
  QTest::mouseRelease(option, Qt::LeftButton, {}, QPoint(-50, 5));
  EXPECT_TRUE(rig.prompts.Log().empty()) << "released beside it";
  EXPECT_EQ(rig.page.optNosepiece->selected(), -1);
}

// the nosepiece's row

TEST(FocusNosePosition, SelectsTheRowWithoutAskingWhileTheSectionIsHidden) {
  PageRig rig(Standing(benches::Named("Harbour")));
  auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
  rig.journal.Clear();
  page.SetNosePosition();
  EXPECT_EQ(page.optNosepiece->selected(), 2);
  EXPECT_EQ(rig.prompts.Log(), (Lines{"pointer 11", "pointer 0"}));
  EXPECT_EQ(rig.journal.Lines(), Lines{"NosepieceDevice.Position -> 3"});
  page.FrameZNose->show();
  ClickButton(*page.ButtonUpLarge);
  EXPECT_EQ(rig.k70().CZDrive.Position(3), 450) << "the row is the selected one";
}

}  // namespace
}  // namespace mortane::test

// Real moves of the stage from its page.
#include <QTest>
#include <limits>

#include "gui/drives/DrivePages.h"

namespace mortane::test {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

TEST(StageMoves, AMoveShowsItsAxisInTheSelectedRowAndStoresNothing) {
  StageRig rig;
  rig.Select(1);
  ClickButton(*rig.page.ButtonRightSmall);
  EXPECT_EQ(rig.shownX(1), "-2.45");
  EXPECT_EQ(rig.shownY(1), "0");
  ClickButton(*rig.page.ButtonDownLarge);
  EXPECT_EQ(rig.shownY(1), "5.5");
  EXPECT_EQ(rig.stage().PositionX(2), 0);
  EXPECT_EQ(rig.stage().PositionY(2), 0);
  rig.page.SaveData();
  EXPECT_EQ(rig.stage().PositionX(2), -49);
  EXPECT_EQ(rig.stage().PositionY(2), 110);
}

TEST(StageMoves, APositionOfExactlyZeroIsShown) {
  StageRig rig;
  rig.Select(1);
  ClickButton(*rig.page.ButtonRightLarge);
  EXPECT_EQ(rig.shownX(1), "0");
}

// the move to a row

const Lines kStarted{"XYDriveDevice.PositionX -> -50",      "XYDriveDevice.PositionY -> 60",
                     "DeviceList.Item(1).AsyncMode = true", "XYDriveDevice.PositionX = 1000",
                     "XYDriveDevice.PositionY = -2000",     "DeviceList.Item(1).AsyncMode = false"};

Lines Reads(std::int32_t x, std::int32_t y) {
  return {"XYDriveDevice.PositionX -> " + std::to_string(x),
          "XYDriveDevice.PositionY -> " + std::to_string(y)};
}

const Lines kWaits{"DeviceList.Item(1).WaitMove(1) -> 0"};

class StageStart : public testing::Test {
 protected:
  StageStart() { rig.Select(0); }
  void Start(const char* x = "50", const char* y = "-100") {
    rig.fieldX(0).setText(x);
    rig.fieldY(0).setText(y);
    rig.Forget();
    ClickButton(*rig.page.ButtonStart);
  }

  StageRig rig;
};

TEST_F(StageStart, ShowsBothAxesWhereTheStageHasArrived) {
  rig.ExpectWatch(1156, Answer::TimedOut, rig.Pass(1156));
  Start();
  EXPECT_EQ(rig.journal.Lines(), kStarted + Reads(1000, -2000) + kWaits + Reads(1000, -2000));
  EXPECT_EQ(rig.shownX(0), "50");
  EXPECT_EQ(rig.shownY(0), "-100");
  EXPECT_EQ(rig.stage().PositionX(1), 0);
  EXPECT_EQ(rig.stage().PositionY(1), 0);
  EXPECT_EQ(rig.prompts.Log().back(), "flush");
}

TEST_F(StageStart, TheStageArrivesDuringTheWait) {
  rig.instrument().xyDrive.speed = 1;
  rig.ExpectWatch(1156, Answer::TimedOut, rig.Pass(1156));
  Start();
  EXPECT_EQ(rig.journal.Lines(), kStarted + Reads(1000, -1096) + kWaits + Reads(1000, -2000));
}

TEST_F(StageStart, APersonWhoAnswersLeavesTheMoveToItself) {
  rig.ExpectWatch(1156, Answer::Ok, rig.Pass(10));
  Start();
  EXPECT_EQ(rig.journal.Lines(), kStarted + Reads(150, -140));
  EXPECT_EQ(rig.shownX(0), "7.5");
  EXPECT_EQ(rig.shownY(0), "-7");
  rig.simulated.clock().Advance(1000);
  EXPECT_EQ(rig.stage().CurPositionY(), -2000);
}

TEST_F(StageStart, AfterAFailedWaitEachAxisMustBeAtItsTarget) {
  struct Row {
    std::int32_t x;
    std::int32_t y;
    bool again;
  };
  for (const Row& row : {Row{1000, -2000, false}, Row{999, -2000, true}, Row{1000, -1999, true}}) {
    StageRig own;
    own.Select(0);
    own.fieldX(0).setText("50");
    own.fieldY(0).setText("-100");
    own.faults.Add({"DeviceList.Item(1).WaitMove"});
    own.ExpectWatch(1156, Answer::TimedOut, [&] {
      own.simulated.clock().Advance(1156);
      own.stage().CurPositionX();
      own.stage().CurPositionY();
      own.instrument().xyDrive.positionX = row.x;
      own.instrument().xyDrive.positionY = row.y;
    });
    own.prompts.ExpectBox("MoveAsyncEnd Error!!", box::kCritical);
    if (row.again) own.ExpectWatch(1156, Answer::Ok);
    ClickButton(*own.page.ButtonStart);
    EXPECT_TRUE(own.prompts.AllAnswersUsed()) << row.x;
  }
}

TEST_F(StageStart, AStageThatNeverArrivesEndsWithTheWait) {
  rig.simulated.OnChange([this](const Bench&) {
    rig.instrument().xyDrive.positionX = -50;
    rig.instrument().xyDrive.positionY = 60;
  });
  rig.ExpectWatch(1156, Answer::TimedOut, rig.Pass(1156));
  Start();
  EXPECT_EQ(rig.journal.Lines(), kStarted + Reads(-50, 60) + kWaits + Reads(-50, 60));
  EXPECT_EQ(rig.shownX(0), "-2.5");
}

TEST_F(StageStart, TheTimesOfBothAxesAreAdded) {
  struct Row {
    std::int32_t x;
    std::int32_t y;
    int waitMs;
  };
  for (const Row& row : {Row{0, 0, 1000}, Row{10, 0, 1000}, Row{10, 20, 1002}, Row{-30, 0, 1002},
                         Row{400, -400, 1040}, Row{kLargest, kSmallest, 214749365}}) {
    StageRig own;
    own.Select(0);
    own.instrument().xyDrive.positionX = row.x;
    own.instrument().xyDrive.positionY = row.y;
    own.fieldX(0).setText("0");
    own.fieldY(0).setText("0");
    own.ExpectWatch(row.waitMs, Answer::Ok);
    own.page.ButtonStart->click();
    EXPECT_TRUE(own.prompts.AllAnswersUsed()) << row.x;
  }
}

TEST(DriveButtons, TellTheirStepInMicrometres) {
  FocusRig focus;
  EXPECT_EQ(focus.page.ButtonUpLarge->toolTip(), "Up, large step: 2.5 \u00B5m");
  EXPECT_EQ(focus.page.ButtonDownSmall->toolTip(), "Down, small step: 0.05 \u00B5m");
  StageRig stage;
  EXPECT_EQ(stage.page.ButtonLeftLarge->toolTip(), "Left, large step: 2.5 \u00B5m");
  EXPECT_EQ(stage.page.ButtonRightSmall->toolTip(), "Right, small step: 0.05 \u00B5m");
}

}  // namespace
}  // namespace mortane::test

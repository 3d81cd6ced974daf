// The move of the focus drive to the position of a row, with its box.
#include <QTest>

#include <limits>

#include "gui/drives/DrivePages.h"

namespace mortane::test {
namespace {

const char* const kReads400 = "ZDriveDevice.Position -> 400";
const char* const kWaits = "DeviceList.Item(1).WaitMove(1) -> 0";

Lines Started(const std::string& target) {
  return {kReads400, "DeviceList.Item(1).AsyncMode = true", "ZDriveDevice.Position = " + target,
          "DeviceList.Item(1).AsyncMode = false"};
}

class FocusStart : public testing::Test {
 protected:
  // Row 0 is selected and shows the text.
  FocusStart() { rig.Select(0); }
  void Start(const char* text) {
    rig.field(0).setText(text);
    rig.Forget();
    ClickButton(*rig.page.ButtonStart);
  }

  FocusRig rig;
};

TEST_F(FocusStart, ADriveThatArrivesDuringTheBoxIsWaitedForAllTheSame) {
  rig.ExpectWatch(1080, Answer::TimedOut, rig.Pass(1080));
  Start("100");
  EXPECT_EQ(rig.journal.Lines(), (Started("2000") + Lines{"ZDriveDevice.Position -> 2000", kWaits,
                                                          "ZDriveDevice.Position -> 2000"}));
  EXPECT_EQ(rig.shown(0), "100");
  EXPECT_EQ(rig.drive().Position(1), 0) << "nothing is taught";
}

TEST_F(FocusStart, TheLibraryBlocksAgainBeforeTheBoxIsShown) {
  Lines before;
  rig.ExpectWatch(1080, Answer::Ok, [&] { before = rig.journal.Lines(); });
  Start("100");
  EXPECT_EQ(before, Started("2000"));
}

TEST_F(FocusStart, ADriveThatIsUnderWayAfterTheBoxArrivesDuringTheWait) {
  rig.instrument().zDrive.speed = 1;
  rig.ExpectWatch(1080, Answer::TimedOut, rig.Pass(1080));
  Start("100");
  EXPECT_EQ(rig.journal.Lines(), (Started("2000") + Lines{"ZDriveDevice.Position -> 1480", kWaits,
                                                          "ZDriveDevice.Position -> 2000"}));
  EXPECT_EQ(rig.shown(0), "100");
}

TEST_F(FocusStart, APersonWhoAnswersLeavesTheMoveToItself) {
  rig.ExpectWatch(1080, Answer::Ok, rig.Pass(40));
  Start("100");
  EXPECT_EQ(rig.journal.Lines(), (Started("2000") + Lines{"ZDriveDevice.Position -> 1200"}));
  EXPECT_EQ(rig.shown(0), "60");
  EXPECT_EQ(rig.drive().Position(1), 0);
  rig.simulated.clock().Advance(40);
  EXPECT_EQ(rig.drive().CurPosition(), 2000) << "the drive arrives all the same";
}

TEST_F(FocusStart, ABoxThatIsClosedInAnyOtherWayLeavesTheMoveToo) {
  rig.ExpectWatch(1080, Answer::Cancel);
  Start("100");
  EXPECT_EQ(rig.journal.Lines(), (Started("2000") + Lines{kReads400}));
}

// A drive that slips back to 400 whenever it has moved.
TEST_F(FocusStart, ADriveThatNeverArrivesEndsWithTheWait) {
  rig.simulated.OnChange([this](const Bench&) { rig.instrument().zDrive.position = 400; });
  rig.ExpectWatch(1080, Answer::TimedOut, rig.Pass(1080));
  Start("100");
  EXPECT_EQ(rig.journal.Lines(), (Started("2000") + Lines{kReads400, kWaits, kReads400}));
  EXPECT_EQ(rig.shown(0), "20");
}

TEST_F(FocusStart, ADriveThatNeverArrivesAndCannotBeWaitedForAsksUntilItIsAnswered) {
  rig.simulated.OnChange([this](const Bench&) { rig.instrument().zDrive.position = 400; });
  rig.faults.Add({"DeviceList.Item(1).WaitMove"});
  for (int round = 0; round < 5; ++round) {
    rig.ExpectWatch(1080, Answer::TimedOut, rig.Pass(1080));
    rig.prompts.ExpectBox("MoveAsyncEnd Error!!", box::kCritical);
  }
  rig.ExpectWatch(1080, Answer::Ok);
  Start("100");
  const std::string failed = std::string("DeviceList.Item(1).WaitMove(1)") + kFailed;
  Lines expected = Started("2000");
  for (int round = 0; round < 5; ++round) expected = expected + Lines{kReads400, failed};
  EXPECT_EQ(rig.journal.Lines(), expected + Lines{kReads400});
}

TEST_F(FocusStart, ADriveThatHasArrivedNeedsNoSecondBoxAfterAFailedWait) {
  rig.faults.Add({"DeviceList.Item(1).WaitMove"});
  rig.ExpectWatch(1080, Answer::TimedOut, rig.Pass(1080));
  rig.prompts.ExpectBox("MoveAsyncEnd Error!!", box::kCritical);
  Start("100");
  EXPECT_EQ(rig.shown(0), "100");
}

TEST_F(FocusStart, AWaitThatSucceedsInTheSecondRoundEndsIt) {
  rig.instrument().zDrive.speed = 1;
  rig.faults.Add({"DeviceList.Item(1).WaitMove", 1});
  rig.ExpectWatch(1080, Answer::TimedOut);
  rig.prompts.ExpectBox("MoveAsyncEnd Error!!", box::kCritical);
  rig.ExpectWatch(1080, Answer::TimedOut);
  Start("100");
  EXPECT_EQ(rig.shown(0), "100");
}

TEST_F(FocusStart, AMoveThatCannotBeStartedIsABoxAndTheOtherOneFollows) {
  rig.faults.Add({"put ZDriveDevice.Position"});
  rig.prompts.ExpectBox("MoveAsyncStart Error!!", box::kCritical);
  rig.ExpectWatch(1080, Answer::TimedOut);
  Start("100");
  EXPECT_EQ(rig.shown(0), "20");
  EXPECT_EQ(rig.journal.Writes().back(), "DeviceList.Item(1).AsyncMode = false");
}

struct TimeRow {
  std::int32_t position;
  const char* text;
  int waitMs;
};

TEST_F(FocusStart, TheTimeIsAMillisecondPerMicrometreAndASecond) {
  for (const TimeRow& row :
       {TimeRow{0, "0", 1000}, TimeRow{10, "0", 1000}, TimeRow{30, "0", 1002},
        TimeRow{0, "0.5", 1000}, TimeRow{0, "1.5", 1002}, TimeRow{0, "1.55", 1002},
        TimeRow{-400, "20", 1040}, TimeRow{400, "-20", 1040},
        TimeRow{std::numeric_limits<std::int32_t>::max(), "-107374182.4", 214749365},
        TimeRow{std::numeric_limits<std::int32_t>::min(), "107374182.35", 214749365}}) {
    rig.instrument().zDrive.position = row.position;
    rig.ExpectWatch(row.waitMs, Answer::Ok);
    Start(row.text);
    EXPECT_TRUE(rig.prompts.AllAnswersUsed()) << row.text;
    rig.simulated.clock().Advance(1000000000);
    rig.drive().CurPosition();
  }
}

TEST_F(FocusStart, TheTimeIsThatOfTheFirstRoundInEachRound) {
  rig.instrument().zDrive.speed = 1;
  rig.faults.Add({"DeviceList.Item(1).WaitMove"});
  rig.ExpectWatch(1080, Answer::TimedOut, rig.Pass(1080));
  rig.prompts.ExpectBox("MoveAsyncEnd Error!!", box::kCritical);
  rig.ExpectWatch(1080, Answer::Ok);
  Start("100");
  EXPECT_EQ(rig.shown(0), "74");
}

TEST_F(FocusStart, NoSettingMovesToZero) {
  rig.drive().Position(1, -900000);
  rig.page.LoadData();
  rig.page.FrameZNose->show();
  rig.Forget();
  rig.ExpectWatch(1020, Answer::TimedOut);
  rig.page.ButtonStart->click();
  EXPECT_EQ(rig.instrument().zDrive.position, 0);
  EXPECT_EQ(rig.shown(0), "0");
}

TEST_F(FocusStart, AtExactlyZeroTheRowShowsZero) {
  rig.drive().Position(1, 77);
  rig.ExpectWatch(1020, Answer::TimedOut);
  Start("0");
  EXPECT_EQ(rig.shown(0), "0");
}

}  // namespace
}  // namespace mortane::test

// Moves of both drives, on a simulated drive that takes its time.
#include <limits>

#include "drives/MotionRig.h"

namespace mortane::test {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

struct EndRow {
  std::int32_t position;
  std::int32_t delta;
  bool moves;
};

TEST(DriveMotion, AMoveBeyond32BitsIsAnErrorAndWritesNothing) {
  for (const EndRow& row : {EndRow{kLargest, 1, false}, EndRow{kLargest - 49, 50, false},
                            EndRow{kLargest - 50, 50, true}, EndRow{kLargest, 0, true},
                            EndRow{kSmallest, -1, false}, EndRow{kSmallest + 49, -50, false},
                            EndRow{kSmallest + 50, -50, true}, EndRow{kSmallest, kSmallest, false},
                            EndRow{kLargest, kLargest, false}, EndRow{kLargest, kSmallest, true}}) {
    MotionRig rig;
    rig.instrument().zDrive.position = row.position;
    rig.instrument().xyDrive.positionX = row.position;
    rig.instrument().xyDrive.positionY = row.position;
    if (!row.moves) {
      for (const char* box : {"Move Error!!", "MoveX Error!!", "MoveY Error!!"}) {
        rig.prompts.ExpectBox(box, 16);
      }
    }
    rig.z().Move(row.delta);
    rig.xy().MoveX(row.delta);
    rig.xy().MoveY(row.delta);
    EXPECT_EQ(rig.journal.Writes().size(), row.moves ? 3U : 0U) << row.position << row.delta;
    const std::int32_t expected = row.moves ? row.position + row.delta : row.position;
    EXPECT_EQ(rig.instrument().zDrive.position, expected);
    EXPECT_EQ(rig.instrument().xyDrive.positionX, expected);
    EXPECT_EQ(rig.instrument().xyDrive.positionY, expected);
  }
}

TEST(DriveMotion, AMoveBlocksUntilTheDriveHasArrived) {
  MotionRig rig;
  rig.z().Move(2000);
  EXPECT_EQ(rig.z().CurPosition(), 2000);
  rig.xy().MoveX(50);
  rig.xy().MoveX(-1);
  rig.xy().MoveY(-50);
  EXPECT_EQ(rig.xy().CurPositionX(), 49);
  EXPECT_EQ(rig.xy().CurPositionY(), -50);
}

TEST(DriveMotion, AnAsynchronousMoveReturnsAtOnceAndEndsWhenItIsWaitedFor) {
  MotionRig rig;
  rig.z().MoveAsyncStart(1000);
  EXPECT_EQ(rig.simulated.clock().Now(), 0);
  EXPECT_EQ(rig.z().CurPosition(), 0);
  rig.simulated.clock().Advance(10);
  EXPECT_EQ(rig.z().CurPosition(), 200);
  EXPECT_TRUE(rig.z().IsMoveAsyncEnd());
  EXPECT_EQ(rig.simulated.clock().Now(), 50);
  EXPECT_EQ(rig.z().CurPosition(), 1000);
}

TEST(DriveMotion, AnAsynchronousMoveMayArriveBeforeItIsWaitedFor) {
  MotionRig rig;
  rig.z().MoveAsyncStart(-1000);
  rig.simulated.clock().Advance(1050);
  EXPECT_EQ(rig.z().CurPosition(), -1000);
  EXPECT_TRUE(rig.z().IsMoveAsyncEnd());
  EXPECT_EQ(rig.simulated.clock().Now(), 1050);
}

TEST(DriveMotion, BothAxesOfTheStageMoveAtTheSameTime) {
  MotionRig rig;
  rig.xy().MoveAsyncStart(400, -2000);
  rig.simulated.clock().Advance(10);
  EXPECT_EQ(rig.xy().CurPositionX(), 200);
  EXPECT_EQ(rig.xy().CurPositionY(), -200);
  EXPECT_TRUE(rig.xy().IsMoveAsyncEnd());
  EXPECT_EQ(rig.simulated.clock().Now(), 100);
  EXPECT_EQ(rig.xy().CurPositionX(), 400);
  EXPECT_EQ(rig.xy().CurPositionY(), -2000);
}

TEST(DriveMotion, AfterAnAsynchronousStartTheDeviceBlocksAgain) {
  MotionRig rig;
  rig.z().MoveAsyncStart(1000);
  rig.xy().MoveX(4000);
  EXPECT_EQ(rig.xy().CurPositionX(), 4000);
}

// The first two calls look the device up; only from then on is there a mode to set back.
TEST(DriveMotion, TheDeviceBlocksAgainAfterEachCallOfAnAsynchronousStartThatFails) {
  const std::vector<std::function<void(DriveUnits&)>> starts{
      [](DriveUnits& units) { units.CZDrive.MoveAsyncStart(900); },
      [](DriveUnits& units) { units.CXYDrive.MoveAsyncStart(900, 900); }};
  for (const auto& start : starts) {
    FailEachCallOf(MakeMotionRig, start, [&](Rig& rig, std::size_t k) {
      rig.prompts.ExpectBox("MoveAsyncStart Error!!", 16);
      start(rig.units);
      const Lines writes = rig.journal.Writes();
      const bool lookedUp = k > 2;
      EXPECT_EQ(!writes.empty() && writes.back() == "DeviceList.Item(1).AsyncMode = false",
                lookedUp)
          << "call " << k;
      const std::int32_t before = rig.units.CXYDrive.CurPositionY();
      rig.units.CXYDrive.MoveY(5000);
      EXPECT_EQ(rig.units.CXYDrive.CurPositionY(), before + 5000) << "call " << k;
    });
  }
}

TEST(DriveMotion, TheBlockingModeIsSetOnADeviceThatIsLookedUpAgain) {
  for (const bool focus : {true, false}) {
    MotionRig rig;
    rig.faults.Add({"DeviceList.Item(1)", 2});
    rig.prompts.ExpectBox("MoveAsyncStart Error!!", 16);
    if (focus) rig.z().MoveAsyncStart(1000);
    if (!focus) rig.xy().MoveAsyncStart(1000, 0);
    EXPECT_EQ(rig.faults.Hits(), 1U) << focus;
    EXPECT_EQ(rig.journal.Writes().back(), "DeviceList.Item(1).AsyncMode = false") << focus;
  }
}

TEST(DriveMotion, ADeviceThatRefusesTheBlockingModeTwiceIsStillOneBox) {
  MotionRig rig;
  rig.faults.Add({"put DeviceList.Item.AsyncMode", 2});
  rig.faults.Add({"put DeviceList.Item.AsyncMode", 3});
  rig.prompts.ExpectBox("MoveAsyncStart Error!!", 16);
  rig.z().MoveAsyncStart(1000);
  EXPECT_EQ(rig.journal.Writes(),
            (Lines{"DeviceList.Item(1).AsyncMode = true", "ZDriveDevice.Position = 1000",
                   std::string("DeviceList.Item(1).AsyncMode = false") + kFailed,
                   std::string("DeviceList.Item(1).AsyncMode = false") + kFailed}));
}

TEST(DriveMotion, AStageWhoseFirstAxisFailsDoesNotStartTheSecond) {
  MotionRig rig;
  rig.faults.Add({"put XYDriveDevice.PositionX"});
  rig.prompts.ExpectBox("MoveAsyncStart Error!!", 16);
  rig.xy().MoveAsyncStart(5, 6);
  EXPECT_EQ(rig.journal.Writes(), (Lines{"DeviceList.Item(1).AsyncMode = true",
                                         std::string("XYDriveDevice.PositionX = 5") + kFailed,
                                         "DeviceList.Item(1).AsyncMode = false"}));
}

TEST(DriveMotion, AWaitThatFailsIsFalseAndSaysSoEachTime) {
  MotionRig rig;
  rig.z().MoveAsyncStart(1000);
  rig.journal.Clear();
  rig.faults.Add({"DeviceList.Item(1).WaitMove"});
  for (int round = 0; round < 3; ++round) {
    rig.prompts.ExpectBox("MoveAsyncEnd Error!!", 16);
    EXPECT_FALSE(rig.z().IsMoveAsyncEnd());
  }
  EXPECT_EQ(rig.journal.Lines(), Lines(3, std::string("DeviceList.Item(1).WaitMove(1)") + kFailed));
}

TEST(DriveMotion, AStopChangesNothingAndTheDriveArrives) {
  MotionRig rig;
  rig.z().MoveAsyncStart(1000);
  rig.xy().MoveAsyncStart(2000, 0);
  rig.simulated.clock().Advance(10);
  rig.journal.Clear();
  const Bench before = rig.simulated.bench();
  rig.z().MoveStop();
  rig.xy().MoveStop();
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_TRUE(rig.simulated.bench() == before);
  rig.simulated.clock().Advance(90);
  EXPECT_EQ(rig.z().CurPosition(), 1000);
  EXPECT_EQ(rig.xy().CurPositionX(), 2000);
}

}  // namespace
}  // namespace mortane::test

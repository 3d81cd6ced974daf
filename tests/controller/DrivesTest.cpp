#include <gtest/gtest.h>

#include <limits>
#include <optional>

#include "controller/ControllerError.h"
#include "controller/DriveRig.h"
#include "controller/simulator/RealClock.h"

namespace mortane::controller::test {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

TEST(Drives, ArriveAtOnceUnlessToldToReturn) {
  DriveRig rig;
  rig.Z().PutPosition(40000);
  rig.XY().PutPositionX(-300);
  rig.XY().PutPositionY(7);
  EXPECT_EQ(rig.Z().Position().Number(), 40000);
  EXPECT_EQ(rig.XY().PositionX().Number(), -300);
  EXPECT_EQ(rig.XY().PositionY().Number(), 7);
  EXPECT_EQ(rig.library.clock().Now(), 0);
}

TEST(Drives, MoveOneMicrometreInAMillisecondWhenToldToReturn) {
  struct Row {
    std::int32_t target;
    std::int64_t ms;
    std::int32_t position;
  };
  for (const Row& row :
       {Row{200, 0, 0}, Row{200, 3, 60}, Row{200, 9, 180}, Row{200, 10, 200}, Row{200, 5000, 200},
        Row{-200, 3, -60}, Row{-210, 10, -200}, Row{-210, 11, -210}, Row{0, 4, 0}}) {
    DriveRig rig;
    rig.Entry().PutAsyncMode(true);
    rig.Z().PutPosition(row.target);
    rig.Entry().PutAsyncMode(false);
    rig.library.clock().Advance(row.ms);
    EXPECT_EQ(rig.Z().Position().Number(), row.position) << row.target << " after " << row.ms;
  }
}

TEST(Drives, EndAMoveWhenItIsWaitedFor) {
  DriveRig rig;
  rig.Entry().PutAsyncMode(true);
  rig.Z().PutPosition(1000);
  rig.XY().PutPositionX(4000);
  rig.XY().PutPositionY(-20);
  rig.Entry().PutAsyncMode(false);
  EXPECT_EQ(rig.XY().PositionX().Number(), 0);
  rig.Entry().WaitMove();
  EXPECT_EQ(rig.Z().Position().Number(), 1000);
  EXPECT_EQ(rig.XY().PositionX().Number(), 4000);
  EXPECT_EQ(rig.XY().PositionY().Number(), -20);
  EXPECT_EQ(rig.library.clock().Now(), 200);
}

TEST(Drives, WaitForNothingWithoutAMove) {
  DriveRig rig;
  rig.Entry().WaitMove();
  EXPECT_EQ(rig.library.clock().Now(), 0);
}

TEST(Drives, StartANewMoveFromWhereTheyAre) {
  DriveRig rig;
  rig.Entry().PutAsyncMode(true);
  rig.Z().PutPosition(1000);
  rig.library.clock().Advance(10);
  rig.Z().PutPosition(0);
  rig.library.clock().Advance(4);
  EXPECT_EQ(rig.Z().Position().Number(), 120);
  rig.Entry().PutAsyncMode(false);
  rig.Z().PutPosition(5);
  EXPECT_EQ(rig.Z().Position().Number(), 5);
}

TEST(Drives, TellTheBenchOfAMoveWhenItHasEnded) {
  DriveRig rig;
  rig.CountChanges();
  rig.Entry().PutAsyncMode(true);
  rig.Z().PutPosition(1000);
  rig.library.clock().Advance(10);
  EXPECT_EQ(rig.Z().Position().Number(), 200);
  EXPECT_EQ(rig.changes, 0);
  rig.Entry().WaitMove();
  EXPECT_EQ(rig.changes, 1);
  EXPECT_EQ(rig.instrument().zDrive.position, 1000);
}

TEST(Drives, CrossTheWholeRangeWithoutOverflow) {
  DriveRig rig;
  rig.instrument().zDrive.position = kSmallest;
  rig.Entry().PutAsyncMode(true);
  rig.Z().PutPosition(kLargest);
  rig.library.clock().Advance(214748364);
  EXPECT_EQ(rig.Z().Position().Number(), kLargest - 15);
  rig.library.clock().Advance(1);
  EXPECT_EQ(rig.Z().Position().Number(), kLargest);
}

TEST(Drives, MoveWithTheSpeedOfTheirData) {
  DriveRig rig;
  rig.instrument().zDrive.speed = 7;
  rig.instrument().xyDrive.speed = 1000;
  rig.Entry().PutAsyncMode(true);
  rig.Z().PutPosition(-70);
  rig.XY().PutPositionX(2500);
  rig.XY().PutPositionY(100);
  rig.library.clock().Advance(1);
  EXPECT_EQ(rig.Z().Position().Number(), -7);
  EXPECT_EQ(rig.XY().PositionX().Number(), 1000);
  EXPECT_EQ(rig.XY().PositionY().Number(), 100);
  rig.Entry().WaitMove();
  EXPECT_EQ(rig.library.clock().Now(), 10);
}

// The ends of the travel that a row has, and a target.
struct TravelRow {
  std::optional<std::int32_t> lowest;
  std::optional<std::int32_t> highest;
  std::int32_t target;
  bool reached;
};

constexpr TravelRow kTravels[] = {
    {{}, {}, kLargest, true},   {{}, {}, kSmallest, true},    {-300, 200, -300, true},
    {-300, 200, 200, true},     {-300, 200, -301, false},     {-300, 200, 201, false},
    {-300, {}, kLargest, true}, {-300, {}, kSmallest, false}, {{}, 200, 201, false},
    {{}, 200, kSmallest, true}, {-300, 200, kLargest, false},
};

TEST(Drives, RefuseATargetOutsideTheirTravelAndStay) {
  for (const TravelRow& row : kTravels) {
    DriveRig rig;
    ZDriveData& z = rig.instrument().zDrive;
    z.lowestPosition = row.lowest;
    z.highestPosition = row.highest;
    XYDriveData& xy = rig.instrument().xyDrive;
    xy.lowestX = xy.lowestY = row.lowest;
    xy.highestX = xy.highestY = row.highest;
    const auto move = [&] {
      rig.Z().PutPosition(row.target);
      rig.XY().PutPositionX(row.target);
      rig.XY().PutPositionY(row.target);
    };
    if (row.reached) {
      EXPECT_NO_THROW(move()) << row.target;
    } else {
      EXPECT_THROW(rig.Z().PutPosition(row.target), ControllerError) << row.target;
      EXPECT_THROW(rig.XY().PutPositionX(row.target), ControllerError) << row.target;
      EXPECT_THROW(rig.XY().PutPositionY(row.target), ControllerError) << row.target;
    }
    const std::int32_t expected = row.reached ? row.target : 0;
    EXPECT_EQ(rig.Z().Position().Number(), expected);
    EXPECT_EQ(rig.XY().PositionX().Number(), expected);
    EXPECT_EQ(rig.XY().PositionY().Number(), expected);
  }
}

TEST(Drives, HaveATravelForEachAxis) {
  DriveRig rig;
  rig.instrument().xyDrive.highestX = 10;
  rig.instrument().xyDrive.lowestY = -10;
  EXPECT_THROW(rig.XY().PutPositionX(11), ControllerError);
  EXPECT_NO_THROW(rig.XY().PutPositionX(-11));
  EXPECT_THROW(rig.XY().PutPositionY(-11), ControllerError);
  EXPECT_NO_THROW(rig.XY().PutPositionY(11));
  EXPECT_NO_THROW(rig.Z().PutPosition(11));
}

TEST(Drives, BlockAgainAfterANewConnection) {
  DriveRig rig;
  rig.Entry().PutAsyncMode(true);
  rig.Entry().Disconnect();
  rig.Entry().Connect();
  rig.Z().PutPosition(1000);
  EXPECT_EQ(rig.Z().Position().Number(), 1000);
  rig.Entry().PutAsyncMode(true);
  rig.Entry().Connect();
  rig.Z().PutPosition(0);
  EXPECT_EQ(rig.Z().Position().Number(), 0);
}

// Every wait is written down.
struct WatchedClock : Clock {
  std::int64_t Now() const override { return now; }
  void WaitUntil(std::int64_t time) override {
    waits.push_back(time);
    now = time;
  }
  std::int64_t now = 1000;
  std::vector<std::int64_t> waits;
};

TEST(Drives, GoByTheClockThatTheLibraryIsGiven) {
  const auto clock = std::make_shared<WatchedClock>();
  SimulatedLibrary library(benches::Named("Harbour"), clock);
  const Microscope root = ConnectedRoot(library, 1);
  root.DeviceList().Item(1).PutAsyncMode(true);
  root.ZDriveDevice().PutPosition(2000);
  clock->now += 40;
  EXPECT_EQ(root.ZDriveDevice().Position().Number(), 800);
  root.DeviceList().Item(1).WaitMove();
  EXPECT_EQ(clock->waits, std::vector<std::int64_t>{1100});
  EXPECT_EQ(root.ZDriveDevice().Position().Number(), 2000);
}

TEST(SimulatedClock, NeverGoesBack) {
  SimulatedClock clock;
  clock.Advance(50);
  clock.WaitUntil(20);
  EXPECT_EQ(clock.Now(), 50);
  clock.WaitUntil(70);
  EXPECT_EQ(clock.Now(), 70);
}

TEST(RealClock, ComesBackFromAWaitWhenItsTimeHasCome) {
  RealClock clock;
  const std::int64_t before = clock.Now();
  clock.WaitUntil(before);
  clock.WaitUntil(before + 3);
  EXPECT_GE(clock.Now(), before + 3);
}

}  // namespace
}  // namespace mortane::controller::test

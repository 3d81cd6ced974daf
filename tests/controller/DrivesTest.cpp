#include <gtest/gtest.h>

#include <limits>

#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

struct DriveRig : SimulatedRig {
  DriveRig() : SimulatedRig("Harbour") {}
  DeviceEntry Entry() const { return root.DeviceList().Item(0); }
  ZDriveDevice Z() const { return root.ZDriveDevice(); }
  XYDriveDevice XY() const { return root.XYDriveDevice(); }
};

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

TEST(ZDrive, KeepsItsSettings) {
  DriveRig rig;
  const ZDriveDevice drive = rig.Z();
  drive.PutKnobAuto(1);
  drive.PutFocusCompensation(2);
  drive.PutLowerLimit(1);
  drive.PutMoveProfile(9);
  drive.PutMoveOption(4);
  EXPECT_EQ(drive.KnobAuto(), 1);
  EXPECT_EQ(drive.FocusCompensation(), 2);
  EXPECT_EQ(drive.LowerLimit(), 1);
  EXPECT_EQ(drive.UpperLimit(), 0);
  EXPECT_EQ(drive.KnobSensitivity(), 1);
  EXPECT_EQ(rig.instrument().zDrive, (ZDriveData{0, 1, 1, 9, 4, 2, 1, 0}));
}

TEST(XYDrive, KeepsItsSettings) {
  DriveRig rig;
  const XYDriveDevice drive = rig.XY();
  drive.PutKnobAuto(1);
  drive.PutFocusCompensation(2);
  drive.PutMoveProfile(9);
  drive.PutHandleMode(1);
  EXPECT_EQ(drive.KnobAuto(), 1);
  EXPECT_EQ(drive.FocusCompensation(), 2);
  EXPECT_EQ(drive.HandleMode(), 1);
  EXPECT_EQ(drive.KnobSensitivity(), 1);
  EXPECT_EQ(rig.instrument().xyDrive, (XYDriveData{0, 0, 1, 1, 9, 2, 1}));
}

TEST(Drives, HaveMembersThatCanOnlyBeReadOrOnlyWritten) {
  DriveRig rig;
  const ObjectRef z = rig.Z().Object();
  const ObjectRef xy = rig.XY().Object();
  EXPECT_THROW(z->Put("KnobSensitivity", 2), ControllerError);
  EXPECT_THROW(z->Put("UpperLimit", 1), ControllerError);
  EXPECT_THROW(z->Get("MoveProfile"), ControllerError);
  EXPECT_THROW(z->Get("MoveOption"), ControllerError);
  EXPECT_THROW(xy->Put("KnobSensitivity", 2), ControllerError);
  EXPECT_THROW(xy->Get("MoveProfile"), ControllerError);
  EXPECT_THROW(xy->Put("MoveOption", 0), ControllerError);
}

}  // namespace
}  // namespace mortane::controller::test

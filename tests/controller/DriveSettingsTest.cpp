// What the drives hold and who may write it; how they move: DrivesTest.
#include <gtest/gtest.h>

#include "controller/ControllerError.h"
#include "controller/DriveRig.h"

namespace mortane::controller::test {
namespace {

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
  ZDriveData expected;
  expected.knobAuto = 1;
  expected.moveProfile = 9;
  expected.moveOption = 4;
  expected.focusCompensation = 2;
  expected.lowerLimit = 1;
  EXPECT_EQ(rig.instrument().zDrive, expected);
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
  XYDriveData expected;
  expected.knobAuto = 1;
  expected.moveProfile = 9;
  expected.focusCompensation = 2;
  expected.handleMode = 1;
  EXPECT_EQ(rig.instrument().xyDrive, expected);
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

TEST(Drives, ThatAreSensedOnlyTakeNoOrders) {
  DriveRig rig;
  rig.instrument().Accessory(accessory::kZFocusDrive).readOnly = true;
  rig.instrument().Accessory(accessory::kXYStage).readOnly = true;
  const Bench before = rig.library.bench();
  EXPECT_THROW(rig.Z().PutMoveProfile(9), ControllerError);
  EXPECT_THROW(rig.Z().PutMoveOption(0), ControllerError);
  EXPECT_THROW(rig.Z().PutPosition(1), ControllerError);
  EXPECT_THROW(rig.XY().PutMoveProfile(9), ControllerError);
  EXPECT_THROW(rig.XY().PutPositionX(1), ControllerError);
  EXPECT_THROW(rig.XY().PutPositionY(1), ControllerError);
  EXPECT_EQ(rig.library.bench(), before);
  EXPECT_EQ(rig.Z().Position().Number(), 0);
  EXPECT_EQ(rig.XY().FocusCompensation(), 3);
}

TEST(Drives, ThatAreNotFittedAnswerNothing) {
  DriveRig rig;
  const ZDriveDevice z = rig.Z();
  rig.instrument().Accessory(accessory::kZFocusDrive).state = 0;
  EXPECT_THROW(z.Position(), ControllerError);
  EXPECT_THROW(z.PutPosition(1), ControllerError);
  EXPECT_THROW(z.PutMoveOption(0), ControllerError);
  EXPECT_THROW(z.KnobAuto(), ControllerError);
}

}  // namespace
}  // namespace mortane::controller::test

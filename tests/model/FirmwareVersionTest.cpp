#include "model/FirmwareVersion.h"

#include <gtest/gtest.h>

#include "model/TurretModel.h"

namespace mortane::test {
namespace {

TEST(HasSwitchFunctions, FromOnePointThreeOnAndOnTheSimulator) {
  EXPECT_EQ(kFullFirmware, 1.3);
  for (const double version : {-2.0, 1.3, 1.31, 2.0, 10.0}) {
    EXPECT_TRUE(HasSwitchFunctions(version)) << version;
  }
  for (const double version : {-3.0, -1.0, 0.0, 1.0, 1.29}) {
    EXPECT_FALSE(HasSwitchFunctions(version)) << version;
  }
}

TEST(FirmwareVersion, OfAUnitThatDoesNotAnswerIsMinusOne) {
  Rig rig("Harbour");
  rig.Connect();
  const double version = FirmwareVersion(rig.units, controllerunit::kBody);
  EXPECT_GT(version, 0);
  EXPECT_EQ(version, rig.units.ReadMicVer(controllerunit::kBody));
  rig.faults.Add({"ControllerVersion"});
  EXPECT_EQ(FirmwareVersion(rig.units, controllerunit::kBody), -1);
  EXPECT_EQ(FirmwareVersion(rig.units, 7), -1);
}

}  // namespace
}  // namespace mortane::test

#include <gtest/gtest.h>

#include "controller/ControllerError.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

TEST(ControllerUnits, ArePresentAsTheBenchSays) {
  SimulatedRig rig("Pair");
  rig.instrument().Unit(3).present = 2;
  const std::array<std::int32_t, 7> expected{1, 1, 2, 0, 0, 0, 0};
  for (std::int32_t unit = 1; unit <= 7; ++unit) {
    EXPECT_EQ(rig.root.ControllerPresent(unit), expected[static_cast<std::size_t>(unit) - 1]);
  }
}

TEST(ControllerUnits, TellTheirVersionAsItStands) {
  for (const char* version :
       {"vDEMO", "V1.20", "V1.3", "V1.30b", "V0.9", "", "VDEMO", "1.4", "VER V1.3"}) {
    SimulatedRig rig("Harbour");
    rig.instrument().Unit(1).version = version;
    EXPECT_EQ(rig.root.ControllerVersion(1), version);
  }
}

TEST(ControllerUnits, ThatDoNotAnswerHaveNoVersion) {
  SimulatedRig rig("Quay");
  for (const std::int32_t unit : {3, 4, 6, 7}) {
    EXPECT_THROW(rig.root.ControllerVersion(unit), ControllerError) << unit;
  }
}

TEST(ControllerUnits, CountFromOneToSeven) {
  SimulatedRig rig("Quay");
  for (const std::int32_t unit : {-1, 0, 8}) {
    EXPECT_THROW(rig.root.ControllerPresent(unit), ControllerError) << unit;
    EXPECT_THROW(rig.root.ControllerVersion(unit), ControllerError) << unit;
  }
}

TEST(Buzzers, GoOnAndOffEachUnderItsOwnCode) {
  SimulatedRig rig("Shell");
  for (const std::int32_t code : {1, 2, 5, 6}) {
    rig.root.BuzzerOn(code);
    for (const std::int32_t other : {1, 2, 5, 6}) {
      EXPECT_EQ(rig.root.BuzzerEnabled(other), other == code ? 1 : 0);
    }
    rig.root.BuzzerOff(code);
    EXPECT_EQ(rig.root.BuzzerEnabled(code), 0);
  }
}

TEST(Buzzers, OfOtherCodesFail) {
  SimulatedRig rig("Quay");
  for (const std::int32_t code : {-1, 0, 3, 4, 7}) {
    EXPECT_THROW(rig.root.BuzzerEnabled(code), ControllerError) << code;
    EXPECT_THROW(rig.root.BuzzerOn(code), ControllerError) << code;
    EXPECT_THROW(rig.root.BuzzerOff(code), ControllerError) << code;
  }
}

TEST(Buzzers, CanBeUnknown) {
  SimulatedRig rig("Harbour");
  rig.instrument().buzzers.body = -1;
  EXPECT_EQ(rig.root.BuzzerEnabled(1), -1);
}

TEST(Switches, AreEnabledAndDisabledEachUnderItsOwnUnit) {
  SimulatedRig rig("Shell");
  for (const std::int32_t unit : {0, 4, 7}) {
    rig.root.EnableSwitch(unit);
    for (const std::int32_t other : {0, 4, 7}) {
      EXPECT_EQ(rig.root.SwitchEnabled(other), other == unit ? 1 : 0);
    }
    rig.root.DisableSwitch(unit);
    EXPECT_EQ(rig.root.SwitchEnabled(unit), 0);
  }
}

TEST(Switches, OfOtherUnitsFail) {
  SimulatedRig rig("Quay");
  for (const std::int32_t unit : {-1, 1, 5, 6}) {
    EXPECT_THROW(rig.root.SwitchEnabled(unit), ControllerError) << unit;
    EXPECT_THROW(rig.root.EnableSwitch(unit), ControllerError) << unit;
    EXPECT_THROW(rig.root.DisableSwitch(unit), ControllerError) << unit;
  }
}

TEST(RemoteLed, KeepsWhatIsWrittenEvenOutOfRange) {
  SimulatedRig rig("DeckRemote");
  EXPECT_EQ(rig.root.RemoteLED(), 2);
  for (const std::int32_t state : {0, 1, 2, 3}) {
    rig.root.PutRemoteLED(state);
    EXPECT_EQ(rig.root.RemoteLED(), state);
  }
  EXPECT_THROW(rig.root.Object()->Get("RemoteLED", {0}), ControllerError);
}

TEST(OnChange, IsToldOfWritesThatChangeSomethingAndOfNoOthers) {
  SimulatedRig rig("Harbour");
  rig.CountChanges();
  rig.root.BuzzerOn(1);  // it is on already
  rig.root.PutSystemName("Harbour");
  rig.root.SwitchEnabled(0);
  EXPECT_EQ(rig.changes, 0);
  rig.root.BuzzerOff(1);
  rig.root.PutSystemName("Quayside");
  EXPECT_EQ(rig.changes, 2);
  EXPECT_THROW(rig.root.PutSystemName("a name of more than fifteen"), ControllerError);
  EXPECT_EQ(rig.changes, 2);
}

}  // namespace
}  // namespace mortane::controller::test

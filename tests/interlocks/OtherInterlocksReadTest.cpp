// What follows nosepiece, light path and zoom: reading it.
#include <gtest/gtest.h>

#include "interlocks/InterlockRig.h"

namespace mortane::test {
namespace {

TEST(OtherInterlocks, AreUnknownBeforeTheFirstRead) {
  const Rig rig("Harbour");
  EXPECT_EQ(NosepieceStates(rig.units.ILOther), kAllUnknown);
  EXPECT_EQ(LightPathStates(rig.units.ILOther), kAllUnknown);
  EXPECT_EQ(ZoomStates(rig.units.ILOther), kAllUnknown);
  EXPECT_FALSE(rig.units.ILOther.IsEnable());
}

TEST(OtherInterlocks, AnAccessoryBeyondFourteenIsABoundsError) {
  Rig rig("Harbour");
  clsInterLockOther& unit = rig.units.ILOther;
  for (const std::int32_t index : {0, 15, -1, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(RaisedBy([&] { unit.Status(index); }), "Mortane:9") << index;
    EXPECT_EQ(RaisedBy([&] { unit.Status(index, 1); }), "Mortane:9") << index;
    EXPECT_EQ(RaisedBy([&] { unit.LightPathStatus(index); }), "Mortane:9") << index;
    EXPECT_EQ(RaisedBy([&] { unit.LightPathStatus(index, 1); }), "Mortane:9") << index;
    EXPECT_EQ(RaisedBy([&] { unit.ZoomStatus(index); }), "Mortane:9") << index;
    EXPECT_EQ(RaisedBy([&] { unit.ZoomStatus(index, 1); }), "Mortane:9") << index;
  }
}

TEST(OtherInterlocks, AKnownStateIsChangedAndAnUnknownOneIsNot) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  clsInterLockOther& unit = rig.units.ILOther;
  for (std::int32_t k = 1; k <= 14; ++k) {
    unit.Status(k, 7);
    unit.LightPathStatus(k, 8);
    unit.ZoomStatus(k, 9);
  }
  EXPECT_EQ(NosepieceStates(unit), "7 7 7 -1 7 -1 -1 -1 -1 7 7 7 -1 7");
  EXPECT_EQ(LightPathStates(unit), PathStates(8, 8, 8));
  EXPECT_EQ(ZoomStates(unit), PathStates(9, 9, 9));
}

TEST(OtherInterlocks, AreReadInOrderWithTheEpiFieldStopAskedForTwice) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(rig.units.ILOther.ReadSdk(), "");
  EXPECT_EQ(NosepieceStates(rig.units.ILOther), "1 0 1 -1 0 -1 -1 -1 -1 0 1 1 -1 1");
  EXPECT_EQ(ZoomStates(rig.units.ILOther), PathStates(0, 1, 0));
  EXPECT_EQ(LightPathStates(rig.units.ILOther), PathStates(0, 0, 1));
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{Interlock(1, 3) + " -> 1", Interlock(2, 3) + " -> 0", Interlock(3, 3) + " -> 1",
                   Interlock(5, 3) + " -> 0", Interlock(12, 3) + " -> 1",
                   Interlock(14, 3) + " -> 1", Interlock(13, 2) + " -> 0",
                   Interlock(13, 2) + " -> 0", "ControllerVersion(1) -> \"V1.31\"",
                   Interlock(1, 2) + " -> 0", Interlock(2, 2) + " -> 1", Interlock(13, 4) + " -> 1",
                   Interlock(13, 4) + " -> 1", "ControllerVersion(1) -> \"V1.31\"",
                   Interlock(1, 4) + " -> 0", Interlock(2, 4) + " -> 0"}));
}

TEST(OtherInterlocks, NothingFollowsANosepieceThatIsAbsentOrOnlySensed) {
  for (const std::int32_t mounted : {kNotMounted, kSensorOnly}) {
    Rig rig("Harbour");
    Fit(rig.instrument(), accessory::kNosepiece, mounted);
    rig.Connect();
    EXPECT_EQ(rig.units.ILOther.ReadSdk(), "");
    EXPECT_EQ(NosepieceStates(rig.units.ILOther), "-1 -1 -1 -1 -1 -1 -1 -1 -1 0 1 -1 -1 -1");
    EXPECT_EQ(rig.journal.Lines().size(), 10U);
  }
}

TEST(OtherInterlocks, OnlyWhatIsControllableFollowsTheNosepiece) {
  Rig rig("Harbour");
  Fit(rig.instrument(), accessory::kNDFilter, kSensorOnly);
  Fit(rig.instrument(), accessory::kXYStage, kNotMounted);
  rig.Connect();
  EXPECT_EQ(rig.units.ILOther.ReadSdk(), "");
  EXPECT_EQ(NosepieceStates(rig.units.ILOther), "-1 0 1 -1 0 -1 -1 -1 -1 0 1 1 -1 -1");
}

TEST(OtherInterlocks, AZoomOrLightPathThatIsOnlySensedIsReadAndOneThatIsAbsentIsNot) {
  for (const std::int32_t zoom : {kNotMounted, kSensorOnly, kControllable}) {
    for (const std::int32_t lightPath : {kNotMounted, kSensorOnly, kControllable}) {
      Rig rig("Harbour");
      Fit(rig.instrument(), accessory::kOpticalZoom, zoom);
      Fit(rig.instrument(), accessory::kLightPath, lightPath);
      rig.Connect();
      const clsInterLockOther& unit = rig.units.ILOther;
      EXPECT_EQ(rig.units.ILOther.ReadSdk(), "");
      EXPECT_EQ(ZoomStates(unit), zoom == kNotMounted ? kAllUnknown : PathStates(0, 1, 0));
      EXPECT_EQ(unit.Status(10), zoom == kNotMounted ? -1 : 0);
      EXPECT_EQ(LightPathStates(unit),
                lightPath == kNotMounted ? kAllUnknown : PathStates(0, 0, 1));
      EXPECT_EQ(unit.Status(11), lightPath == kNotMounted ? -1 : 1);
    }
  }
}

TEST(OtherInterlocks, WhetherTheFollowersOfZoomAndLightPathAreMountedIsNotAsked) {
  Rig rig("Harbour");
  for (const std::int32_t number :
       {accessory::kNDFilter, accessory::kDiaFieldStop, accessory::kEpiFieldStop}) {
    Fit(rig.instrument(), number, kNotMounted);
  }
  rig.Connect();
  EXPECT_EQ(rig.units.ILOther.ReadSdk(), "");
  EXPECT_EQ(ZoomStates(rig.units.ILOther), PathStates(0, 1, 0));
  EXPECT_EQ(LightPathStates(rig.units.ILOther), PathStates(0, 0, 1));
}

TEST(OtherInterlocks, ZoomAndLightPathNeedTheBodyOrTheHub) {
  struct Row {
    std::vector<int> units;
    bool read;
  };
  for (const Row& row : {Row{{0}, true}, Row{{1}, true}, Row{{2, 3, 4, 5, 6}, false}}) {
    Rig rig("Harbour");
    SetUnits(rig.instrument(), row.units);
    rig.Connect();
    EXPECT_EQ(rig.units.ILOther.ReadSdk(), "");
    EXPECT_EQ(rig.units.ILOther.ZoomStatus(13), row.read ? 0 : -1);
    EXPECT_EQ(rig.units.ILOther.LightPathStatus(13), row.read ? 1 : -1);
    EXPECT_EQ(rig.units.ILOther.Status(12), 1) << "of the nosepiece, which needs neither";
  }
}

TEST(OtherInterlocks, WithoutABodyNoVersionIsAskedFor) {
  Rig rig("Hub");
  rig.Connect();
  EXPECT_EQ(rig.units.ILOther.ReadSdk(), "");
  EXPECT_EQ(rig.journal.Lines(), (Lines{Interlock(13, 2) + " -> 0", Interlock(13, 2) + " -> 0",
                                        Interlock(13, 4) + " -> 0", Interlock(13, 4) + " -> 0"}));
}

TEST(OtherInterlocks, AVersionThatCannotBeReadEndsTheRead) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"ControllerVersion(1)"});
  EXPECT_EQ(rig.units.ILOther.ReadSdk(), std::string("InterLock Other (") + kNoAnswer);
  EXPECT_EQ(NosepieceStates(rig.units.ILOther), "1 0 1 -1 0 -1 -1 -1 -1 0 -1 1 -1 1");
  EXPECT_EQ(ZoomStates(rig.units.ILOther), PathStates(-1, -1, 0));
  EXPECT_EQ(LightPathStates(rig.units.ILOther), kAllUnknown);
}

TEST(OtherInterlocks, AReadThatFailsBetweenTheTwoAnswersKeepsTheFirst) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"ControllerSettings.Interlock(13, 2)", 2});
  EXPECT_EQ(rig.units.ILOther.ReadSdk(), std::string("InterLock Other (") + kNoAnswer);
  EXPECT_EQ(rig.units.ILOther.ZoomStatus(13), 0);
  EXPECT_EQ(rig.units.ILOther.Status(10), -1);
}

TEST(OtherInterlocks, FirmwareBelowOnePointThreeLeavesTheStopsUnknown) {
  Rig rig("Lantern");
  rig.ConnectAndReceive();
  EXPECT_EQ(ZoomStates(rig.units.ILOther), PathStates(-1, -1, 0));
  EXPECT_EQ(LightPathStates(rig.units.ILOther), PathStates(-1, -1, 0));
  EXPECT_TRUE(rig.units.ILOther.IsEnable());
}

}  // namespace
}  // namespace mortane::test

// What follows nosepiece, light path and zoom: what is enabled by it.
#include <gtest/gtest.h>

#include "interlocks/InterlockRig.h"

namespace mortane::test {
namespace {

void ReadOther(clsInterLockOther& unit, const std::string& word) {
  DomDocument document;
  ASSERT_TRUE(document.LoadText("<OTHER POSITION=\"" + word + "\" CODE=\"False\"/>"));
  EXPECT_EQ(unit.ReadDom(document.Children().at(0)), "");
}

TEST(OtherInterlocks, EachFollowerOfTheNosepieceButTheStageEnables) {
  struct Row {
    std::int32_t number;
    const char* word;
    bool enables;
  };
  for (const Row& row :
       {Row{1, "ND", true}, Row{2, "DiaFStop", true}, Row{3, "DiaAStop", true},
        Row{5, "Condenser", true}, Row{12, "FoucusStage", true}, Row{14, "XYStage", false}}) {
    for (const std::int32_t nosepiece : {kNotMounted, kSensorOnly, kControllable}) {
      for (const std::int32_t follower : {kNotMounted, kSensorOnly, kControllable}) {
        Rig rig("Harbour");
        Fit(rig.instrument(), accessory::kNosepiece, nosepiece);
        Fit(rig.instrument(), row.number, follower);
        rig.Connect();
        EXPECT_FALSE(rig.units.ILOther.IsEnable());
        ReadOther(rig.units.ILOther, row.word);
        EXPECT_EQ(rig.units.ILOther.IsEnable(),
                  row.enables && nosepiece == kControllable && follower == kControllable)
            << row.word << ' ' << nosepiece << ' ' << follower;
      }
    }
  }
}

TEST(OtherInterlocks, AControllableZoomEnablesWithAnEpiFieldStopThatIsPresent) {
  for (const std::int32_t zoom : {kNotMounted, kSensorOnly, kControllable}) {
    for (const std::int32_t epiFieldStop : {kNotMounted, kSensorOnly, kControllable}) {
      Rig rig("Harbour");
      Fit(rig.instrument(), accessory::kOpticalZoom, zoom);
      Fit(rig.instrument(), accessory::kEpiFieldStop, epiFieldStop);
      rig.Connect();
      ReadOther(rig.units.ILOther, "OpticalZoom");
      EXPECT_EQ(rig.units.ILOther.IsEnable(), zoom == kControllable && epiFieldStop != kNotMounted)
          << zoom << ' ' << epiFieldStop;
    }
  }
}

TEST(OtherInterlocks, AControllableLightPathEnablesWithAControllableEpiFieldStop) {
  for (const std::int32_t lightPath : {kNotMounted, kSensorOnly, kControllable}) {
    for (const std::int32_t epiFieldStop : {kNotMounted, kSensorOnly, kControllable}) {
      Rig rig("Harbour");
      Fit(rig.instrument(), accessory::kLightPath, lightPath);
      Fit(rig.instrument(), accessory::kEpiFieldStop, epiFieldStop);
      rig.Connect();
      ReadOther(rig.units.ILOther, "LightPath");
      EXPECT_EQ(rig.units.ILOther.IsEnable(),
                lightPath == kControllable && epiFieldStop == kControllable)
          << lightPath << ' ' << epiFieldStop;
    }
  }
}

TEST(OtherInterlocks, TheStageAloneDoesNotEnable) {
  Rig rig("Pair");
  rig.instrument().Interlock(14, 3) = 1;
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.ILOther.Status(14), 1);
  EXPECT_FALSE(rig.units.ILOther.IsEnable());
}

TEST(OtherInterlocks, ASensedZoomIsReadWithoutEnabling) {
  Rig rig("Harbour");
  for (const std::int32_t number : {accessory::kNosepiece, accessory::kLightPath}) {
    Fit(rig.instrument(), number, kNotMounted);
  }
  Fit(rig.instrument(), accessory::kOpticalZoom, kSensorOnly);
  rig.instrument().Interlock(13, 2) = 1;
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.ILOther.ZoomStatus(13), 1);
  EXPECT_FALSE(rig.units.ILOther.IsEnable());
}

struct BenchRow {
  const char* bench;
  std::string nosepiece;
  std::string lightPath;
  std::string zoom;
  bool enabled;
};

TEST(OtherInterlocks, OfEachBench) {
  for (const BenchRow& row : {BenchRow{"Quay", "1 0 1 -1 0 -1 -1 -1 -1 0 1 1 -1 1",
                                       PathStates(-1, -1, 1), PathStates(-1, -1, 0), true},
                              BenchRow{"Harbour", "1 0 1 -1 0 -1 -1 -1 -1 0 1 1 -1 1",
                                       PathStates(0, 0, 1), PathStates(0, 1, 0), true},
                              BenchRow{"Lantern", "0 0 0 -1 -1 -1 -1 -1 -1 0 0 0 -1 -1",
                                       PathStates(-1, -1, 0), PathStates(-1, -1, 0), true},
                              BenchRow{"Hub", "-1 -1 -1 -1 -1 -1 -1 -1 -1 0 0 -1 -1 -1",
                                       PathStates(-1, -1, 0), PathStates(-1, -1, 0), true},
                              BenchRow{"Pair", "-1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 0",
                                       kAllUnknown, kAllUnknown, false},
                              BenchRow{"Outpost", kAllUnknown, kAllUnknown, kAllUnknown, false},
                              BenchRow{"Relay", kAllUnknown, kAllUnknown, kAllUnknown, false},
                              BenchRow{"Deck", kAllUnknown, kAllUnknown, kAllUnknown, false},
                              BenchRow{"DeckRemote", kAllUnknown, kAllUnknown, kAllUnknown, false},
                              BenchRow{"Watch", "-1 -1 -1 -1 -1 -1 -1 -1 -1 0 0 -1 -1 -1",
                                       PathStates(0, 0, 0), PathStates(0, 0, 0), false},
                              BenchRow{"Shell", kAllUnknown, kAllUnknown, kAllUnknown, false},
                              BenchRow{"Hollow", "-1 -1 -1 -1 -1 -1 -1 -1 -1 0 0 -1 -1 -1",
                                       PathStates(0, 0, 0), PathStates(0, 0, 0), true},
                              BenchRow{"Attic", "0 0 0 -1 0 -1 -1 -1 -1 0 0 1 -1 0",
                                       PathStates(0, 0, 0), PathStates(0, 0, 0), true}}) {
    Rig rig(row.bench);
    rig.Connect();
    EXPECT_EQ(rig.units.ILOther.ReadSdk(), "") << row.bench;
    EXPECT_EQ(NosepieceStates(rig.units.ILOther), row.nosepiece) << row.bench;
    EXPECT_EQ(LightPathStates(rig.units.ILOther), row.lightPath) << row.bench;
    EXPECT_EQ(ZoomStates(rig.units.ILOther), row.zoom) << row.bench;
    EXPECT_EQ(rig.units.ILOther.IsEnable(), row.enabled) << row.bench;
  }
}

TEST(OtherInterlocks, OfANosepieceWithNothingToFollowIt) {
  Rig rig("Pair");
  Fit(rig.instrument(), accessory::kXYStage, kNotMounted);
  rig.ConnectAndReceive();
  EXPECT_EQ(NosepieceStates(rig.units.ILOther), kAllUnknown);
  EXPECT_FALSE(rig.units.ILOther.IsEnable());
}

}  // namespace
}  // namespace mortane::test

// What follows a change of the observation method: reading it, and what is enabled by it.
#include <gtest/gtest.h>

#include "interlocks/InterlockRig.h"

namespace mortane::test {
namespace {

constexpr const char* kElevenUnknown = "-1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1";

std::string ObservationStates(const Rig& rig) {
  return StatesOf(11, [&](std::int32_t k) { return rig.units.ILObservation.Status(k); });
}

TEST(Observation, IsUnknownBeforeTheFirstRead) {
  const Rig rig("Harbour");
  EXPECT_EQ(ObservationStates(rig), kElevenUnknown);
  EXPECT_FALSE(rig.units.ILObservation.IsEnable());
}

TEST(Observation, AnAccessoryBeyondElevenIsABoundsError) {
  Rig rig("Harbour");
  clsInterLockObservation& unit = rig.units.ILObservation;
  for (const std::int32_t index : {0, 12, -1, 14, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(RaisedBy([&] { unit.Status(index); }), "Mortane:9") << index;
    EXPECT_EQ(RaisedBy([&] { unit.Status(index, 1); }), "Mortane:9") << index;
  }
  EXPECT_EQ(ObservationStates(rig), kElevenUnknown);
}

TEST(Observation, TheStatusRefusesAWriteToAnUnknownEntryWhichAFileDoesNot) {
  Rig rig("Harbour");
  clsInterLockObservation& unit = rig.units.ILObservation;
  unit.Status(11, 1);
  EXPECT_EQ(unit.Status(11), -1);
  EXPECT_EQ(ReadElement(unit, R"(<OBSERVATION POSITION="LightPath" CODE="True"/>)"), "");
  EXPECT_EQ(unit.Status(11), 1);
  unit.Status(11, 0);
  EXPECT_EQ(unit.Status(11), 0);
  EXPECT_EQ(ObservationStates(rig), "-1 -1 -1 -1 -1 -1 -1 -1 -1 -1 0");
}

TEST(Observation, ReadsTheElevenInOrder) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(rig.units.ILObservation.ReadSdk(), "");
  EXPECT_EQ(ObservationStates(rig), "0 0 0 1 1 1 0 0 0 0 0");
  Lines expected;
  for (std::int32_t k = 1; k <= 11; ++k) {
    expected.push_back(Interlock(k, 1) + " -> " + (k >= 4 && k <= 6 ? "1" : "0"));
  }
  EXPECT_EQ(rig.journal.Lines(), expected);
}

TEST(Observation, IsReadOnceWhicheverUnitsThereAre) {
  for (const auto& units : {std::vector<int>{0}, {5}, {6}, {5, 6}, {0, 5}, {0, 1, 4, 5, 6}}) {
    Rig rig("Harbour");
    SetUnits(rig.instrument(), units);
    rig.Connect();
    EXPECT_EQ(rig.units.ILObservation.ReadSdk(), "");
    EXPECT_EQ(ObservationStates(rig), "0 0 0 1 1 1 0 0 0 0 0");
    EXPECT_EQ(rig.journal.Lines().size(), 11U);
  }
}

TEST(Observation, AsksNothingAboutWhatIsAbsentOrOnlySensed) {
  Rig rig("Harbour");
  Fit(rig.instrument(), 4, kSensorOnly);
  Fit(rig.instrument(), 11, kNotMounted);
  rig.Connect();
  EXPECT_EQ(rig.units.ILObservation.ReadSdk(), "");
  EXPECT_EQ(ObservationStates(rig), "0 0 0 -1 1 1 0 0 0 0 -1");
  EXPECT_EQ(rig.journal.Lines().size(), 9U);
}

TEST(Observation, WithoutBodyAndItsKinNothingIsReadComparedOrWritten) {
  Rig rig("Harbour");
  SetUnits(rig.instrument(), {1, 2, 3, 4});
  rig.Connect();
  clsInterLockObservation& unit = rig.units.ILObservation;
  ReadElement(unit, R"(<OBSERVATION POSITION="ND" CODE="True"/>)");
  EXPECT_FALSE(unit.IsEnable());
  std::string list = "Before";
  EXPECT_EQ(unit.ModifySdk(list), "");
  EXPECT_EQ(list, "Before");
  EXPECT_EQ(unit.WriteSdk(), "");
  EXPECT_EQ(unit.Status(1), 1);
  EXPECT_EQ(unit.ReadSdk(), "");
  EXPECT_EQ(ObservationStates(rig), kElevenUnknown);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(Observation, AReadThatFailsKeepsWhatItFoundAndForgetsTheRest) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.instrument().Interlock(1, 1) = 1;
  rig.faults.Add({"ControllerSettings.Interlock(5, 1)"});
  EXPECT_EQ(rig.units.ILObservation.ReadSdk(), std::string("InterLock Observation (") + kNoAnswer);
  EXPECT_EQ(ObservationStates(rig), "1 0 0 1 -1 -1 -1 -1 -1 -1 -1");
}

TEST(Observation, IsDisabledWithNoneOfTheElevenMounted) {
  Rig rig("Harbour");
  for (std::int32_t k = 1; k <= 11; ++k) Fit(rig.instrument(), k, kNotMounted);
  rig.ConnectAndReceive();
  EXPECT_FALSE(rig.units.ILObservation.IsEnable());
}

TEST(Observation, OneKnownAndMountedAccessoryEnables) {
  for (std::int32_t k = 1; k <= 11; ++k) {
    Rig rig("Harbour");
    for (std::int32_t other = 1; other <= 11; ++other) {
      if (other != k) Fit(rig.instrument(), other, kSensorOnly);
    }
    rig.Connect();
    EXPECT_FALSE(rig.units.ILObservation.IsEnable()) << k;
    EXPECT_EQ(rig.units.ILObservation.ReadSdk(), "");
    EXPECT_TRUE(rig.units.ILObservation.IsEnable()) << k;
  }
}

TEST(Observation, AFileEnablesOnlyForWhatIsMounted) {
  Rig rig("Harbour");
  Fit(rig.instrument(), 2, kNotMounted);
  rig.Connect();
  ReadElement(rig.units.ILObservation, R"(<OBSERVATION POSITION="DiaFStop" CODE="False"/>)");
  EXPECT_FALSE(rig.units.ILObservation.IsEnable());
  ReadElement(rig.units.ILObservation, R"(<OBSERVATION POSITION="ND" CODE="False"/>)");
  EXPECT_TRUE(rig.units.ILObservation.IsEnable());
}

struct BenchRow {
  const char* bench;
  const char* states;
  bool enabled;
};

TEST(Observation, OfEachBench) {
  for (const BenchRow& row :
       {BenchRow{"Quay", "0 0 0 1 1 1 0 0 0 0 0", true},
        BenchRow{"Harbour", "0 0 0 1 1 1 0 0 0 0 0", true},
        BenchRow{"Lantern", "0 0 0 0 -1 0 0 0 0 -1 -1", true},
        BenchRow{"Hub", kElevenUnknown, false},
        BenchRow{"Pair", "-1 -1 -1 -1 -1 0 -1 -1 0 -1 -1", true},
        BenchRow{"Outpost", kElevenUnknown, false}, BenchRow{"Relay", kElevenUnknown, false},
        BenchRow{"Deck", "-1 -1 -1 0 -1 0 0 -1 0 -1 -1", true},
        BenchRow{"DeckRemote", "-1 -1 -1 0 -1 0 0 -1 0 -1 -1", true},
        BenchRow{"Watch", kElevenUnknown, false}, BenchRow{"Shell", kElevenUnknown, false},
        BenchRow{"Hollow", "0 0 0 0 -1 -1 0 0 -1 0 0", true},
        BenchRow{"Attic", "0 0 0 0 0 0 0 0 0 0 0", true}}) {
    Rig rig(row.bench);
    rig.Connect();
    EXPECT_EQ(rig.units.ILObservation.ReadSdk(), "") << row.bench;
    EXPECT_EQ(ObservationStates(rig), row.states) << row.bench;
    EXPECT_EQ(rig.units.ILObservation.IsEnable(), row.enabled) << row.bench;
  }
}

}  // namespace
}  // namespace mortane::test

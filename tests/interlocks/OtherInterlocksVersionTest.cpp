// What follows nosepiece, light path and zoom: what the version of the body decides.
#include <gtest/gtest.h>

#include "common/Numbers.h"
#include "interlocks/InterlockRig.h"

namespace mortane::test {
namespace {

struct VersionRow {
  const char* version;
  bool withStops;   // ND filter and field stop follow zoom and light path
  bool lacksStage;  // no interlock of the stage
};

constexpr VersionRow kVersions[] = {
    {"V0.9", false, false},     {"V1.0", false, true},   {"V1.00", false, true},
    {"V1.1", false, true},      {"V1.10", false, true},  {"V1.2", false, true},
    {"V1.20", false, true},     {"V1.21", false, false}, {"V1.29", false, false},
    {"V1.3", true, false},      {"V1.30", true, false},  {"V1.30b", true, false},
    {"V1.2b", false, false},    {"V2", true, false},     {"V12", true, false},
    {"vDEMO", false, false},    {"", false, false},      {"V", false, false},
    {"V1,2", false, false},     {"V1,3", false, false},  {"v1.1", false, true},
    {"VER V1.1", false, false},
};

// The answers of a body of each version; a program that reads numbers with a comma must find the
// same.
void ExpectAnswersOfEachVersion() {
  for (const VersionRow& row : kVersions) {
    Rig rig("Harbour");
    rig.instrument().Unit(1).version = row.version;
    rig.Connect();
    EXPECT_EQ(rig.units.ILOther.ReadSdk(), "");
    EXPECT_EQ(ZoomStates(rig.units.ILOther),
              row.withStops ? PathStates(0, 1, 0) : PathStates(-1, -1, 0))
        << row.version;
    EXPECT_EQ(LightPathStates(rig.units.ILOther),
              row.withStops ? PathStates(0, 0, 1) : PathStates(-1, -1, 1))
        << row.version;
    EXPECT_EQ(rig.units.ILOther.LacksStageInterlock(), row.lacksStage) << row.version;
  }
}

TEST(OtherInterlocks, AnswerByTheVersionOfTheBody) {
  ExpectAnswersOfEachVersion();
}

TEST(OtherInterlocks, AVersionHasAPointWhateverTheNumbersOfTheSystemHave) {
  SetSystemNumberFormat({",", "."});
  ExpectAnswersOfEachVersion();
  SetSystemNumberFormat(PointFormat());
}

TEST(OtherInterlocks, AVersionIsReadWithoutItsFirstCharacterWhateverThatIs) {
  for (const char* version : {"11.1", " 1.1",
                              "\xC3\xA9"
                              "1.1",
                              "V 1.1 "}) {
    Rig rig("Harbour");
    rig.instrument().Unit(1).version = version;
    rig.Connect();
    EXPECT_TRUE(rig.units.ILOther.LacksStageInterlock()) << version;
  }
}

TEST(OtherInterlocks, ABodyThatTellsNoVersionIsOfNoneWithoutTheStage) {
  Rig absent("Hub");
  absent.Connect();
  EXPECT_FALSE(absent.units.ILOther.LacksStageInterlock());
  EXPECT_EQ(absent.journal.CallCount(), 1U);

  Rig silent("Lantern");
  silent.Connect();
  EXPECT_TRUE(silent.units.ILOther.LacksStageInterlock());
  silent.faults.Add({"ControllerVersion(1)"});
  EXPECT_FALSE(silent.units.ILOther.LacksStageInterlock());

  const Rig unconnected("Lantern");
  EXPECT_FALSE(unconnected.units.ILOther.LacksStageInterlock());
}

}  // namespace
}  // namespace mortane::test

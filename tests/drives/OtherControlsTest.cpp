// Knobs, buzzers, switches and remotes: reading them, and whether there are any.
#include "drives/OtherControls.h"

namespace mortane::test {
namespace {

TEST(OtherControls, AreUnknownBeforeTheFirstRead) {
  Rig rig("Harbour");
  EXPECT_EQ(ValuesOf(rig.units.COther), kAllUnknown);
  EXPECT_EQ(rig.units.COther.curFiberSwEnable, -1);
  EXPECT_EQ(rig.units.COther.curFiberLED, -1);
  EXPECT_FALSE(rig.units.COther.curFiberStatus);
  EXPECT_FALSE(rig.units.COther.IsEnable());
}

struct BenchRow {
  const char* bench;
  const char* values;
  bool enabled;
};

TEST(OtherControls, AreReadFromEachInstrument) {
  for (const BenchRow& row :
       {BenchRow{"Quay", "1 0 -1 3 0 1 1 -1 -1", true},
        BenchRow{"Harbour", "0 0 1 1 0 1 1 -1 -1", true},
        BenchRow{"Lantern", "0 -1 2 -1 1 0 -1 -1 -1", true},
        BenchRow{"Hub", "-1 -1 -1 -1 1 -1 0 -1 -1", true},
        BenchRow{"Pair", "-1 1 -1 -1 2 0 -1 -1 -1", true},
        BenchRow{"Outpost", "0 -1 1 -1 -1 -1 -1 -1 -1", true},
        BenchRow{"Relay", "0 0 1 1 1 0 0 -1 -1", true},
        BenchRow{"Deck", "-1 -1 -1 -1 0 -1 -1 -1 -1", true},
        BenchRow{"DeckRemote", "-1 -1 -1 -1 0 -1 -1 1 2", true},
        BenchRow{"Watch", "-1 -1 -1 -1 1 0 -1 -1 -1", true}, BenchRow{"Shell", kAllUnknown, false},
        BenchRow{"Hollow", "0 -1 1 -1 1 0 -1 -1 -1", true},
        BenchRow{"Attic", "0 0 1 1 1 0 0 -1 -1", true}}) {
    Rig rig(row.bench);
    rig.Connect();
    EXPECT_EQ(rig.units.COther.ReadSdk(), "");
    EXPECT_EQ(ValuesOf(rig.units.COther), row.values) << row.bench;
    EXPECT_EQ(rig.units.COther.IsEnable(), row.enabled) << row.bench;
  }
}

TEST(OtherControls, AreAskedForInOrder) {
  Rig quay("Quay");
  quay.Connect();
  EXPECT_EQ(quay.units.COther.ReadSdk(), "");
  EXPECT_EQ(
      quay.journal.Lines(),
      (Lines{"ZDriveDevice.KnobAuto -> 1", "XYDriveDevice.KnobAuto -> 0",
             "XYDriveDevice.KnobSensitivity -> 3", "BuzzerEnabled(1) -> 1", "BuzzerEnabled(2) -> 1",
             "BuzzerEnabled(5) -> 1", "SwitchEnabled(0, 0) -> 1", "SwitchEnabled(4, 0) -> 1"}));
  Rig deck("DeckRemote");
  deck.Connect();
  EXPECT_EQ(deck.units.COther.ReadSdk(), "");
  EXPECT_EQ(deck.journal.Lines(),
            (Lines{"BuzzerEnabled(6) -> 1", "SwitchEnabled(7, 0) -> 1", "RemoteLED(7) -> 2"}));
}

TEST(OtherControls, AnAutomaticKnobIsNotAskedForItsSensitivity) {
  for (const std::int32_t automatic : {1, 2}) {
    Rig rig("Harbour");
    rig.instrument().zDrive.knobAuto = rig.instrument().xyDrive.knobAuto = automatic;
    rig.instrument().zDrive.knobSensitivity = rig.instrument().xyDrive.knobSensitivity = 3;
    rig.ConnectAndReceive();
    EXPECT_EQ(rig.units.COther.curAutoZ, automatic);
    EXPECT_EQ(rig.units.COther.curSensitivityZ, -1);
    EXPECT_EQ(rig.units.COther.curSensitivityXY, -1);
    rig.units.COther.ReadSdk();
    for (const std::string& line : rig.journal.Lines()) {
      EXPECT_EQ(line.find("Sensitivity"), std::string::npos) << line;
    }
  }
}

TEST(OtherControls, ASystemWithoutControllersAndDrivesReadsReportsAndWritesNothing) {
  UnitsRig rig({});
  rig.units.COther.curAutoZ = rig.units.COther.curAutoXY = 1;
  rig.units.COther.curBuzzer = rig.units.COther.curSwEnable = rig.units.COther.curTactorSwEnable =
      0;
  rig.units.COther.curR_TLPOSwEnable = rig.units.COther.curR_TLPOLED = 1;
  EXPECT_EQ(Differences(rig.units.COther), "");
  EXPECT_EQ(rig.units.COther.WriteSdk(), "");
  EXPECT_FALSE(rig.units.COther.IsEnable());
  EXPECT_EQ(rig.units.COther.ReadSdk(), "");
  EXPECT_EQ(ValuesOf(rig.units.COther), kAllUnknown);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

// The fields of the fiber illuminator are the page's affair.
TEST(OtherControls, AReadLeavesTheFiberIlluminator) {
  Rig rig("Quay");
  rig.ConnectAndReceive();
  rig.units.COther.curFiberSwEnable = 1;
  rig.units.COther.curFiberLED = 2;
  rig.units.COther.curFiberStatus = true;
  EXPECT_EQ(rig.units.COther.ReadSdk(), "");
  EXPECT_EQ(rig.units.COther.curFiberSwEnable, 1);
  EXPECT_EQ(rig.units.COther.curFiberLED, 2);
  EXPECT_TRUE(rig.units.COther.curFiberStatus);
}

struct BuzzerRow {
  std::int32_t type;
  std::int32_t body;
  std::int32_t hub;
  std::int32_t buzzer;
};

// With a body and a hub that answer, whatever the type says.
TEST(OtherControls, TheTypeOfTheMicroscopeDecidesWhoseBuzzerCounts) {
  for (const BuzzerRow& row :
       {BuzzerRow{0, 1, 0, 0},  BuzzerRow{0, 0, 1, 1},   BuzzerRow{0, -1, 1, -1},
        BuzzerRow{4, 1, 0, 0},  BuzzerRow{4, 0, 1, 1},   BuzzerRow{1, 1, 0, 1},
        BuzzerRow{1, 0, 1, 0},  BuzzerRow{1, 1, -1, -1}, BuzzerRow{5, 1, 0, 1},
        BuzzerRow{5, 0, 1, 0},  BuzzerRow{6, 1, 0, 1},   BuzzerRow{6, 0, 1, 0},
        BuzzerRow{3, 1, 1, 0},  BuzzerRow{3, 0, 0, 1},   BuzzerRow{3, 1, 0, 2},
        BuzzerRow{3, 0, 1, 2},  BuzzerRow{3, -1, 1, 2},  BuzzerRow{3, -1, -1, -1},
        BuzzerRow{2, 1, 1, -1}, BuzzerRow{2, 0, 0, -1},  BuzzerRow{0, 7, 1, -1}}) {
    UnitsRig rig({0, 1});
    rig.instrument().buzzers = {row.body, row.hub, 1, 1};
    rig.units.curType = row.type;
    EXPECT_EQ(rig.units.COther.ReadSdk(), "");
    EXPECT_EQ(rig.units.COther.curBuzzer, row.buzzer) << row.type << ' ' << row.body << row.hub;
  }
}

TEST(OtherControls, ControllerUnit5TakesTheHubsPlace) {
  UnitsRig rig({1, 5});
  rig.instrument().buzzers = {0, 1, 1, 0};
  rig.units.curType = 1;
  EXPECT_EQ(rig.units.COther.ReadSdk(), "");
  EXPECT_EQ(rig.units.COther.curBuzzer, 1);
}

TEST(OtherControls, TheTypeOfAFormerDeviceHasNoBuzzerWhereNothingAnswers) {
  Rig rig(List({"Quay", "Pair", "Shell"}));
  rig.units.Connect(1);
  EXPECT_EQ(rig.units.COther.ReadSdk(), "");
  EXPECT_EQ(rig.units.COther.curBuzzer, 2);
  rig.units.Connect(2);
  EXPECT_EQ(rig.units.COther.ReadSdk(), "");
  EXPECT_EQ(rig.units.curType, 3);
  EXPECT_EQ(ValuesOf(rig.units.COther), kAllUnknown);
  EXPECT_EQ(Differences(rig.units.COther), "");
}

struct EnableRow {
  const char* what;
  std::vector<int> units;
  std::function<void(clsControlOther&)> set;
  bool enabled;
};

TEST(OtherControls, AreEnabledByAnythingThatIsKnownOfAPartThatIsThere) {
  const std::vector<EnableRow> rows{
      {"nothing", {0, 1, 4, 6}, [](clsControlOther&) {}, false},
      {"buzzer of a body", {0}, [](clsControlOther& other) { other.curBuzzer = 0; }, true},
      {"buzzer of a hub", {1}, [](clsControlOther& other) { other.curBuzzer = 2; }, true},
      {"buzzer of others",
       {2, 3, 4, 6},
       [](clsControlOther& other) { other.curBuzzer = 0; },
       false},
      {"no buzzer", {0, 1}, [](clsControlOther& other) { other.curBuzzer = -2; }, false},
      {"body switches", {0}, [](clsControlOther& other) { other.curSwEnable = 0; }, true},
      {"switches of no body",
       {1, 4, 6},
       [](clsControlOther& other) { other.curSwEnable = 0; },
       false},
      {"hand switches", {4}, [](clsControlOther& other) { other.curTactorSwEnable = 0; }, true},
      {"switches of no hand controller",
       {0, 1, 6},
       [](clsControlOther& other) { other.curTactorSwEnable = 0; },
       false},
      {"unit 5", {5}, [](clsControlOther&) {}, true},
      {"remote switches", {6}, [](clsControlOther& other) { other.curR_TLPOSwEnable = 0; }, true},
      {"switches of no remote",
       {0, 1, 4},
       [](clsControlOther& other) { other.curR_TLPOSwEnable = 0; },
       false},
      {"LED of the remote", {6}, [](clsControlOther& other) { other.curR_TLPOLED = 1; }, false},
      {"knobs of no drives",
       {0},
       [](clsControlOther& other) { other.curAutoZ = other.curAutoXY = 0; },
       false},
  };
  for (const EnableRow& row : rows) {
    UnitsRig rig({});
    for (const int unit : row.units) rig.instrument().Unit(unit + 1) = {1, "V1.30"};
    rig.Connect();
    clsControlOther other(rig.units);
    row.set(other);
    EXPECT_EQ(other.IsEnable(), row.enabled) << row.what;
  }
}

struct KnobRow {
  std::int32_t accessory;
  std::int32_t mounted;
  std::int32_t clsControlOther::*automatic;
  bool enabled;
};

TEST(OtherControls, AreEnabledByAKnobOfADriveThatCanBeCommanded) {
  for (const KnobRow& row :
       {KnobRow{accessory::kZFocusDrive, 2, &clsControlOther::curAutoZ, true},
        KnobRow{accessory::kZFocusDrive, 1, &clsControlOther::curAutoZ, false},
        KnobRow{accessory::kZFocusDrive, 2, &clsControlOther::curAutoXY, false},
        KnobRow{accessory::kXYStage, 2, &clsControlOther::curAutoXY, true},
        KnobRow{accessory::kXYStage, 1, &clsControlOther::curAutoXY, false},
        KnobRow{accessory::kXYStage, 2, &clsControlOther::curAutoZ, false}}) {
    UnitsRig rig({});
    Fit(rig.instrument(), row.accessory, row.mounted);
    rig.Connect();
    clsControlOther other(rig.units);
    other.*row.automatic = 0;
    EXPECT_EQ(other.IsEnable(), row.enabled) << row.accessory << ' ' << row.mounted;
  }
}

TEST(OtherControls, AReadThatFailsKeepsWhatWasReadBefore) {
  Rig rig("DeckRemote");
  rig.ConnectAndReceive();
  rig.faults.Add({"RemoteLED(7)"});
  EXPECT_EQ(rig.units.COther.ReadSdk(), "Control Other (LIB:80004005)");
  EXPECT_EQ(ValuesOf(rig.units.COther), "-1 -1 -1 -1 -1 -1 -1 1 -1");
}

}  // namespace
}  // namespace mortane::test

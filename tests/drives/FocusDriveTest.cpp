// The settings of the focus drive, beyond the drill.
#include "drives/DriveRig.h"

#include "common/Failure.h"

namespace mortane::test {
namespace {

void SetEscape(clsControlZDrive& drive, std::int16_t focus, std::int16_t stage) {
  drive.SetEscape(0, focus);
  drive.SetEscape(1, stage);
}

TEST(FocusDrive, IsUnknownBeforeTheFirstRead) {
  Rig rig("Harbour");
  EXPECT_EQ(ValuesOf(rig.units.CZDrive), "-1 -1 00");
  EXPECT_EQ(rig.units.CZDrive.curUpperLimit, 0);
  EXPECT_EQ(rig.units.CZDrive.NoseCount, 0);
  for (std::int32_t address = 1; address <= 10; ++address) {
    EXPECT_EQ(rig.units.CZDrive.Position(address), 0);
  }
  EXPECT_FALSE(rig.units.CZDrive.IsEnable());
}

struct BenchRow {
  const char* bench;
  const char* values;
  bool enabled;
  std::int32_t noseCount;
  const char* differences = "";
};

// An escape mode that is not known differs from none as soon as it is read.
TEST(FocusDrive, ReadsWhatEachInstrumentHas) {
  for (const BenchRow& row :
       {BenchRow{"Quay", "3 -1 11", true, 6}, BenchRow{"Harbour", "3 -1 11", true, 6},
        BenchRow{"Lantern", "1 1 10", true, 5}, BenchRow{"Hub", "-1 -1 00", false, 0},
        BenchRow{"Pair", "-1 -1 00", false, 7}, BenchRow{"Outpost", "1 0 00", true, 6},
        BenchRow{"Relay", "1 -1 00", false, 0}, BenchRow{"Deck", "-1 -1 00", false, 6},
        BenchRow{"DeckRemote", "-1 -1 00", false, 6}, BenchRow{"Watch", "-1 -1 00", false, 5},
        BenchRow{"Shell", "-1 -1 00", false, 0}, BenchRow{"Hollow", "1 0 00", true, 0},
        BenchRow{"Attic", "2 -1 22", true, 10, "Control FocusDrive[EscapeMode]Z:OFF XY:OFF"}}) {
    Rig rig(row.bench);
    rig.Connect();
    EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "");
    EXPECT_EQ(ValuesOf(rig.units.CZDrive), row.values) << row.bench;
    EXPECT_EQ(rig.units.CZDrive.IsEnable(), row.enabled) << row.bench;
    EXPECT_EQ(rig.units.CZDrive.NoseCount, row.noseCount) << row.bench;
    EXPECT_EQ(Differences(rig.units.CZDrive), row.differences) << row.bench;
  }
}

struct EnableRow {
  std::int32_t nosepiece;
  std::int32_t drive;
  std::int32_t condenser;
  bool enabled;
};

TEST(FocusDrive, IsEnabledByANosepieceThatTurnsOrByALowerLimit) {
  for (const EnableRow& row :
       {EnableRow{2, 2, 2, true}, EnableRow{2, 2, 1, true}, EnableRow{2, 2, 0, true},
        EnableRow{1, 2, 2, false}, EnableRow{0, 2, 2, false}, EnableRow{1, 2, 1, false},
        EnableRow{1, 2, 0, true}, EnableRow{0, 2, 0, true}, EnableRow{2, 1, 0, false},
        EnableRow{2, 0, 0, false}, EnableRow{0, 1, 0, false}}) {
    Rig rig("Harbour");
    Fit(rig.instrument(), accessory::kNosepiece, row.nosepiece);
    Fit(rig.instrument(), accessory::kZFocusDrive, row.drive);
    Fit(rig.instrument(), accessory::kCondenser, row.condenser);
    rig.ConnectAndReceive();
    EXPECT_EQ(rig.units.CZDrive.IsEnable(), row.enabled)
        << row.nosepiece << row.drive << row.condenser;
  }
}

TEST(FocusDrive, IsNotEnabledByALowerLimitThatIsUnknown) {
  Rig rig("Outpost");
  rig.ConnectAndReceive();
  rig.units.CZDrive.curLowerLimit = -1;
  EXPECT_FALSE(rig.units.CZDrive.IsEnable());
}

// A file may set a limit that does not apply.
TEST(FocusDrive, IsNotEnabledByALowerLimitUnderACondenser) {
  Rig rig("Relay");
  rig.ConnectAndReceive();
  rig.units.CZDrive.curLowerLimit = 1;
  EXPECT_FALSE(rig.units.CZDrive.IsEnable());
}

TEST(FocusDrive, AsksForItsSettingsInOrder) {
  Rig rig("Lantern");
  rig.Connect();
  EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "");
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"ZDriveDevice.FocusCompensation -> 1", "ZDriveDevice.LowerLimit -> 1",
                   "ControllerSettings.EscapeMode -> 1"}));
}

struct EscapeRow {
  std::int32_t mode;
  const char* values;
};

TEST(FocusDrive, EscapeModesAreTwoFlags) {
  for (const EscapeRow& row :
       {EscapeRow{-1, "3 -1 22"}, EscapeRow{0, "3 -1 00"}, EscapeRow{1, "3 -1 10"},
        EscapeRow{2, "3 -1 01"}, EscapeRow{3, "3 -1 11"}}) {
    Rig rig("Harbour");
    rig.instrument().escapeMode = row.mode;
    rig.ConnectAndReceive();
    EXPECT_EQ(ValuesOf(rig.units.CZDrive), row.values) << row.mode;
  }
}

TEST(FocusDrive, AnEscapeModeThatNobodyKnowsLeavesTheFlags) {
  for (const std::int32_t mode : {4, 7, -2, 2147483647}) {
    Rig rig("Harbour");
    rig.instrument().escapeMode = 2;
    rig.ConnectAndReceive();
    rig.instrument().escapeMode = mode;
    EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "");
    EXPECT_EQ(ValuesOf(rig.units.CZDrive), "3 -1 01") << mode;
  }
}

TEST(FocusDrive, AReadWithoutADriveLeavesTheEscapeFlags) {
  Rig rig("Watch");
  rig.ConnectAndReceive();
  SetEscape(rig.units.CZDrive, 1, 2);
  EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "");
  EXPECT_EQ(ValuesOf(rig.units.CZDrive), "-1 -1 12");
}

TEST(FocusDrive, EscapeFlagsOfAnyOtherAxisAreAFault) {
  Rig rig("Harbour");
  for (const std::int32_t axis : {-1, 2, 100}) {
    for (const bool set : {false, true}) {
      try {
        if (set) rig.units.CZDrive.SetEscape(axis, 1);
        if (!set) rig.units.CZDrive.SetEscape(axis);
        ADD_FAILURE() << axis;
      } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 9) << axis;
      }
    }
  }
  EXPECT_EQ(ValuesOf(rig.units.CZDrive), "-1 -1 00");
}

TEST(FocusDrive, PositionsOutsideOneToTenReadMinusOneAndAreDropped) {
  Rig rig("Harbour");
  for (std::int32_t address = -1; address <= 12; ++address) {
    rig.units.CZDrive.Position(address, 100 + address);
  }
  for (std::int32_t address = 1; address <= 10; ++address) {
    EXPECT_EQ(rig.units.CZDrive.Position(address), 100 + address);
  }
  for (const std::int32_t address : {0, 11, -1, 12, 2147483647, -2147483647}) {
    EXPECT_EQ(rig.units.CZDrive.Position(address), -1) << address;
  }
}

TEST(FocusDrive, AReadClearsThePositionsWithOrWithoutADrive) {
  for (const char* bench : {"Harbour", "Shell"}) {
    Rig rig(bench);
    rig.ConnectAndReceive();
    rig.units.CZDrive.Position(1, 5);
    rig.units.CZDrive.Position(10, -7);
    EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "");
    EXPECT_EQ(rig.units.CZDrive.Position(1), 0) << bench;
    EXPECT_EQ(rig.units.CZDrive.Position(10), 0) << bench;
  }
}

TEST(FocusDrive, WithoutADriveNothingIsReadComparedOrWritten) {
  for (const char* bench : {"Hub", "Shell", "Watch", "Pair"}) {
    Rig rig(bench);
    rig.ConnectAndReceive();
    EXPECT_EQ(ValuesOf(rig.units.CZDrive), "-1 -1 00") << bench;
    rig.units.CZDrive.curFocusCompensation = 2;
    rig.units.CZDrive.curLowerLimit = 1;
    SetEscape(rig.units.CZDrive, 1, 1);
    EXPECT_EQ(Differences(rig.units.CZDrive), "") << bench;
    EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "") << bench;
    EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "") << bench;
    EXPECT_EQ(rig.journal.CallCount(), 0U) << bench;
    EXPECT_EQ(ValuesOf(rig.units.CZDrive), "-1 -1 11") << bench;
  }
}

struct VersionRow {
  const char* bench;
  const char* version;
  EscapeFirmware firmware;
};

TEST(FocusDrive, TheBodysFirmwareKnowsTheEscapeFromVersion13) {
  using enum EscapeFirmware;
  for (const VersionRow& row :
       {VersionRow{"Harbour", "V1.3", With}, VersionRow{"Harbour", "V1.30b", With},
        VersionRow{"Harbour", "V1.29", Without}, VersionRow{"Harbour", "V2.0", With},
        VersionRow{"Harbour", "V1.10", Without}, VersionRow{"Harbour", "vDEMO", Without},
        VersionRow{"Harbour", "", Without}, VersionRow{"Hub", "V1.3", Without}}) {
    Rig rig(row.bench);
    rig.instrument().Unit(1).version = row.version;
    rig.Connect();
    EXPECT_EQ(rig.units.CZDrive.BodyFirmware(), row.firmware) << row.bench << row.version;
    EXPECT_LE(rig.journal.CallCount(), 1U);
  }
}

TEST(FocusDrive, AVersionThatCannotBeReadSaysNothingAboutTheEscape) {
  Rig rig("Harbour");
  EXPECT_EQ(rig.units.CZDrive.BodyFirmware(), EscapeFirmware::Unknown);
  rig.Connect();
  rig.faults.Add({"ControllerVersion"});
  EXPECT_EQ(rig.units.CZDrive.BodyFirmware(), EscapeFirmware::Unknown);
}

TEST(FocusDrive, ACondenserOrItsSensorTakesTheLowerLimitAway) {
  for (const std::int32_t mounted : {kSensorOnly, kControllable}) {
    Rig rig("Lantern");
    Fit(rig.instrument(), accessory::kCondenser, mounted);
    rig.instrument().condensers = {{1, 1}};
    rig.ConnectAndReceive();
    EXPECT_EQ(ValuesOf(rig.units.CZDrive), "1 -1 10") << mounted;
    EXPECT_NE(FileTextOf(rig.units.CZDrive).find(R"(<DownLimitation CODE="Unknown"/>)"),
              std::string::npos);
    rig.units.CZDrive.curLowerLimit = 0;
    rig.journal.Clear();
    EXPECT_EQ(Differences(rig.units.CZDrive), "");
    EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "");
    for (const std::string& line : rig.journal.Lines()) {
      EXPECT_EQ(line.find("LowerLimit"), std::string::npos) << line;
    }
  }
}

TEST(FocusDrive, AReadThatFailsGivesItsNumberInDecimal) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"ZDriveDevice.FocusCompensation"});
  EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "Control Focus Drive (LIB:-2147467259)");
  EXPECT_EQ(ValuesOf(rig.units.CZDrive), "-1 -1 22");
}

TEST(FocusDrive, AReadThatFailsKeepsWhatItReadBeforeAndLeavesTheEscapeUnknown) {
  Rig rig("Lantern");
  rig.ConnectAndReceive();
  rig.faults.Add({"ControllerSettings.EscapeMode", 0, "COM", 55});
  EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "Control Focus Drive (COM:55)");
  EXPECT_EQ(ValuesOf(rig.units.CZDrive), "1 1 22");
  SetEscape(rig.units.CZDrive, 1, 0);
  rig.faults.Add({"ZDriveDevice.LowerLimit"});
  EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "Control Focus Drive (LIB:-2147467259)");
  EXPECT_EQ(ValuesOf(rig.units.CZDrive), "1 -1 22");
}

TEST(FocusDrive, AfterAReadThatFailedAtAnyCallNoEscapeModeIsWritten) {
  const auto make = [] {
    auto rig = std::make_unique<Rig>("Lantern");
    rig->Connect();
    return rig;
  };
  const auto read = [](DriveUnits& units) { return units.CZDrive.ReadSdk(); };
  const std::size_t calls = FailEachCallOf(make, read, [&](Rig& rig, std::size_t k) {
    EXPECT_NE(read(rig.units), "") << k;
    EXPECT_EQ(rig.units.CZDrive.SetEscape(0), 2) << k;
    EXPECT_EQ(rig.units.CZDrive.SetEscape(1), 2) << k;
    EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "") << k;
    EXPECT_TRUE(rig.journal.Writes().empty()) << k;
  });
  EXPECT_EQ(calls, 6U);
}

TEST(FocusDrive, TheEscapeOfAMicroscopeIsNotSentToTheNextOneAfterAFailedRead) {
  Rig rig(List({"Quay", "Harbour", "Lantern"}));
  rig.units.Connect(1);
  EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "");
  EXPECT_EQ(ValuesOf(rig.units.CZDrive), "3 -1 11");
  rig.units.Disconnect();
  rig.units.Connect(2);
  rig.faults.Add({"ControllerSettings.EscapeMode"});
  EXPECT_NE(rig.units.CZDrive.ReadSdk(), "");
  rig.faults.Clear();
  rig.journal.Clear();
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(FocusDrive, AnEscapeModeThatNobodyKnowsLeavesFlagsThatAreUnknown) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"ControllerSettings.EscapeMode"});
  EXPECT_NE(rig.units.CZDrive.ReadSdk(), "");
  rig.faults.Clear();
  rig.instrument().escapeMode = 7;
  EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "");
  EXPECT_EQ(ValuesOf(rig.units.CZDrive), "3 -1 22");
}

TEST(FocusDrive, AComparisonThatFailsGivesItsNumberInHexadecimal) {
  for (const char* call : {"ZDriveDevice.LowerLimit", "ControllerSettings.EscapeMode"}) {
    Rig rig("Lantern");
    rig.ConnectAndReceive();
    rig.faults.Add({call});
    std::string list;
    EXPECT_EQ(rig.units.CZDrive.ModifySdk(list), "Control Focus Drive (LIB:80004005)") << call;
    EXPECT_EQ(list, "") << call;
  }
}

TEST(FocusDrive, ALineFoundBeforeAFailureStays) {
  Rig rig("Lantern");
  rig.ConnectAndReceive();
  rig.units.CZDrive.curLowerLimit = 0;
  SetEscape(rig.units.CZDrive, 0, 0);
  rig.faults.Add({"ControllerSettings.EscapeMode"});
  std::string list = "Before";
  EXPECT_EQ(rig.units.CZDrive.ModifySdk(list), "Control Focus Drive (LIB:80004005)");
  EXPECT_EQ(list, "Before\r\nControl FocusDrive[DownLimitation]");
}

TEST(FocusDrive, TheCompensationIsWrittenButNotCompared) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.CZDrive.curFocusCompensation = 1;
  EXPECT_EQ(Differences(rig.units.CZDrive), "");
  EXPECT_EQ(rig.journal.Lines(), Lines{"ControllerSettings.EscapeMode -> 3"});
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "");
  EXPECT_EQ(rig.instrument().zDrive.focusCompensation, 1);
}

struct EscapeDifference {
  std::int32_t mode;
  std::int16_t focus;
  std::int16_t stage;
  const char* line;
};

TEST(FocusDrive, AnEscapeThatDiffersIsListedAsItWouldBe) {
  for (const EscapeDifference& row :
       {EscapeDifference{3, 1, 1, ""},
        EscapeDifference{3, 1, 0, "Control FocusDrive[EscapeMode]Z:ON XY:OFF"},
        EscapeDifference{3, 0, 1, "Control FocusDrive[EscapeMode]Z:OFF XY:ON"},
        EscapeDifference{3, 0, 0, "Control FocusDrive[EscapeMode]Z:OFF XY:OFF"},
        EscapeDifference{0, 1, 1, "Control FocusDrive[EscapeMode]Z:ON XY:ON"},
        EscapeDifference{1, 1, 0, ""}, EscapeDifference{2, 0, 1, ""}, EscapeDifference{0, 0, 0, ""},
        EscapeDifference{3, 2, 1, "Control FocusDrive[EscapeMode]Z:OFF XY:ON"},
        EscapeDifference{3, 1, 2, "Control FocusDrive[EscapeMode]Z:ON XY:OFF"},
        // A mode that is not known counts as none.
        EscapeDifference{-1, 2, 2, "Control FocusDrive[EscapeMode]Z:OFF XY:OFF"},
        EscapeDifference{7, 2, 2, "Control FocusDrive[EscapeMode]Z:OFF XY:OFF"},
        EscapeDifference{7, 1, 0, "Control FocusDrive[EscapeMode]Z:ON XY:OFF"},
        EscapeDifference{-1, 0, 0, ""}, EscapeDifference{7, 0, 0, ""}}) {
    Rig rig("Harbour");
    rig.instrument().escapeMode = row.mode;
    rig.Connect();
    SetEscape(rig.units.CZDrive, row.focus, row.stage);
    EXPECT_EQ(Differences(rig.units.CZDrive), row.line)
        << row.mode << ' ' << row.focus << row.stage;
  }
}

}  // namespace
}  // namespace mortane::test

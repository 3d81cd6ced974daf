// What the other controls write to the controller, step by step.
#include "drives/OtherControls.h"

namespace mortane::test {
namespace {

// Every unit but the third and fourth, and both drives.
struct FullRig : UnitsRig {
  FullRig() : UnitsRig({0, 1, 4, 5, 6}, true) {
    clsControlOther& other = units.COther;
    other.curAutoZ = other.curAutoXY = 1;
    other.curBuzzer = 0;
    other.curSwEnable = other.curTactorSwEnable = 0;
    other.curR_TLPOSwEnable = other.curR_TLPOLED = 1;
  }
};

const Lines kAllLines{"Control Other FocusDrive Auto", "Control Other XY Stage Auto",
                      "Control Other Buzzer K70",      "Control Other Buzzer QH_R",
                      "Control Other Buzzer Tactor",   "Control Other Switch",
                      "Control Other TactorSwitch",    "Control Other Buzzer QH_R",
                      "Control Other B_KM_R Switch",   "Control Other B_KM_R SwitchLED"};

std::string Joined(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text = AppendLine(text, line);
  return text;
}

TEST(OtherControlsWrite, GoesOverItsStepsInOrder) {
  FullRig rig;
  EXPECT_EQ(rig.units.COther.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"ZDriveDevice.KnobAuto -> 0", "ZDriveDevice.KnobAuto = 1",
                   "XYDriveDevice.KnobAuto -> 0", "XYDriveDevice.KnobAuto = 1", "BuzzerOn(1)",
                   "BuzzerOn(2)", "BuzzerOn(5)", "SwitchEnabled(0, 0) -> 1", "DisableSwitch(0, 0)",
                   "SwitchEnabled(4, 0) -> 1", "DisableSwitch(4, 0)", "BuzzerOn(2)",
                   "SwitchEnabled(7, 0) -> 0", "EnableSwitch(7, 0)", "RemoteLED(7) -> 0",
                   "RemoteLED(7) = 1"}));
}

TEST(OtherControlsWrite, EachStepThatFailsIsItsLineAndTheNextOnesGoOn) {
  FullRig rig;
  for (const char* call : {"put ZDriveDevice.KnobAuto", "put XYDriveDevice.KnobAuto", "BuzzerOn",
                           "DisableSwitch", "EnableSwitch", "put RemoteLED(7)"}) {
    rig.faults.Add({call});
  }
  EXPECT_EQ(rig.units.COther.WriteSdk(), Joined(kAllLines));
}

TEST(OtherControlsWrite, AValueThatCannotBeReadIsNotWritten) {
  FullRig rig;
  for (const char* call : {"get ZDriveDevice.KnobAuto", "get XYDriveDevice.KnobAuto",
                           "SwitchEnabled", "get RemoteLED(7)"}) {
    rig.faults.Add({call});
  }
  EXPECT_EQ(rig.units.COther.WriteSdk(), Joined({kAllLines[0], kAllLines[1], kAllLines[5],
                                                 kAllLines[6], kAllLines[8], kAllLines[9]}));
  EXPECT_EQ(rig.journal.Writes(),
            (Lines{"BuzzerOn(1)", "BuzzerOn(2)", "BuzzerOn(5)", "BuzzerOn(2)"}));
}

TEST(OtherControlsWrite, EachCallThatFailsIsTheLineOfItsStep) {
  Lines lines;
  const auto write = [](DriveUnits& units) { return units.COther.WriteSdk(); };
  FailEachCallOf([] { return std::make_unique<FullRig>(); }, write,
                 [&](Rig& rig, std::size_t) { lines.push_back(write(rig.units)); });
  Lines expected;
  // Device, read and device, write for a knob; one call for a buzzer; read and write for the rest.
  const std::vector<std::size_t> calls{4, 4, 1, 1, 1, 2, 2, 1, 2, 2};
  for (std::size_t step = 0; step < calls.size(); ++step) {
    expected.insert(expected.end(), calls[step], kAllLines[step]);
  }
  EXPECT_EQ(lines, expected);
}

TEST(OtherControlsWrite, WhatIsUnknownIsNotWrittenAndOnlySwitchesAreAskedFor) {
  FullRig rig;
  const clsControlOther other(rig.units);
  EXPECT_EQ(other.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines(), (Lines{"SwitchEnabled(0, 0) -> 1", "SwitchEnabled(4, 0) -> 1",
                                        "SwitchEnabled(7, 0) -> 0"}));
}

TEST(OtherControlsWrite, SwitchesThatCannotBeAskedAreReportedAlsoWhenTheyAreUnknown) {
  FullRig rig;
  const clsControlOther other(rig.units);
  rig.faults.Add({"SwitchEnabled"});
  EXPECT_EQ(other.WriteSdk(), Joined({kAllLines[5], kAllLines[6], kAllLines[8]}));
}

struct BuzzerRow {
  std::initializer_list<int> units;
  Lines calls;
};

TEST(OtherControlsWrite, BuzzersAreSwitchedByTheControllersThatAreThere) {
  for (const BuzzerRow& row :
       {BuzzerRow{{0}, {"BuzzerOff(1)"}}, BuzzerRow{{1}, {"BuzzerOff(2)"}}, BuzzerRow{{4}, {}},
        BuzzerRow{{0, 4}, {"BuzzerOff(1)", "BuzzerOff(5)"}},
        BuzzerRow{{1, 4}, {"BuzzerOff(2)", "BuzzerOff(5)"}},
        BuzzerRow{{0, 1, 4}, {"BuzzerOff(1)", "BuzzerOff(2)", "BuzzerOff(5)"}}, BuzzerRow{{2}, {}},
        // The buzzer that is read of unit 5 is never written, and with the remote the
        // hub's is.
        BuzzerRow{{5}, {}}, BuzzerRow{{5, 6}, {"BuzzerOff(2)"}}, BuzzerRow{{6}, {"BuzzerOff(2)"}},
        BuzzerRow{{0, 6}, {"BuzzerOff(1)", "BuzzerOff(2)"}},
        BuzzerRow{{1, 6}, {"BuzzerOff(2)", "BuzzerOff(2)"}}}) {
    UnitsRig rig(row.units);
    clsControlOther other(rig.units);
    other.curBuzzer = 1;
    EXPECT_EQ(other.WriteSdk(), "");
    EXPECT_EQ(rig.journal.Writes(), row.calls) << testing::PrintToString(row.calls);
  }
}

TEST(OtherControlsWrite, AnythingButZeroSwitchesTheBuzzersOff) {
  for (const std::int32_t buzzer : {1, 2, 3}) {
    UnitsRig rig({0, 6});
    rig.units.COther.curBuzzer = buzzer;
    EXPECT_EQ(rig.units.COther.WriteSdk(), "");
    EXPECT_EQ(rig.journal.Writes(), (Lines{"BuzzerOff(1)", "BuzzerOff(2)"})) << buzzer;
  }
  UnitsRig rig({0, 6});
  rig.units.COther.curBuzzer = 0;
  EXPECT_EQ(rig.units.COther.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(), (Lines{"BuzzerOn(1)", "BuzzerOn(2)"}));
}

TEST(OtherControlsWrite, TwoControllersThatDisagreeAreBothSwitchedOff) {
  Rig rig("Pair");
  rig.ConnectAndReceive();
  ASSERT_EQ(rig.units.COther.curBuzzer, 2);
  EXPECT_EQ(rig.units.COther.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(), (Lines{"BuzzerOff(1)", "BuzzerOff(2)"}));
  EXPECT_EQ(rig.instrument().buzzers.body, 0);
  EXPECT_EQ(rig.instrument().buzzers.hub, 0);
}

TEST(OtherControlsWrite, SwitchesAreEnabledByOneAndDisabledByAnythingElse) {
  for (const std::int32_t enabled : {0, 1, 2}) {
    UnitsRig rig({0});
    rig.instrument().switches.body = enabled == 1 ? 0 : 1;
    rig.units.COther.curBuzzer = -1;
    rig.units.COther.curSwEnable = enabled;
    EXPECT_EQ(rig.units.COther.WriteSdk(), "");
    EXPECT_EQ(rig.journal.Writes(),
              Lines{enabled == 1 ? "EnableSwitch(0, 0)" : "DisableSwitch(0, 0)"});
  }
}

TEST(OtherControlsWrite, AKnobOfADriveThatIsOnlySensedIsNotTouched) {
  UnitsRig rig({}, true);
  Fit(rig.instrument(), accessory::kZFocusDrive, kSensorOnly);
  Fit(rig.instrument(), accessory::kXYStage, kSensorOnly);
  rig.ConnectAndReceive();
  rig.units.COther.curAutoZ = rig.units.COther.curAutoXY = 1;
  EXPECT_EQ(Differences(rig.units.COther), "");
  EXPECT_EQ(rig.units.COther.WriteSdk(), "");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(OtherControlsWrite, AnLedThatNoOptionStandsForIsWrittenAllTheSame) {
  Rig rig("DeckRemote");
  rig.ConnectAndReceive();
  rig.units.COther.curR_TLPOLED = 3;
  EXPECT_EQ(rig.units.COther.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(), (Lines{"BuzzerOn(2)", "RemoteLED(7) = 3"}));
}

TEST(OtherControlsWrite, EachUnchangedInstrumentHearsItsBuzzersAlone) {
  struct Row {
    const char* bench;
    Lines writes;
  };
  for (const Row& row :
       {Row{"Quay", {"BuzzerOn(1)", "BuzzerOn(2)", "BuzzerOn(5)"}},
        Row{"Harbour", {"BuzzerOn(1)", "BuzzerOn(5)"}}, Row{"Lantern", {"BuzzerOff(1)"}},
        Row{"Hub", {"BuzzerOff(2)", "BuzzerOff(5)"}}, Row{"Pair", {"BuzzerOff(1)", "BuzzerOff(2)"}},
        Row{"Outpost", {}}, Row{"Relay", {"BuzzerOff(1)", "BuzzerOff(5)"}}, Row{"Deck", {}},
        Row{"DeckRemote", {"BuzzerOn(2)"}}, Row{"Watch", {"BuzzerOff(1)"}}, Row{"Shell", {}},
        Row{"Hollow", {"BuzzerOff(1)"}}, Row{"Attic", {"BuzzerOff(1)", "BuzzerOff(5)"}}}) {
    Rig rig(row.bench);
    rig.Connect();
    EXPECT_EQ(rig.units.COther.ReadSdk(), "");
    rig.journal.Clear();
    EXPECT_EQ(Differences(rig.units.COther), "") << row.bench;
    EXPECT_EQ(rig.units.COther.WriteSdk(), "") << row.bench;
    EXPECT_EQ(rig.journal.Writes(), row.writes) << row.bench;
  }
}

}  // namespace
}  // namespace mortane::test

// What the other controls list as different from the controller.
#include "drives/OtherControls.h"

namespace mortane::test {
namespace {

// Every unit but the third and fourth and both drives, all of it changed.
std::unique_ptr<Rig> MakeChangedRig() {
  auto rig = std::make_unique<UnitsRig>(std::initializer_list<int>{0, 1, 4, 5, 6}, true);
  clsControlOther& other = rig->units.COther;
  other.curAutoZ = other.curAutoXY = 1;
  other.curBuzzer = 1;
  other.curSwEnable = other.curTactorSwEnable = 0;
  other.curR_TLPOSwEnable = other.curR_TLPOLED = 1;
  return rig;
}

TEST(OtherControlsDifferences, AreListedInOrder) {
  EXPECT_EQ(Differences(MakeChangedRig()->units.COther),
            "Control Other[FocusDrive Auto]\r\nControl Other[XYStage Auto]\r\n"
            "Control Other[Buzzer]\r\nControl Other[Switch]\r\nControl Other[Tactor Switch]\r\n"
            "Control Other[B_KM_R Switch]\r\nControl Other[B_KM_R SwitchLED]");
}

TEST(OtherControlsDifferences, EachCallOfAReadOrComparisonThatFailsIsTheUnitsLine) {
  const auto read = [](DriveUnits& units) { return units.COther.ReadSdk(); };
  EXPECT_EQ(FailEachCallOf(MakeChangedRig, read,
                           [&](Rig& rig, std::size_t k) {
                             EXPECT_EQ(read(rig.units), "Control Other (LIB:80004005)") << k;
                             EXPECT_EQ(rig.units.COther.curBuzzer, -1) << k;
                           }),
            16U);
  const auto modify = [](DriveUnits& units) {
    std::string list;
    return units.COther.ModifySdk(list);
  };
  EXPECT_EQ(FailEachCallOf(MakeChangedRig, modify,
                           [&](Rig& rig, std::size_t k) {
                             EXPECT_EQ(modify(rig.units), "Control Other (LIB:80004005)") << k;
                           }),
            8U);
}

TEST(OtherControlsDifferences, WhatIsUnknownIsNeitherAskedForNorListed) {
  for (const char* bench : {"Quay", "DeckRemote", "Harbour"}) {
    Rig rig(bench);
    rig.ConnectAndReceive();
    clsControlOther other(rig.units);
    EXPECT_EQ(Differences(other), "") << bench;
    EXPECT_EQ(rig.journal.CallCount(), 0U) << bench;
  }
}

TEST(OtherControlsDifferences, ABuzzerThatIsUnknownIsNotListed) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.COther.curBuzzer = -1;
  EXPECT_EQ(Differences(rig.units.COther), "");
}

TEST(OtherControlsDifferences, ABuzzerThatWasNeverReadIsNotListed) {
  Rig rig("Outpost");
  rig.ConnectAndReceive();
  rig.instrument().Unit(1) = {1, "V1.30"};
  rig.Connect();
  rig.units.COther.curBuzzer = 1;
  EXPECT_EQ(Differences(rig.units.COther), "");
}

// A microscope of type 2 has no buzzer to show; the one before it had.
TEST(OtherControlsDifferences, ABuzzerThatTheLastReadDidNotFindIsNotListed) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ASSERT_EQ(rig.units.COther.curBuzzer, 0);
  rig.units.curType = 2;
  EXPECT_EQ(rig.units.COther.ReadSdk(), "");
  ASSERT_EQ(rig.units.COther.curBuzzer, -1);
  rig.units.COther.curBuzzer = 1;
  EXPECT_EQ(Differences(rig.units.COther), "");
}

TEST(OtherControlsDifferences, TheBuzzerIsComparedWithTheLastReadAndNotAskedFor) {
  Rig rig("Deck");
  rig.ConnectAndReceive();
  rig.units.COther.curBuzzer = 1;
  EXPECT_EQ(Differences(rig.units.COther), "Control Other[Buzzer]");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  rig.instrument().buzzers.unit5 = 0;
  EXPECT_EQ(Differences(rig.units.COther), "Control Other[Buzzer]");
  EXPECT_EQ(rig.units.COther.ReadSdk(), "");
  EXPECT_EQ(rig.units.COther.curBuzzer, 1);
  EXPECT_EQ(Differences(rig.units.COther), "");
}

// What the read before it found is still what a change is measured by.
TEST(OtherControlsDifferences, AReadThatFailsLeavesTheBuzzerToCompareWith) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"SwitchEnabled(4, 0)", 1});
  EXPECT_EQ(rig.units.COther.ReadSdk(), "Control Other (LIB:80004005)");
  EXPECT_EQ(rig.units.COther.curBuzzer, -1);
  EXPECT_EQ(Differences(rig.units.COther), "");
  rig.units.COther.curBuzzer = 0;
  EXPECT_EQ(Differences(rig.units.COther), "");
  rig.units.COther.curBuzzer = 1;
  EXPECT_EQ(Differences(rig.units.COther), "Control Other[Buzzer]");
}

struct GateRow {
  int unit;
  bool listed;
};

TEST(OtherControlsDifferences, ABuzzerThatDiffersIsListedForFourControllers) {
  for (const GateRow& row :
       {GateRow{0, true}, GateRow{1, true}, GateRow{2, false}, GateRow{3, false}, GateRow{4, false},
        GateRow{5, true}, GateRow{6, true}}) {
    UnitsRig rig({0});
    rig.instrument().Unit(1) = {};
    rig.instrument().Unit(row.unit + 1) = {1, "V1.30"};
    rig.Connect();
    rig.units.COther.curBuzzer = rig.units.COther.curBuzzer == 0 ? 1 : 0;
    rig.units.COther.curSwEnable = -1;
    EXPECT_EQ(Differences(rig.units.COther), row.listed ? "Control Other[Buzzer]" : "") << row.unit;
  }
}

struct LedRow {
  std::int32_t held;
  std::int32_t value;
  bool listed;
};

TEST(OtherControlsDifferences, AnLedThatDiffersIsListedWhereItIsOffDarkOrBright) {
  for (const LedRow& row :
       {LedRow{2, 0, true}, LedRow{2, 1, true}, LedRow{0, 2, true}, LedRow{2, 2, false},
        LedRow{2, 3, false}, LedRow{2, -2, false}, LedRow{3, 3, false}}) {
    Rig rig("DeckRemote");
    rig.instrument().switches.remoteLed = row.held;
    rig.ConnectAndReceive();
    rig.units.COther.curR_TLPOLED = row.value;
    EXPECT_EQ(Differences(rig.units.COther), row.listed ? "Control Other[B_KM_R SwitchLED]" : "")
        << row.held << row.value;
    EXPECT_EQ(rig.journal.Lines().back(), "RemoteLED(7) -> " + std::to_string(row.held));
  }
}

TEST(OtherControlsDifferences, NeitherSensitivityIsComparedOrWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.COther.curSensitivityZ = rig.units.COther.curSensitivityXY = 3;
  EXPECT_EQ(Differences(rig.units.COther), "");
  EXPECT_EQ(rig.units.COther.WriteSdk(), "");
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("Sensitivity"), std::string::npos) << line;
  }
}

TEST(OtherControlsDifferences, ALineFoundBeforeAFailureStays) {
  Rig rig("Quay");
  rig.ConnectAndReceive();
  rig.units.COther.curAutoZ = 0;
  rig.units.COther.curBuzzer = 1;
  rig.units.COther.curSwEnable = 0;
  rig.faults.Add({"SwitchEnabled(0, 0)"});
  std::string list;
  EXPECT_EQ(rig.units.COther.ModifySdk(list), "Control Other (LIB:80004005)");
  EXPECT_EQ(list, "Control Other[FocusDrive Auto]\r\nControl Other[Buzzer]");
}

}  // namespace
}  // namespace mortane::test

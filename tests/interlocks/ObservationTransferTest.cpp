// What follows a change of the observation method: comparing and writing it, beyond the drill.
#include <gtest/gtest.h>

#include "interlocks/InterlockRig.h"

namespace mortane::test {
namespace {

const Lines kItemLines{
    "InterLock Observation[ND]",          "InterLock Observation[Dia F.Stop]",
    "InterLock Observation[Dia A.Stop]",  "InterLock Observation[Lamp]",
    "InterLock Observation[Condenser]",   "InterLock Observation[Filter Cube]",
    "InterLock Observation[Epi Shutter]", "InterLock Observation[Analyzer]",
    "InterLock Observation[Nosepiece]",   "InterLock Observation[Optical Zoom]",
    "InterLock Observation[Light Path]",
};
const Lines kBodylessLines{kItemLines[5], kItemLines[6], kItemLines[8]};

// Those of the body's walk, then those of the other one.
Lines LinesOfBothWalks() {
  Lines lines = kItemLines;
  lines.insert(lines.end(), kBodylessLines.begin(), kBodylessLines.end());
  return lines;
}

// Turns every state that is known.
void TurnAll(clsInterLockObservation& unit) {
  for (std::int32_t k = 1; k <= 11; ++k) unit.Status(k, 1 - unit.Status(k));
}

// Harbour with other controller units: of the body, of those without one, or of both.
struct UnitsRow {
  std::vector<int> units;
  Lines named;  // in the order of the walks
};

const UnitsRow kUnitsRows[] = {
    {{0}, kItemLines},
    {{5}, kBodylessLines},
    {{6}, kBodylessLines},
    {{5, 6}, kBodylessLines},
    {{0, 5}, LinesOfBothWalks()},
    {{0, 6}, LinesOfBothWalks()},
    {{0, 1, 4, 5, 6}, LinesOfBothWalks()},
};

TEST(ObservationTransfer, ListsTheThreeOfTheSecondWalkAlsoWhenTheyStandThereAlready) {
  for (const UnitsRow& row : kUnitsRows) {
    Rig rig("Harbour");
    SetUnits(rig.instrument(), row.units);
    rig.ConnectAndReceive();
    TurnAll(rig.units.ILObservation);
    std::string list = "Before";
    EXPECT_EQ(rig.units.ILObservation.ModifySdk(list), "");
    EXPECT_EQ(list, "Before\r\n" + Report(row.named));
    const std::size_t walks = row.named.size() > 11 ? 2 : 1;
    EXPECT_EQ(rig.journal.Lines().size(), 11 * walks);
  }
}

TEST(ObservationTransfer, ADeckWithABodyNamesThreeOfItsFourTwice) {
  Rig rig("DeckRemote");
  rig.instrument().Unit(1) = {1, "V1.30"};
  rig.ConnectAndReceive();
  TurnAll(rig.units.ILObservation);
  std::string list;
  EXPECT_EQ(rig.units.ILObservation.ModifySdk(list), "");
  EXPECT_EQ(list, Report({kItemLines[3], Report(kBodylessLines), Report(kBodylessLines)}));
}

TEST(ObservationTransfer, ComparesWhatIsKnownAndMountedOnly) {
  Rig rig("Harbour");
  Fit(rig.instrument(), 2, kNotMounted);
  rig.Connect();
  for (const char* word : {"ND", "DiaFStop", "EpiShutter"}) {
    const std::string code = std::string(word) == "EpiShutter" ? "False" : "True";
    ReadElement(rig.units.ILObservation,
                "<OBSERVATION POSITION=\"" + std::string(word) + "\" CODE=\"" + code + "\"/>");
  }
  std::string list;
  EXPECT_EQ(rig.units.ILObservation.ModifySdk(list), "");
  EXPECT_EQ(list, "InterLock Observation[ND]");
  EXPECT_EQ(rig.journal.Lines(), (Lines{Interlock(1, 1) + " -> 0", Interlock(7, 1) + " -> 0"}));
}

TEST(ObservationTransfer, AComparisonThatFailsAddsNoLine) {
  Rig rig("Harbour");
  SetUnits(rig.instrument(), {0, 5});
  rig.ConnectAndReceive();
  TurnAll(rig.units.ILObservation);
  // The last one of the second walk, which would give no line of its own.
  rig.faults.Add({"ControllerSettings.Interlock(11, 1)", 2});
  std::string list = "Before";
  EXPECT_EQ(rig.units.ILObservation.ModifySdk(list),
            std::string("InterLock Observation (") + kNoAnswer);
  EXPECT_EQ(list, "Before");
}

TEST(ObservationTransfer, WritesByTurningOnAndOff) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  TurnAll(rig.units.ILObservation);
  EXPECT_EQ(rig.units.ILObservation.WriteSdk(), "");
  Lines expected;
  for (std::int32_t k = 1; k <= 11; ++k) {
    const bool on = k >= 4 && k <= 6;
    expected.push_back(Interlock(k, 1) + " -> " + (on ? "1" : "0"));
    expected.push_back("ControllerSettings." + std::string(on ? "Clear" : "Set") + "Interlock(" +
                       std::to_string(k) + ", 1)");
  }
  EXPECT_EQ(rig.journal.Lines(), expected);
}

TEST(ObservationTransfer, TheSecondWalkFindsWhatTheFirstOneWrote) {
  Rig rig("Harbour");
  SetUnits(rig.instrument(), {0, 6});
  for (std::int32_t k = 1; k <= 11; ++k) Fit(rig.instrument(), k, k <= 2 ? kControllable : 0);
  rig.ConnectAndReceive();
  rig.units.ILObservation.Status(2, 1);
  EXPECT_EQ(rig.units.ILObservation.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines(), (Lines{Interlock(1, 1) + " -> 0", Interlock(2, 1) + " -> 0",
                                        "ControllerSettings.SetInterlock(2, 1)",
                                        Interlock(1, 1) + " -> 0", Interlock(2, 1) + " -> 1"}));
}

TEST(ObservationTransfer, AnUnknownEntryIsAskedForAndNeverWritten) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(rig.units.ILObservation.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines().size(), 11U);
  EXPECT_TRUE(rig.journal.Writes().empty());
  rig.faults.Add({"ControllerSettings.Interlock(8, 1)"});
  EXPECT_EQ(rig.units.ILObservation.WriteSdk(), "InterLock Observation[Analyzer]");
}

TEST(ObservationTransfer, WhatCannotBeReadIsNotWrittenAndTheOthersAre) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  TurnAll(rig.units.ILObservation);
  rig.faults.Add({"ControllerSettings.Interlock(3, 1)"});
  EXPECT_EQ(rig.units.ILObservation.WriteSdk(), "InterLock Observation[Dia A.Stop]");
  EXPECT_EQ(rig.journal.Writes().size(), 10U);
  EXPECT_EQ(rig.instrument().Interlock(3, 1), 0);
}

TEST(ObservationTransfer, WhatCannotBeWrittenIsALineForEachWalkThatNamesIt) {
  for (const UnitsRow& row : kUnitsRows) {
    Rig rig("Harbour");
    SetUnits(rig.instrument(), row.units);
    rig.ConnectAndReceive();
    TurnAll(rig.units.ILObservation);
    rig.faults.Add({"ControllerSettings.SetInterlock"});
    rig.faults.Add({"ControllerSettings.ClearInterlock"});
    EXPECT_EQ(rig.units.ILObservation.WriteSdk(), Report(row.named));
    EXPECT_EQ(rig.journal.Writes().size(), row.named.size() > 11 ? 22U : 11U);
  }
}

TEST(ObservationTransfer, WithoutABodyAFailedLampIsNoLineAndAFailedCubeIs) {
  for (const int unit : {5, 6}) {
    Rig rig("Deck");
    SetUnits(rig.instrument(), {unit});
    rig.ConnectAndReceive();
    TurnAll(rig.units.ILObservation);
    rig.faults.Add({"ControllerSettings.SetInterlock(4, 1)"});
    EXPECT_EQ(rig.units.ILObservation.WriteSdk(), "");
    EXPECT_EQ(rig.instrument().Interlock(4, 1), 0);
    EXPECT_EQ(rig.instrument().Interlock(6, 1), 1);
    rig.faults.Add({"ControllerSettings.Interlock(6, 1)"});
    EXPECT_EQ(rig.units.ILObservation.WriteSdk(), "InterLock Observation[Filter Cube]");
  }
}

TEST(ObservationTransfer, ANumberThatIsNeitherOnNorOffIsKeptAndWrittenAsOff) {
  Rig rig("Harbour");
  rig.instrument().Interlock(1, 1) = 2;
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.ILObservation.Status(1), 2);
  std::string list;
  EXPECT_EQ(rig.units.ILObservation.ModifySdk(list), "");
  EXPECT_EQ(list, "");
  rig.instrument().Interlock(1, 1) = 1;
  EXPECT_EQ(rig.units.ILObservation.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(), Lines{"ControllerSettings.ClearInterlock(1, 1)"});
}

}  // namespace
}  // namespace mortane::test

// What follows nosepiece, light path and zoom: comparing and writing it, beyond the drill.
#include <gtest/gtest.h>

#include "interlocks/InterlockRig.h"

namespace mortane::test {
namespace {

constexpr std::int32_t kByZoom = 2;
constexpr std::int32_t kByNosepiece = 3;
constexpr std::int32_t kByLightPath = 4;

const Lines kNosepieceLines{"InterLock Other[ND]",           "InterLock Other[Dia F.Stop]",
                            "InterLock Other[Dia A.Stop]",   "InterLock Other[Condenser]",
                            "InterLock Other[Foucus Stage]", "InterLock Other[XY Stage]"};
const Lines kZoomFailures{"InterLock Other [Optical Zoom : 1 ND]",
                          "InterLock Other [Optical Zoom : 2 DiaFStop]",
                          "InterLock Other [Optical Zoom : 13 EpiFStop]"};
const Lines kLightPathFailures{"InterLock Other [Light Path : 1 ND]",
                               "InterLock Other [Light Path : 2 DiaFStop]",
                               "InterLock Other [Light Path : 13 EpiFStop]"};

// Turns every state that is known.
void TurnAll(clsInterLockOther& unit) {
  for (std::int32_t k = 1; k <= 14; ++k) {
    unit.Status(k, 1 - unit.Status(k));
    unit.LightPathStatus(k, 1 - unit.LightPathStatus(k));
    unit.ZoomStatus(k, 1 - unit.ZoomStatus(k));
  }
}

std::string Turned(std::int32_t item, std::int32_t trigger, bool on) {
  return "ControllerSettings." + std::string(on ? "Set" : "Clear") + "Interlock(" +
         std::to_string(item) + ", " + std::to_string(trigger) + ")";
}

// A model with everything turned, on an instrument that the test may still change.
struct TurnedRig : Rig {
  TurnedRig() : Rig("Harbour") {
    ConnectAndReceive();
    TurnAll(units.ILOther);
  }
};

std::string DifferencesOf(Rig& rig) {
  std::string list;
  EXPECT_EQ(rig.units.ILOther.ModifySdk(list), "");
  return list;
}

TEST(OtherInterlocksModify, ListsByNumberWithTheFollowersOfZoomAndLightPathFromTheEpiFieldStopOn) {
  TurnedRig rig;
  std::string list = "Before";
  EXPECT_EQ(rig.units.ILOther.ModifySdk(list), "");
  EXPECT_EQ(list,
            Report({"Before", "InterLock Other[ND]", "InterLock Other[Dia F.Stop]",
                    "InterLock Other[Dia A.Stop]", "InterLock Other[Condenser]",
                    "InterLock Optical Zoom [Epi FieldStop]", "InterLock Optical Zoom [FieldStop]",
                    "InterLock Optical Zoom [ND Filter]", "InterLock Light Path [Epi FieldStop]",
                    "InterLock Light Path [FieldStop]", "InterLock Light Path [ND Filter]",
                    "InterLock Other[Foucus Stage]", "InterLock Other[XY Stage]"}));
  EXPECT_EQ(
      rig.journal.Lines(),
      (Lines{Interlock(1, 3) + " -> 1", Interlock(2, 3) + " -> 0", Interlock(3, 3) + " -> 1",
             Interlock(5, 3) + " -> 0", Interlock(13, 2) + " -> 0", Interlock(2, 2) + " -> 1",
             Interlock(1, 2) + " -> 0", Interlock(13, 4) + " -> 1", Interlock(2, 4) + " -> 0",
             Interlock(1, 4) + " -> 0", Interlock(12, 3) + " -> 1", Interlock(14, 3) + " -> 1"}));
}

TEST(OtherInterlocksModify, TheCopiesOfTheEpiFieldStopAreNotCompared) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.ILOther.Status(10, 1);
  rig.units.ILOther.Status(11, 0);
  EXPECT_EQ(DifferencesOf(rig), "");
  EXPECT_EQ(rig.units.ILOther.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(OtherInterlocksModify, AComparisonThatFailsAddsNoLine) {
  TurnedRig rig;
  rig.faults.Add({"ControllerSettings.Interlock(14, 3)"});
  std::string list = "Before";
  EXPECT_EQ(rig.units.ILOther.ModifySdk(list), std::string("InterLock Other (") + kNoAnswer);
  EXPECT_EQ(list, "Before");
}

struct GateRow {
  std::int32_t number;
  std::int32_t mounted;
  std::size_t differences;  // of 12
};

const GateRow kGateRows[] = {
    {accessory::kNosepiece, kSensorOnly, 6},     {accessory::kNosepiece, kNotMounted, 6},
    {accessory::kOpticalZoom, kSensorOnly, 12},  {accessory::kOpticalZoom, kNotMounted, 9},
    {accessory::kLightPath, kSensorOnly, 12},    {accessory::kLightPath, kNotMounted, 9},
    {accessory::kNDFilter, kSensorOnly, 9},      {accessory::kNDFilter, kNotMounted, 9},
    {accessory::kDiaFieldStop, kSensorOnly, 9},  {accessory::kDiaFieldStop, kNotMounted, 9},
    {accessory::kEpiFieldStop, kSensorOnly, 10}, {accessory::kEpiFieldStop, kNotMounted, 10},
    {accessory::kCondenser, kSensorOnly, 11},    {accessory::kXYStage, kSensorOnly, 11},
    {accessory::kZFocusDrive, kNotMounted, 11},  {accessory::kDiaApertureStop, kSensorOnly, 11},
};

// The states come from a file, since a read leaves unknown what is not mounted.
TEST(OtherInterlocksModify, OnlyWhatIsMountedIsComparedAndWritten) {
  for (const GateRow& row : kGateRows) {
    TurnedRig source;
    DomDocument document;
    ASSERT_TRUE(document.LoadText(FileTextOf(source.units.ILOther)));

    Rig rig("Harbour");
    Fit(rig.instrument(), row.number, row.mounted);
    rig.Connect();
    for (const DomNode& element : document.Children().at(0).Children()) {
      if (element.Name() == "OTHER") rig.units.ILOther.ReadDom(element);
      if (element.Name() == "LIGHTPATH") rig.units.ILOther.ReadLPDom(element);
      if (element.Name() == "ZOOM") rig.units.ILOther.ReadZMDom(element);
    }
    DifferencesOf(rig);
    EXPECT_EQ(rig.journal.Lines().size(), row.differences) << row.number << ' ' << row.mounted;
    rig.journal.Clear();
    EXPECT_EQ(rig.units.ILOther.WriteSdk(), "");
    EXPECT_EQ(rig.journal.Lines().size(), 2 * row.differences) << row.number << ' ' << row.mounted;
    EXPECT_EQ(rig.journal.Writes().size(), row.differences) << row.number << ' ' << row.mounted;
    EXPECT_EQ(DifferencesOf(rig), "");
  }
}

TEST(OtherInterlocksModify, ZoomAndLightPathNeedNoBodyToBeComparedAndWritten) {
  Rig rig("Harbour");
  SetUnits(rig.instrument(), {5});
  rig.ConnectAndReceive();
  DomDocument document;
  ASSERT_TRUE(document.LoadText(R"(<ZOOM POSITION="ND" CODE="True"/>)"));
  EXPECT_EQ(rig.units.ILOther.ReadZMDom(document.Children().at(0)), "");
  EXPECT_EQ(DifferencesOf(rig), "InterLock Optical Zoom [ND Filter]");
  EXPECT_EQ(rig.units.ILOther.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(), Lines{Turned(1, kByZoom, true)});
}

TEST(OtherInterlocksModify, WhatIsUnknownIsNotAskedFor) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(DifferencesOf(rig), "");
  EXPECT_EQ(rig.units.ILOther.WriteSdk(), "");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(OtherInterlocksWrite, GoesOverNosepieceZoomAndLightPathInThisOrder) {
  TurnedRig rig;
  EXPECT_EQ(rig.units.ILOther.WriteSdk(), "");
  Lines expected;
  const auto turned = [&](std::int32_t item, std::int32_t trigger, bool on) {
    expected.push_back(Interlock(item, trigger) + " -> " + (on ? "0" : "1"));
    expected.push_back(Turned(item, trigger, on));
  };
  turned(1, kByNosepiece, false);
  turned(2, kByNosepiece, true);
  turned(3, kByNosepiece, false);
  turned(5, kByNosepiece, true);
  turned(12, kByNosepiece, false);
  turned(14, kByNosepiece, false);
  turned(1, kByZoom, true);
  turned(2, kByZoom, false);
  turned(13, kByZoom, true);
  turned(1, kByLightPath, true);
  turned(2, kByLightPath, true);
  turned(13, kByLightPath, false);
  EXPECT_EQ(rig.journal.Lines(), expected);
}

TEST(OtherInterlocksWrite, WhatIsEqualIsReadAndNotWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.ILOther.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines().size(), 12U);
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(OtherInterlocksWrite, EachItemThatCannotBeReadOrWrittenIsALineAndTheOthersAreWritten) {
  const auto expectLines = [](std::int32_t trigger, std::initializer_list<std::int32_t> items,
                              const Lines& lines) {
    std::size_t line = 0;
    for (const std::int32_t item : items) {
      for (const char* operation : {"Interlock", "SetInterlock", "ClearInterlock"}) {
        TurnedRig rig;
        const bool wasOn = rig.instrument().Interlock(item, trigger) == 1;
        if (operation == std::string(wasOn ? "SetInterlock" : "ClearInterlock")) continue;
        rig.faults.Add({"ControllerSettings." + std::string(operation) + "(" +
                        std::to_string(item) + ", " + std::to_string(trigger) + ")"});
        EXPECT_EQ(rig.units.ILOther.WriteSdk(), lines[line]) << item << ' ' << operation;
        EXPECT_EQ(rig.instrument().Interlock(item, trigger) == 1, wasOn);
        EXPECT_EQ(rig.journal.Writes().size(), operation == std::string("Interlock") ? 11U : 12U);
      }
      ++line;
    }
  };
  expectLines(kByNosepiece, {1, 2, 3, 5, 12, 14}, kNosepieceLines);
  expectLines(kByZoom, {1, 2, 13}, kZoomFailures);
  expectLines(kByLightPath, {1, 2, 13}, kLightPathFailures);
}

TEST(OtherInterlocksWrite, AllLinesStandInTheOrderOfTheThreePasses) {
  TurnedRig rig;
  rig.faults.Add({"ControllerSettings"});
  EXPECT_EQ(rig.units.ILOther.WriteSdk(),
            Report({Report(kNosepieceLines), Report(kZoomFailures), Report(kLightPathFailures)}));
}

TEST(OtherInterlocksWrite, ANumberThatIsNeitherOnNorOffIsWrittenAsOff) {
  Rig rig("Harbour");
  rig.instrument().Interlock(2, kByNosepiece) = 2;
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.ILOther.Status(2), 2);
  rig.instrument().Interlock(2, kByNosepiece) = 1;
  EXPECT_EQ(rig.units.ILOther.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(), Lines{Turned(2, kByNosepiece, false)});
}

}  // namespace
}  // namespace mortane::test

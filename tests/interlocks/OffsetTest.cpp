// The compensation of ND filter and stops, beyond the drill.
#include <gtest/gtest.h>

#include "interlocks/InterlockRig.h"
#include "interlocks/clsInterLockOffset.h"

namespace mortane::test {
namespace {

std::string Codes(const clsInterLockOffset& unit) {
  return std::to_string(unit.curND) + " " + std::to_string(unit.curFStop) + " " +
         std::to_string(unit.curEpiFStop) + " " + std::to_string(unit.curAStop);
}

std::string Element(const std::string& position, const std::string& code) {
  return "<OFFSET POSITION=\"" + position + "\" CODE=\"" + code + "\"/>";
}

void SetAll(clsInterLockOffset& unit, std::int32_t code) {
  unit.curND = unit.curFStop = unit.curEpiFStop = unit.curAStop = code;
}

TEST(Offset, IsUnknownBeforeTheFirstRead) {
  const Rig rig("Harbour");
  EXPECT_EQ(Codes(rig.units.ILOffset), "-1 -1 -1 -1");
  EXPECT_FALSE(rig.units.ILOffset.IsEnable());
}

TEST(Offset, ReadsTheFourInOrder) {
  Rig rig("Harbour");
  rig.instrument().Accessory(accessory::kEpiFieldStop).offsetCode = 7;
  rig.instrument().Accessory(accessory::kDiaApertureStop).offsetCode = 9;
  rig.Connect();
  EXPECT_EQ(rig.units.ILOffset.ReadSdk(), "");
  EXPECT_EQ(Codes(rig.units.ILOffset), "5 0 7 9");
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"NDFilterDevice.OffsetCode -> 5", "FieldStopDevice.OffsetCode -> 0",
                   "EpiFieldStopDevice.OffsetCode -> 7", "ApertureStopDevice.OffsetCode -> 9"}));
}

TEST(Offset, ACodeThatNoListHasIsReadAndLeftAlone) {
  Rig rig("Attic");
  rig.Connect();
  EXPECT_EQ(rig.units.ILOffset.ReadSdk(), "");
  EXPECT_EQ(Codes(rig.units.ILOffset), "12 12 12 12");
  EXPECT_TRUE(rig.units.ILOffset.IsEnable());
  EXPECT_EQ(rig.units.ILOffset.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(Offset, WithoutTheBodyNothingIsReadComparedOrWritten) {
  Rig rig("Harbour");
  SetUnits(rig.instrument(), {1, 2, 3, 4, 5, 6});
  rig.Connect();
  SetAll(rig.units.ILOffset, 3);
  EXPECT_FALSE(rig.units.ILOffset.IsEnable());
  std::string list = "Before";
  EXPECT_EQ(rig.units.ILOffset.ModifySdk(list), "");
  EXPECT_EQ(list, "Before");
  EXPECT_EQ(rig.units.ILOffset.WriteSdk(), "");
  EXPECT_EQ(Codes(rig.units.ILOffset), "3 3 3 3");
  EXPECT_EQ(rig.units.ILOffset.ReadSdk(), "");
  EXPECT_EQ(Codes(rig.units.ILOffset), "-1 -1 -1 -1");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(Offset, WhatIsAbsentOrOnlySensedIsNotAsked) {
  Rig rig("Harbour");
  Fit(rig.instrument(), accessory::kDiaFieldStop, kSensorOnly);
  Fit(rig.instrument(), accessory::kDiaApertureStop, kNotMounted);
  rig.Connect();
  SetAll(rig.units.ILOffset, 3);
  EXPECT_EQ(rig.units.ILOffset.ReadSdk(), "");
  EXPECT_EQ(Codes(rig.units.ILOffset), "5 -1 0 -1");
  EXPECT_EQ(rig.journal.Lines().size(), 2U);
}

TEST(Offset, AReadThatFailsKeepsWhatItFoundAndForgetsTheRest) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"get EpiFieldStopDevice.OffsetCode"});
  EXPECT_EQ(rig.units.ILOffset.ReadSdk(), std::string("InterLock Offset (") + kNoAnswer);
  EXPECT_EQ(Codes(rig.units.ILOffset), "5 0 -1 -1");
}

TEST(Offset, OneKnownAndMountedAccessoryEnables) {
  for (std::int32_t clsInterLockOffset::*code :
       {&clsInterLockOffset::curND, &clsInterLockOffset::curFStop, &clsInterLockOffset::curEpiFStop,
        &clsInterLockOffset::curAStop}) {
    Rig rig("Harbour");
    rig.Connect();
    rig.units.ILOffset.*code = 0;
    EXPECT_TRUE(rig.units.ILOffset.IsEnable());
    rig.units.ILOffset.*code = -1;
    EXPECT_FALSE(rig.units.ILOffset.IsEnable());
  }
}

TEST(Offset, AnEpiFieldStopThatIsNotMountedDoesNotEnableAndNothingIsSentForIt) {
  for (const std::int32_t mounted : {kNotMounted, kSensorOnly}) {
    Rig rig("Harbour");
    for (const std::int32_t number : {1, 2, 3, 13}) Fit(rig.instrument(), number, 0);
    Fit(rig.instrument(), accessory::kEpiFieldStop, mounted);
    rig.ConnectAndReceive();
    EXPECT_EQ(ReadElement(rig.units.ILOffset, Element("EpiFStop", "4")), "");
    EXPECT_EQ(rig.units.ILOffset.curEpiFStop, 4);
    EXPECT_FALSE(rig.units.ILOffset.IsEnable());
    EXPECT_EQ(rig.units.ILOffset.WriteSdk(), "");
    EXPECT_EQ(rig.journal.CallCount(), 0U);
  }
}

TEST(Offset, AnUnknownCodeIsNeitherAskedForNorWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  SetAll(rig.units.ILOffset, 8);
  rig.units.ILOffset.curND = rig.units.ILOffset.curEpiFStop = -1;
  std::string list;
  EXPECT_EQ(rig.units.ILOffset.ModifySdk(list), "");
  EXPECT_EQ(list, "InterLock Offset[Dia F.Stop]\r\nInterLock Offset[Dia A.Stop]");
  EXPECT_EQ(rig.units.ILOffset.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"FieldStopDevice.OffsetCode -> 0", "ApertureStopDevice.OffsetCode -> 0",
                   "FieldStopDevice.OffsetCode -> 0", "FieldStopDevice.OffsetCode = 8",
                   "ApertureStopDevice.OffsetCode -> 0", "ApertureStopDevice.OffsetCode = 8"}));
}

TEST(Offset, WritesTheFourInOrder) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  SetAll(rig.units.ILOffset, 8);
  EXPECT_EQ(rig.units.ILOffset.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"NDFilterDevice.OffsetCode -> 5", "NDFilterDevice.OffsetCode = 8",
                   "FieldStopDevice.OffsetCode -> 0", "FieldStopDevice.OffsetCode = 8",
                   "EpiFieldStopDevice.OffsetCode -> 0", "EpiFieldStopDevice.OffsetCode = 8",
                   "ApertureStopDevice.OffsetCode -> 0", "ApertureStopDevice.OffsetCode = 8"}));
}

TEST(Offset, AComparisonThatFailsAddsNoLine) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  SetAll(rig.units.ILOffset, 8);
  rig.faults.Add({"get ApertureStopDevice.OffsetCode"});
  std::string list = "Before";
  EXPECT_EQ(rig.units.ILOffset.ModifySdk(list), std::string("InterLock Offset (") + kNoAnswer);
  EXPECT_EQ(list, "Before");
}

TEST(Offset, AFailedWriteOfTheEpiFieldStopSaysCondenser) {
  for (const char* call : {"get EpiFieldStopDevice.OffsetCode", "put EpiFieldStopDevice.OffsetCode",
                           "EpiFieldStopDevice"}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    SetAll(rig.units.ILOffset, 8);
    rig.faults.Add({call});
    EXPECT_EQ(rig.units.ILOffset.WriteSdk(), "InterLock Offset[Condenser]") << call;
    EXPECT_EQ(rig.instrument().Accessory(accessory::kEpiFieldStop).offsetCode, 0) << call;
    EXPECT_EQ(rig.instrument().Accessory(accessory::kDiaApertureStop).offsetCode, 8) << call;
  }
}

TEST(Offset, WhatCannotBeWrittenIsALineEach) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  SetAll(rig.units.ILOffset, 8);
  for (const char* device :
       {"NDFilterDevice", "FieldStopDevice", "EpiFieldStopDevice", "ApertureStopDevice"}) {
    rig.faults.Add({"put " + std::string(device) + ".OffsetCode"});
  }
  EXPECT_EQ(rig.units.ILOffset.WriteSdk(),
            "InterLock Offset[ND]\r\nInterLock Offset[Dia F.Stop]\r\n"
            "InterLock Offset[Condenser]\r\nInterLock Offset[Dia A.Stop]");
}

TEST(Offset, TheFileHasTheFourInOrderAlsoWhenUnknown) {
  Rig rig("Harbour");
  rig.units.ILOffset.curND = 5;
  rig.units.ILOffset.curEpiFStop = 12;
  EXPECT_EQ(FileTextOf(rig.units.ILOffset),
            "<SECTION>" + Element("ND", "5") + Element("DiaFStop", "-1") +
                Element("EpiFStop", "12") + Element("DiaAStop", "-1") + "</SECTION>");
}

TEST(Offset, AFileOfUnknownCodesLeavesThemAlone) {
  const Rig source("Harbour");
  DomDocument document;
  ASSERT_TRUE(document.LoadText(FileTextOf(source.units.ILOffset)));
  Rig rig("Harbour");
  SetAll(rig.units.ILOffset, 6);
  for (const DomNode& element : document.Children().at(0).Children()) {
    EXPECT_EQ(rig.units.ILOffset.ReadDom(element), "");
  }
  EXPECT_EQ(Codes(rig.units.ILOffset), "6 6 6 6");
}

struct FileRow {
  const char* position;
  const char* code;
  const char* codes;
};

TEST(Offset, ElementsAreReadWithoutRegardToCase) {
  for (const FileRow& row : {FileRow{"nd", "0", "0 6 6 6"}, FileRow{"DIAFSTOP", "9", "6 9 6 6"},
                             FileRow{"epifstop", "1", "6 6 1 6"},
                             FileRow{"dIAaSTOP", " 2 ", "6 6 6 2"}, FileRow{"ND", "4.5", "4 6 6 6"},
                             FileRow{"ND", "5.5", "6 6 6 6"}, FileRow{"ND", "8.5", "8 6 6 6"}}) {
    Rig rig("Harbour");
    SetAll(rig.units.ILOffset, 6);
    EXPECT_EQ(ReadElement(rig.units.ILOffset, "<offset position=\"" + std::string(row.position) +
                                                  "\" code=\"" + row.code + "\" x=\"1\"/>"),
              "");
    EXPECT_EQ(Codes(rig.units.ILOffset), row.codes) << row.position << ' ' << row.code;
  }
}

TEST(Offset, ACodeOfTenOrOfMinusOneChangesNothing) {
  for (const char* code : {"10", "-1", "-2", "2147483647", "10.5"}) {
    Rig rig("Harbour");
    SetAll(rig.units.ILOffset, 6);
    EXPECT_EQ(ReadElement(rig.units.ILOffset, Element("ND", code)), "");
    EXPECT_EQ(Codes(rig.units.ILOffset), "6 6 6 6") << code;
  }
}

TEST(Offset, ACodeThatIsNoNumberIsZero) {
  for (const char* code : {"abc", "", "5x", "0x5", "1e300", "2147483648", "nan"}) {
    Rig rig("Harbour");
    SetAll(rig.units.ILOffset, 6);
    EXPECT_EQ(ReadElement(rig.units.ILOffset, Element("ND", code)), "");
    EXPECT_EQ(Codes(rig.units.ILOffset), "0 6 6 6") << code;
  }
}

struct BenchRow {
  const char* bench;
  const char* codes;
  bool enabled;
};

TEST(Offset, OfEachBench) {
  for (const BenchRow& row :
       {BenchRow{"Quay", "5 0 0 0", true}, BenchRow{"Harbour", "5 0 0 0", true},
        BenchRow{"Lantern", "0 0 -1 0", true}, BenchRow{"Hub", "-1 -1 -1 -1", false},
        BenchRow{"Pair", "-1 -1 -1 -1", false}, BenchRow{"Outpost", "-1 -1 -1 -1", false},
        BenchRow{"Relay", "-1 -1 -1 -1", false}, BenchRow{"Deck", "-1 -1 -1 -1", false},
        BenchRow{"DeckRemote", "-1 -1 -1 -1", false}, BenchRow{"Watch", "-1 -1 -1 -1", false},
        BenchRow{"Shell", "-1 -1 -1 -1", false}, BenchRow{"Hollow", "0 0 0 0", true},
        BenchRow{"Attic", "12 12 12 12", true}}) {
    Rig rig(row.bench);
    rig.Connect();
    EXPECT_EQ(rig.units.ILOffset.ReadSdk(), "") << row.bench;
    EXPECT_EQ(Codes(rig.units.ILOffset), row.codes) << row.bench;
    EXPECT_EQ(rig.units.ILOffset.IsEnable(), row.enabled) << row.bench;
  }
}

}  // namespace
}  // namespace mortane::test

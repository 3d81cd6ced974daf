// The filter cubes against the controller: what differs, what is written, and what fails.
#include <gtest/gtest.h>

#include "filters/FilterUnits.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

constexpr std::size_t kFirstOption = 10;  // place of the first option in Harbour's list of cubes
constexpr const char* kRatio = "AccessoryDatabase.FilterCubes.Item(11).";

std::string DifferencesOf(const clsDbFilter& cubes) {
  std::string list;
  EXPECT_EQ(cubes.ModifySdk(list), "");
  return list;
}

TEST(FilterCubeTransfer, TrailingBlanksMakeNoDifferenceAndOtherBlanksDo) {
  struct Row {
    const char* held;
    bool differs;
  };
  for (const Row row : {Row{"Ratio", false}, Row{"Ratio   ", false}, Row{" Ratio", true},
                        Row{"Ratio\t", true}, Row{"RATIO", true}, Row{"Rat io", true}}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.instrument().database.cubes[kFirstOption].name = row.held;
    EXPECT_EQ(DifferencesOf(rig.units.dbFilter),
              row.differs ? "Filter Cube Optional Cube[1] Ratio" : "")
        << '"' << row.held << '"';
    rig.journal.Clear();
    EXPECT_EQ(rig.units.dbFilter.WriteSdk(), "");
    EXPECT_EQ(rig.journal.Writes().size(), row.differs ? 4U : 0U) << '"' << row.held << '"';
  }
}

TEST(FilterCubeTransfer, EachItemAloneMakesADifference) {
  for (auto controller::CubeData::*item :
       {&controller::CubeData::exciter, &controller::CubeData::dichroic,
        &controller::CubeData::barrier}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.instrument().database.cubes[kFirstOption].*item = 7;
    EXPECT_EQ(DifferencesOf(rig.units.dbFilter), "Filter Cube Optional Cube[1] Ratio");
    EXPECT_EQ(rig.units.dbFilter.WriteSdk(), "");
    EXPECT_EQ(DifferencesOf(rig.units.dbFilter), "");
  }
}

TEST(FilterCubeTransfer, FixedCubesAreNeitherComparedNorWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.instrument().database.cubes[0].name = "Renamed";
  rig.instrument().database.cubes[9].barrier = 1;
  EXPECT_EQ(DifferencesOf(rig.units.dbFilter), "");
  EXPECT_EQ(rig.units.dbFilter.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(FilterCubeTransfer, ALongNameStandsInFullInItsLineAndInTheController) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ReadElement(rig.units.dbFilter,
              R"(<OPTION POSITION="2" CODE="100120023003" NAME="A name of more than ten"/>)");
  EXPECT_EQ(DifferencesOf(rig.units.dbFilter),
            "Filter Cube Optional Cube[2] A name of more than ten");
  EXPECT_EQ(rig.units.dbFilter.WriteSdk(), "");
  EXPECT_EQ(rig.instrument().database.cubes[kFirstOption + 1].name, "A name of more than ten");
}

TEST(FilterCubeTransfer, AnItemThatWasDroppedOnReadingIsADifference) {
  Rig rig("Harbour");
  rig.Connect();
  rig.instrument().database.cubes[kFirstOption].dichroic = 300;
  rig.prompts.ExpectBox("*** DbFilter.DataError 241", box::kOk);
  EXPECT_EQ(rig.units.Receive(), "");
  EXPECT_EQ(DifferencesOf(rig.units.dbFilter), "Filter Cube Optional Cube[1] Ratio");
  EXPECT_EQ(rig.units.dbFilter.WriteSdk(), "");
  EXPECT_EQ(rig.instrument().database.cubes[kFirstOption].dichroic, 0);
}

TEST(FilterCubeTransfer, AnOptionElsewhereInTheListIsNumberedFromTheSameBase) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.instrument().database.cubes[kFirstOption].code = 30;
  rig.instrument().database.cubes[kFirstOption + 8].code = 240;
  EXPECT_EQ(DifferencesOf(rig.units.dbFilter),
            "Filter Cube Optional Cube[-210] \r\nFilter Cube Optional Cube[0] ");
}

TEST(FilterCubeTransfer, AnOptionBeyondTheListEndsTheComparisonAndIsALineOfTheWrite) {
  for (const std::int32_t code : {-1, 250}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.instrument().database.cubes[kFirstOption + 1].code = code;
    rig.units.dbFilter.Set_DbFilterOption(1, "One", 1, 1, 1);
    rig.units.dbFilter.Set_DbFilterOption(3, "Three", 3, 3, 3);
    std::string list;
    EXPECT_EQ(rig.units.dbFilter.ModifySdk(list), "Filter Cube Optional Cube(Mortane:9)");
    EXPECT_EQ(list, "Filter Cube Optional Cube[1] One");
    EXPECT_EQ(rig.units.dbFilter.WriteSdk(),
              "Filter Cube Optional Cube[" + std::to_string(code - 240) + "]");
    EXPECT_EQ(rig.journal.Writes().size(), 8U);
  }
}

TEST(FilterCubeTransfer, WithoutATurretStillWalksOverTheCubesOfTheController) {
  Rig rig("Harbour");
  rig.instrument().Accessory(accessory::kFilterCube).state = 0;
  rig.ConnectAndReceive();
  std::string lines;
  for (int n = 1; n <= 9; ++n) {
    lines = AppendLine(lines, "Filter Cube Optional Cube[" + std::to_string(n) + "] ");
  }
  EXPECT_EQ(DifferencesOf(rig.units.dbFilter), lines);
  EXPECT_EQ(rig.units.dbFilter.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes().size(), 36U);
  EXPECT_EQ(DifferencesOf(rig.units.dbFilter), "");
}

TEST(FilterCubeTransfer, TheLineOfAComparisonThatFailsHasNoBlank) {
  for (const char* call : {"AccessoryDatabase", "AccessoryDatabase.FilterCubes",
                           "AccessoryDatabase.FilterCubes.Item(11).IsOption"}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.faults.Add({call, 0, "DB", 55, ""});
    std::string list = "Before";
    EXPECT_EQ(rig.units.dbFilter.ModifySdk(list), "Filter Cube Optional Cube(DB:37)");
    EXPECT_EQ(list, "Before");
  }
}

TEST(FilterCubeTransfer, TheLineOfAReadThatFailsHasABlank) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"AccessoryDatabase.FilterCubes"});
  EXPECT_EQ(rig.units.dbFilter.ReadSdk(), "Filter Cube Optional Cube (LIB:80004005)");
}

TEST(FilterCubeTransfer, AReadThatFailsKeepsTheCubesBeforeTheFailure) {
  Rig rig("Harbour");
  rig.Connect();
  rig.faults.Add({"AccessoryDatabase.FilterCubes.Item(3).BarrierCode"});
  EXPECT_EQ(rig.units.dbFilter.ReadSdk(), "Filter Cube Optional Cube (LIB:80004005)");
  EXPECT_EQ(rig.units.dbFilter.Name(2), "UV Blue");
  EXPECT_EQ(rig.units.dbFilter.Name(4), "");
}

// One record's members fail in turn, and after it a second record is due.
class FilterCubeFailures : public testing::TestWithParam<const char*> {
 protected:
  FilterCubeFailures() : rig_("Harbour") {
    rig_.ConnectAndReceive();
    rig_.units.dbFilter.Set_DbFilterOption(1, "One", 1, 1, 1);
    rig_.units.dbFilter.Set_DbFilterOption(9, "Nine", 9, 9, 9);
  }

  void Fail(const std::string& kind) { rig_.faults.Add({kind + kRatio + GetParam()}); }

  Rig rig_;
};

TEST_P(FilterCubeFailures, OfAValueReadLeaveTheRecordUnwrittenAndGoOn) {
  Fail("get ");
  EXPECT_EQ(rig_.units.dbFilter.WriteSdk(), "Filter Cube Optional Cube[1]");
  EXPECT_EQ(rig_.journal.Writes(),
            (std::vector<std::string>{"AccessoryDatabase.FilterCubes.Item(19).Name = \"Nine\"",
                                      "AccessoryDatabase.FilterCubes.Item(19).ExciterCode = 9",
                                      "AccessoryDatabase.FilterCubes.Item(19).DichroicCode = 9",
                                      "AccessoryDatabase.FilterCubes.Item(19).BarrierCode = 9"}));
}

TEST_P(FilterCubeFailures, OfAValueWrittenLetTheOtherThreeThrough) {
  Fail("put ");
  EXPECT_EQ(rig_.units.dbFilter.WriteSdk(), "Filter Cube Optional Cube[1]");
  EXPECT_EQ(rig_.journal.Writes().size(), 8U);
  const auto& held = rig_.instrument().database.cubes[kFirstOption];
  const std::string failed = GetParam();
  EXPECT_EQ(held.name, failed == "Name" ? "Ratio" : "One");
  EXPECT_EQ(held.exciter, failed == "ExciterCode" ? 241 : 1);
  EXPECT_EQ(held.dichroic, failed == "DichroicCode" ? 4 : 1);
  EXPECT_EQ(held.barrier, failed == "BarrierCode" ? 5 : 1);
  EXPECT_EQ(rig_.instrument().database.cubes.back().name, "Nine");
}

TEST_P(FilterCubeFailures, OfAComparisonEndItThere) {
  Fail("get ");
  std::string list = "Before";
  EXPECT_EQ(rig_.units.dbFilter.ModifySdk(list), "Filter Cube Optional Cube(LIB:80004005)");
  EXPECT_EQ(list, "Before");
}

INSTANTIATE_TEST_SUITE_P(Values, FilterCubeFailures,
                         testing::Values("Name", "ExciterCode", "DichroicCode", "BarrierCode"),
                         [](const auto& row) { return std::string(row.param); });

TEST(FilterCubeTransfer, ARecordThatTakesNothingIsOneLine) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.dbFilter.Set_DbFilterOption(1, "One", 1, 1, 1);
  for (const char* member : {"Name", "ExciterCode", "DichroicCode", "BarrierCode"}) {
    rig.faults.Add({std::string("put ") + kRatio + member});
  }
  EXPECT_EQ(rig.units.dbFilter.WriteSdk(), "Filter Cube Optional Cube[1]");
}

TEST(FilterCubeTransfer, AComparisonThatFailsLaterKeepsItsLines) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.dbFilter.Set_DbFilterOption(1, "One", 1, 1, 1);
  rig.units.dbFilter.Set_DbFilterOption(9, "Nine", 9, 9, 9);
  rig.faults.Add({"AccessoryDatabase.FilterCubes.Item(15).Code"});
  std::string list = "Before";
  EXPECT_EQ(rig.units.dbFilter.ModifySdk(list), "Filter Cube Optional Cube(LIB:80004005)");
  EXPECT_EQ(list, "Before\r\nFilter Cube Optional Cube[1] One");
}

}  // namespace
}  // namespace mortane::test

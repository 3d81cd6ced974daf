// The names of the condensers, beyond the drill.
#include <gtest/gtest.h>

#include <algorithm>

#include "condensers/CondenserUnits.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

controller::CondenserData& Record(Rig& rig, std::int32_t code) {
  auto& records = rig.instrument().database.condensers;
  return *std::find_if(
      records.begin(), records.end(),
      [&](const controller::CondenserData& record) { return record.code == code; });
}

std::string Modified(const CondenserUnits& units) {
  std::string list;
  EXPECT_EQ(units.dbcon.ModifySdk(list), "");
  return list;
}

TEST(CondenserNames, AnswerAndStoreForCodesUpTo149) {
  Rig rig("Harbour");
  clsDbCondenser& names = rig.units.dbcon;
  for (const std::int32_t code : {0, 1, 140, 141, 149}) {
    names.Name(code, "N" + std::to_string(code));
    EXPECT_EQ(names.Name(code), "N" + std::to_string(code));
  }
  for (const std::int32_t code : {-1, 150, 249, 2147483647}) {
    names.Name(code, "No");
    EXPECT_EQ(names.Name(code), "");
  }
}

TEST(CondenserNames, KeepTenCharacters) {
  Rig rig("Harbour");
  rig.units.dbcon.Name(141, "ABCDEFGHIJKLM");
  EXPECT_EQ(rig.units.dbcon.Name(141), "ABCDEFGHIJ");
  rig.units.dbcon.Name(141, "äöüäöüäöüäöü");
  EXPECT_EQ(rig.units.dbcon.Name(141), "äöüäöüäöüä");
}

TEST(CondenserNames, AreReadWhole) {
  Rig rig("Harbour");
  Record(rig, 141).name = "Twelve chars";
  rig.units.dbcon.Name(100, "Stale");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.dbcon.Name(1), "Bright");
  EXPECT_EQ(rig.units.dbcon.Name(141), "Twelve chars");
  EXPECT_EQ(rig.units.dbcon.Name(100), "");
}

TEST(CondenserNames, ACodeBeyondTheTableEndsTheRead) {
  for (const std::int32_t code : {150, -1}) {
    Rig rig("Harbour");
    Record(rig, 2).code = code;
    rig.Connect();
    EXPECT_EQ(rig.units.dbcon.ReadSdk(), "Condenser Option (Mortane:9)");
    EXPECT_EQ(rig.units.dbcon.Name(1), "Bright");
    EXPECT_EQ(rig.units.dbcon.Name(3), "");
  }
}

TEST(CondenserNames, WithoutACondenserStayEmptyAndAreComparedAndWrittenAllTheSame) {
  Rig rig("Lantern");
  rig.units.dbcon.Name(1, "Stale");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.dbcon.ReadSdk(), "");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  for (std::int32_t code = 0; code < 150; ++code) EXPECT_EQ(rig.units.dbcon.Name(code), "");
  EXPECT_TRUE(Modified(rig.units).starts_with("Optional Condenser[1] \r\nOptional Condenser[2] "));
  EXPECT_EQ(rig.units.dbcon.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes().size(), 9U);
  EXPECT_EQ(Record(rig, 141).name, "");
  EXPECT_EQ(Modified(rig.units), "");
}

TEST(CondenserNames, BlanksBehindANameDoNotCount) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  Record(rig, 141).name = "Slit  ";
  EXPECT_EQ(Modified(rig.units), "");
  Record(rig, 141).name = "  Slit";
  EXPECT_EQ(Modified(rig.units), "Optional Condenser[1] Slit");
}

TEST(CondenserNames, StandInFullInTheirLineAndAreWrittenAsTheyStand) {
  Rig rig("Harbour");
  Record(rig, 142).name = "Twelve chars  ";
  rig.ConnectAndReceive();
  Record(rig, 142).name = "Other";
  EXPECT_EQ(Modified(rig.units), "Optional Condenser[2] Twelve chars  ");
  EXPECT_EQ(rig.units.dbcon.WriteSdk(), "");
  EXPECT_EQ(Record(rig, 142).name, "Twelve chars  ");
}

TEST(CondenserNames, OnlyOptionsAreComparedAndWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.dbcon.Name(1, "Dark");
  EXPECT_EQ(Modified(rig.units), "");
  EXPECT_EQ(rig.units.dbcon.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
  Record(rig, 1).option = true;
  EXPECT_EQ(Modified(rig.units), "Optional Condenser[-139] Dark");
}

struct WriteFault {
  const char* call;
  const char* lines;
  Lines writes;
};

TEST(CondenserNames, AFailureIsALineAndTheScanGoesOn) {
  const std::string first = "AccessoryDatabase.Condensers.Item(10).Name = \"One\"";
  const std::string second = "AccessoryDatabase.Condensers.Item(11).Name = \"Two\"";
  for (const WriteFault& fault :
       {WriteFault{"put AccessoryDatabase.Condensers.Item(10).Name",
                   "Condenser Option[1]",
                   {first + " ! LIB:80004005", second}},
        WriteFault{
            "get AccessoryDatabase.Condensers.Item(10).Name", "Condenser Option[1]", {second}},
        WriteFault{"AccessoryDatabase.Condensers.Item(10).Code",
                   "Condenser Option (LIB:80004005)",
                   {second}},
        WriteFault{"AccessoryDatabase.Condensers.Item(10).IsOption",
                   "Condenser Option (LIB:80004005)",
                   {second}},
        WriteFault{"AccessoryDatabase.Condensers", "Condenser Option (LIB:80004005)", {}}}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.units.dbcon.Name(141, "One");
    rig.units.dbcon.Name(142, "Two");
    rig.faults.Add({fault.call});
    EXPECT_EQ(rig.units.dbcon.WriteSdk(), fault.lines) << fault.call;
    EXPECT_EQ(rig.journal.Writes(), fault.writes) << fault.call;
  }
}

TEST(CondenserNames, AnOptionBeyondTheTableIsItsLineAndIsNotWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  Record(rig, 149).code = 150;
  EXPECT_EQ(rig.units.dbcon.WriteSdk(), "Condenser Option[10]");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(CondenserNames, OfTenCharactersAreTakenFromAFileWithoutTheBlanksBehindThem) {
  Rig rig("Harbour");
  EXPECT_EQ(ReadElement(rig.units.dbcon, "<OPTION POSITION=\"9\" NAME=\"äöüäöüäöüä   \"/>"), "");
  EXPECT_EQ(rig.units.dbcon.Name(149), "äöüäöüäöüä");
  EXPECT_EQ(ReadElement(rig.units.dbcon, "<OPTION POSITION=\"9\"/>"), "");
  EXPECT_EQ(rig.units.dbcon.Name(149), "");
}

TEST(CondenserNames, AreWrittenToAFileInNineElementsAsTheyAre) {
  Rig rig("Harbour");
  rig.units.dbcon.Name(141, "Slit ");
  const std::string text = FileTextOf(rig.units.dbcon);
  EXPECT_TRUE(
      text.starts_with("<SECTION><OPTION POSITION=\"1\" NAME=\"Slit \"/>"
                       "<OPTION POSITION=\"2\" NAME=\"\"/>"));
  EXPECT_TRUE(text.ends_with("<OPTION POSITION=\"9\" NAME=\"\"/></SECTION>"));
}

}  // namespace
}  // namespace mortane::test

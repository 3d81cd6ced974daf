// The configuration units as the transfers and the settings file walk over them.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/Rig.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

using Lines = std::vector<std::string>;

// Something to send in every unit of nosepiece and condenser.
void ChangeAll(clsK70& k70) {
  k70.curNosepiece.code(1, 5);
  k70.DbNosepiece.Set_DbNosepiece(1, "Clinic 25x", 2, 3, "25", "1.98", "0.95", 4);
  k70.curLimit.curSkip = 1;
  k70.curCondenser.code(1, 9);
  k70.dbcon.Name(141, "Slot");
}

constexpr const char* kNosepieceWrite = "NosepieceDevice.Positions(1).Code = 5";
constexpr const char* kDatabaseWrite = "SendCommand(\"cONS1230FA0C63B64\")";
constexpr const char* kLimitWrite = "NosepieceDevice.Limitation = 2";
constexpr const char* kCondenserWrite = "CondenserDevice.Positions(1).Code = 9";
constexpr const char* kNamesWrite = "AccessoryDatabase.Condensers.Item(10).Name = \"Slot\"";
const Lines kAllWrites{kNosepieceWrite, kDatabaseWrite, kLimitWrite, kCondenserWrite, kNamesWrite};

// Those of the lines above that are there, in the order in which they come.
Lines Known(const Lines& writes) {
  Lines known;
  for (const std::string& line : writes) {
    if (std::find(kAllWrites.begin(), kAllWrites.end(), line) != kAllWrites.end()) {
      known.push_back(line);
    }
  }
  return known;
}

bool Mentions(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(UnitTable, SendWalksOverTheUnitsInOrder) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ChangeAll(rig.k70);
  rig.k70.Send();
  EXPECT_EQ(Known(rig.journal.Writes()), kAllWrites);
}

TEST(UnitTable, ModifyListsTheUnitsInTheSameOrder) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ChangeAll(rig.k70);
  EXPECT_EQ(rig.k70.Modify(),
            "Nosepiece[1] Plan A 20x\r\nNosepiece Optional[1] Clinic 25x\r\n"
            "Nosepiece Limit[Skip]\r\nCondenser[1] Ph 3\r\nOptional Condenser[1] Slot");
}

TEST(UnitTable, ASensorOnTheNosepieceGatesItsLimitsAlone) {
  Rig rig("Harbour");
  rig.instrument().Accessory(accessory::kNosepiece).readOnly = true;
  rig.instrument().limitation = 1;
  rig.ConnectAndReceive();
  ChangeAll(rig.k70);
  rig.k70.Send();
  EXPECT_EQ(Known(rig.journal.Writes()),
            (Lines{kNosepieceWrite, kDatabaseWrite, kCondenserWrite, kNamesWrite}));
}

struct GateRow {
  std::int32_t absent;
  Lines writes;
};

// The databases are not even compared then, although they would answer.
TEST(UnitTable, AnAbsentAccessoryGatesItsUnits) {
  for (const GateRow& row :
       {GateRow{accessory::kNosepiece, {kCondenserWrite, kNamesWrite}},
        GateRow{accessory::kCondenser, {kNosepieceWrite, kDatabaseWrite, kLimitWrite}}}) {
    Rig rig("Harbour");
    rig.instrument().Accessory(row.absent).state = 0;
    rig.ConnectAndReceive();
    ChangeAll(rig.k70);
    const bool nosepiece = row.absent != accessory::kNosepiece;
    const std::string list = rig.k70.Modify();
    EXPECT_EQ(Mentions(list, "Nosepiece Optional"), nosepiece);
    EXPECT_EQ(Mentions(list, "Optional Condenser"), !nosepiece);
    rig.journal.Clear();
    rig.k70.Send();
    EXPECT_EQ(Known(rig.journal.Writes()), row.writes);
  }
}

TEST(UnitTable, ATurretWithoutAddressesGatesItsUnits) {
  Rig rig("Hollow");
  rig.ConnectAndReceive();
  ChangeAll(rig.k70);
  rig.k70.Send();
  EXPECT_EQ(Known(rig.journal.Writes()), Lines{});
}

TEST(UnitTable, ReceiveGivesTheTurretsTheirCounts) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.k70.curNosepiece.Count, 6);
  EXPECT_EQ(rig.k70.curCondenser.Count, 7);
  rig.instrument().nosepiece.pop_back();
  rig.k70.Receive();
  EXPECT_EQ(rig.k70.curNosepiece.Count, 5);
}

TEST(UnitTable, AFileCarriesEveryUnitToAnotherModel) {
  const TempFolder folder;
  const std::string path = folder.Path("all.xml");
  Rig source("Harbour");
  source.ConnectAndReceive();
  ChangeAll(source.k70);
  source.k70.WriteXML(path);

  Rig target("Harbour");
  target.ConnectAndReceive();
  target.k70.ReadXMLItems(path);
  target.k70.ReadXML(path);
  EXPECT_EQ(target.k70.Modify(), source.k70.Modify());
  target.k70.WriteXML(folder.Path("again.xml"));
  EXPECT_EQ(TempFolder::Read(folder.Path("again.xml")), TempFolder::Read(path));
}

TEST(UnitTable, TheFileHasTheUnitsElementsInTheirSectionsAndInOrder) {
  const TempFolder folder;
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.WriteXML(folder.Path("all.xml"));
  DomDocument document;
  ASSERT_TRUE(document.Load(folder.Path("all.xml")));
  std::string names;
  for (const DomNode& section : document.Children().at(0).Children()) {
    if (section.Name() != "NOSEPIECE" && section.Name() != "CONDENSER") continue;
    names += section.Name() + ":";
    for (const DomNode& element : section.Children()) names += element.Name()[0];
    names += " ";
  }
  EXPECT_EQ(names, "NOSEPIECE:IIIIIIOOOOOOOOOLLL CONDENSER:IIIIIIIOOOOOOOOO ");
}

TEST(UnitTable, LinesOfAFilesUnitsStandInOneBox) {
  const TempFolder folder;
  const std::string path = folder.Write(
      "bad.xml",
      "<Setup><CONDENSER><option POSITION=\"1\" NAME=\"Eleven char\"/><ITEM/></CONDENSER>"
      "<nosepiece><ITEM POSITION=\"11\" CODE=\"1\"/><OPTION/><limit CODE=\"x\"/></nosepiece>"
      "</Setup>");
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.prompts.ExpectBox(
      "Condenser Option[1]\r\nCondenser Caset[-1] CODE=-1\r\nNosepiece[11]\r\n"
      "Nosepiece Optional[-1]\r\nNosepiece Limit",
      box::kOk, Answer::Ok, "XML Read");
  rig.k70.ReadXMLItems(path);
  rig.k70.ReadXML(path);
}

TEST(UnitTable, AConversionThatFailsInAFileGoesToTheCallerAndWhatWasReadStays) {
  const TempFolder folder;
  const std::string path = folder.Write("bad.xml",
                                        "<Setup><NOSEPIECE><ITEM POSITION=\"1\" CODE=\"9\"/>"
                                        "<OPTION POSITION=\"1\" CODE=\"11064064012x\" NAME=\"x\"/>"
                                        "<ITEM POSITION=\"2\" CODE=\"9\"/></NOSEPIECE></Setup>");
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.ReadXMLItems(path);
  EXPECT_THROW(rig.k70.ReadXML(path), Failure);
  EXPECT_EQ(rig.k70.curNosepiece.code(1), 9);
  EXPECT_EQ(rig.k70.curNosepiece.code(2), 4);
  EXPECT_EQ(rig.k70.DbNosepiece.Name(241), "Clinic 25x");
}

TEST(UnitTable, AValueThatNoCodeCanHoldMakesTheSaveFail) {
  const TempFolder folder;
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.DbNosepiece.Set_DbNosepiece(1, "Huge", 1, 1, "1e300", "1", "1", 0);
  rig.prompts.ExpectBox("XML File Write Error\r\nAn objective code cannot hold 1e+300.",
                        box::kCritical);
  rig.k70.WriteXML(folder.Path("huge.xml"));
}

TEST(UnitTable, UntouchedInstrumentsHaveNothingToModify) {
  for (const char* bench : {"Quay", "Harbour", "Lantern", "Hub", "Pair", "Watch", "Hollow"}) {
    Rig rig(bench);
    rig.ConnectAndReceive();
    EXPECT_EQ(rig.k70.Modify(), "") << bench;
  }
}

}  // namespace
}  // namespace mortane::test

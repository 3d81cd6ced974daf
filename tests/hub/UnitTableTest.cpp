// The configuration units as the transfers and the settings file walk over them.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "common/Failure.h"
#include "condensers/clsCondenser.h"
#include "condensers/clsDbCondenser.h"
#include "filters/FilterItemNames.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOffset.h"
#include "interlocks/clsInterLockOther.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"
#include "support/Rig.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

using Lines = std::vector<std::string>;

// Something to send in every unit of turrets and interlocks.
void ChangeAll(clsK70& k70) {
  k70.curNosepiece.code(1, 5);
  k70.DbNosepiece.Set_DbNosepiece(1, "Clinic 25x", 2, 3, "25", "1.98", "0.95", 4);
  k70.curLimit.curSkip = 1;
  k70.curFilter.code(1, 9);
  k70.dbFilter.Set_DbFilterOption(9, "Cube", 0, 0, 0);
  k70.Exciter.Name(241, "Ex");
  k70.Dichroic.Name(241, "Di");
  k70.Barrier.Name(241, "Ba");
  k70.curCondenser.code(1, 9);
  k70.dbcon.Name(141, "Slot");
  k70.ILObservation.Status(accessory::kDiaLamp, 0);
  k70.ILOther.Status(accessory::kNDFilter, 0);
  k70.ILOffset.curND = 2;
}

constexpr const char* kNosepieceWrite = "NosepieceDevice.Positions(1).Code = 5";
constexpr const char* kDatabaseWrite = "SendCommand(\"cONS1230FA0C63B64\")";
constexpr const char* kLimitWrite = "NosepieceDevice.Limitation = 2";
constexpr const char* kFilterWrite = "FilterCubeDevice.Positions(1).Code = 9";
constexpr const char* kCubeWrite = "AccessoryDatabase.FilterCubes.Item(19).Name = \"Cube\"";
constexpr const char* kExciterWrite = "AccessoryDatabase.Exciters.Item(12).Name = \"Ex\"";
constexpr const char* kDichroicWrite = "AccessoryDatabase.Dichroics.Item(10).Name = \"Di\"";
constexpr const char* kBarrierWrite = "AccessoryDatabase.Barriers.Item(12).Name = \"Ba\"";
constexpr const char* kCondenserWrite = "CondenserDevice.Positions(1).Code = 9";
constexpr const char* kNamesWrite = "AccessoryDatabase.Condensers.Item(10).Name = \"Slot\"";
constexpr const char* kObservationWrite = "ControllerSettings.ClearInterlock(4, 1)";
constexpr const char* kOtherWrite = "ControllerSettings.ClearInterlock(1, 3)";
constexpr const char* kOffsetWrite = "NDFilterDevice.OffsetCode = 2";
const Lines kAllWrites{kNosepieceWrite, kDatabaseWrite, kLimitWrite,       kFilterWrite,
                       kCubeWrite,      kExciterWrite,  kDichroicWrite,    kBarrierWrite,
                       kCondenserWrite, kNamesWrite,    kObservationWrite, kOtherWrite,
                       kOffsetWrite};

Lines Without(const Lines& left) {
  Lines lines = kAllWrites;
  std::erase_if(lines, [&](const std::string& line) {
    return std::find(left.begin(), left.end(), line) != left.end();
  });
  return lines;
}

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
            "Nosepiece Limit[Skip]\r\nFilter Cube[1] Red\r\n"
            "Filter Cube Optional Cube[9] Cube\r\nFilter Cube Optional Item Exciter[1] Ex\r\n"
            "Filter Cube Optional Item Dichroic[1] Di\r\n"
            "Filter Cube Optional Item Barrier[1] Ba\r\n"
            "Condenser[1] Ph 3\r\nOptional Condenser[1] Slot\r\n"
            "InterLock Observation[Lamp]\r\nInterLock Other[ND]\r\nInterLock Offset[ND]");
}

TEST(UnitTable, ReceiveReadsTheUnitsInTheSameOrder) {
  Rig rig("Harbour");
  rig.Connect();
  rig.faults.Add({"get NDFilterDevice.OffsetCode"});
  rig.faults.Add({"ControllerSettings.Interlock(1, 3)"});
  rig.faults.Add({"ControllerSettings.Interlock(1, 1)"});
  rig.faults.Add({"CondenserDevice.Positions(1)"});
  rig.faults.Add({"NosepieceDevice.Limitation"});
  rig.prompts.ExpectBox(
      "Nosepiece Limit (LIB:80004005)\r\nCondenser Casset (LIB:80004005)\r\n"
      "InterLock Observation (LIB:80004005)\r\nInterLock Other (LIB:80004005)\r\n"
      "InterLock Offset (LIB:80004005)",
      box::kCritical);
  rig.k70.Receive();
}

// What follows the nosepiece is not read then, so it is not sent either.
TEST(UnitTable, ASensorOnTheNosepieceGatesItsLimitsAlone) {
  Rig rig("Harbour");
  rig.instrument().Accessory(accessory::kNosepiece).readOnly = true;
  rig.instrument().limitation = 1;
  rig.ConnectAndReceive();
  ChangeAll(rig.k70);
  rig.k70.Send();
  EXPECT_EQ(Known(rig.journal.Writes()), Without({kLimitWrite, kOtherWrite}));
}

struct GateRow {
  std::int32_t absent;
  Lines gated;
  std::string difference;  // opens the line of its database
};

// The databases are not even compared then, although they would answer.
TEST(UnitTable, AnAbsentAccessoryGatesItsUnits) {
  for (const GateRow& row :
       {GateRow{accessory::kNosepiece,
                {kNosepieceWrite, kDatabaseWrite, kLimitWrite, kOtherWrite},
                "Nosepiece Optional"},
        GateRow{accessory::kFilterCube,
                {kFilterWrite, kCubeWrite, kExciterWrite, kDichroicWrite, kBarrierWrite},
                "Filter Cube Optional"},
        GateRow{accessory::kCondenser, {kCondenserWrite, kNamesWrite}, "Optional Condenser"}}) {
    Rig rig("Harbour");
    rig.instrument().Accessory(row.absent).state = 0;
    rig.ConnectAndReceive();
    ChangeAll(rig.k70);
    const std::string list = rig.k70.Modify();
    for (const char* database :
         {"Nosepiece Optional", "Filter Cube Optional", "Optional Condenser"}) {
      EXPECT_EQ(Mentions(list, database), row.difference != database) << database;
    }
    rig.journal.Clear();
    rig.k70.Send();
    EXPECT_EQ(Known(rig.journal.Writes()), Without(row.gated));
  }
}

TEST(UnitTable, ATurretWithoutAddressesGatesItsUnits) {
  Rig rig("Hollow");
  rig.ConnectAndReceive();
  ChangeAll(rig.k70);
  rig.k70.Send();
  EXPECT_EQ(Known(rig.journal.Writes()), Lines{kOffsetWrite});
}

// The stage's interlock is known and differs, but does not enable its unit.
TEST(UnitTable, AUnitThatIsNotEnabledIsNeitherComparedNorSent) {
  Rig rig("Pair");
  rig.ConnectAndReceive();
  rig.k70.ILOther.Status(accessory::kXYStage, 1);
  EXPECT_FALSE(rig.k70.ILOther.IsEnable());
  EXPECT_EQ(rig.k70.Modify(), "");
  rig.k70.Send();
  ASSERT_GT(rig.journal.CallCount(), 0U);
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_FALSE(Mentions(line, "Interlock(14, 3)")) << line;
  }
}

TEST(UnitTable, InterlocksThatWereNeverReadAreNotAskedForByASend) {
  Rig rig("Harbour");
  rig.Connect();
  rig.k70.Send();
  ASSERT_GT(rig.journal.CallCount(), 0U);
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_FALSE(Mentions(line, "Interlock") || Mentions(line, "OffsetCode")) << line;
  }
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

TEST(UnitTable, AFileCarriesTheseUnitsToAnotherModel) {
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

// "ITEM 6, OPTION 9": the elements of a section as they follow each other.
std::string RunsIn(const DomNode& section) {
  std::vector<std::pair<std::string, int>> runs;
  for (const DomNode& element : section.Children()) {
    if (runs.empty() || runs.back().first != element.Name()) runs.emplace_back(element.Name(), 0);
    ++runs.back().second;
  }
  std::string text;
  for (const auto& [name, count] : runs) {
    text += (text.empty() ? "" : ", ") + name + " " + std::to_string(count);
  }
  return text;
}

TEST(UnitTable, TheFileHasTheUnitsElementsInTheirSectionsAndInOrder) {
  const TempFolder folder;
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.WriteXML(folder.Path("all.xml"));
  DomDocument document;
  ASSERT_TRUE(document.Load(folder.Path("all.xml")));
  std::map<std::string, std::string> runs;
  for (const DomNode& section : document.Children().at(0).Children()) {
    runs[section.Name()] = RunsIn(section);
  }
  EXPECT_EQ(runs["NOSEPIECE"], "ITEM 6, OPTION 9, LIMIT 3");
  EXPECT_EQ(runs["FILTER"], "ITEM 6, OPTION 9, EXCITER 9, DICHROIC 9, BARRIER 9");
  EXPECT_EQ(runs["CONDENSER"], "ITEM 7, OPTION 9");
  EXPECT_EQ(runs["INTERLOCK"], "OBSERVATION 11, OTHER 8, LIGHTPATH 3, ZOOM 3, OFFSET 4");
}

TEST(UnitTable, AnElementInTheSectionOfAnotherAreaIsPassedOver) {
  const TempFolder folder;
  const std::string path = folder.Write(
      "elsewhere.xml",
      "<Setup><CONTROL><OBSERVATION POSITION=\"ND\" CODE=\"x\"/><ZOOM CODE=\"x\"/></CONTROL>"
      "<NOSEPIECE><OTHER POSITION=\"ND\" CODE=\"x\"/><OFFSET POSITION=\"ND\" CODE=\"1\"/>"
      "</NOSEPIECE><INTERLOCK><LIMIT CODE=\"x\"/></INTERLOCK></Setup>");
  Rig rig("Harbour");
  rig.k70.ReadXMLItems(path);
  rig.k70.ReadXML(path);
  EXPECT_EQ(rig.k70.ILOffset.curND, -1);
}

TEST(UnitTable, LinesOfAFilesUnitsStandInOneBox) {
  const TempFolder folder;
  const std::string path = folder.Write(
      "bad.xml",
      "<Setup><CONDENSER><option POSITION=\"1\" NAME=\"Eleven char\"/><ITEM/></CONDENSER>"
      "<nosepiece><ITEM POSITION=\"11\" CODE=\"1\"/><OPTION/><limit CODE=\"x\"/></nosepiece>"
      "<Interlock><zoom POSITION=\"ND\"/><other/><Offset/><lightpath CODE=\"x\"/>"
      "<observation POSITION=\"Lamp\"/></Interlock></Setup>");
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.prompts.ExpectBox(
      "Condenser Option[1]\r\nCondenser Caset[-1] CODE=-1\r\nNosepiece[11]\r\n"
      "Nosepiece Optional[-1]\r\nNosepiece Limit\r\nInterLock Zoom[ND]\r\nInterLock Other[]\r\n"
      "InterLock LightPath[]\r\nInterLock Observation[Lamp]",
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
  for (const char* bench : {"Quay", "Harbour", "Lantern", "Hub", "Pair", "Outpost", "Relay", "Deck",
                            "DeckRemote", "Watch", "Shell", "Hollow"}) {
    Rig rig(bench);
    rig.ConnectAndReceive();
    EXPECT_EQ(rig.k70.Modify(), "") << bench;
  }
}

}  // namespace
}  // namespace mortane::test

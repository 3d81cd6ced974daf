// The filter units side by side, in transfers and in the settings file.
#include <gtest/gtest.h>

#include "condensers/clsCondenser.h"
#include "filters/FilterItemNames.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "objectives/clsNosepiece.h"
#include "support/Rig.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

const std::vector<std::string>& FilterCalls() {
  static const std::vector<std::string> calls{
      "FilterCubeDevice.Positions", "AccessoryDatabase.FilterCubes", "AccessoryDatabase.Exciters",
      "AccessoryDatabase.Dichroics", "AccessoryDatabase.Barriers"};
  return calls;
}

TEST(FilterUnits, AreReadInTheOrderOfTheTransferBetweenNosepieceAndCondenser) {
  Rig rig("Harbour");
  rig.Connect();
  rig.faults.Add({"NosepieceDevice.Limitation"});
  rig.faults.Add({"CondenserDevice.Positions(1)"});
  rig.faults.Add({"FilterCubeDevice.Positions(1)"});
  for (std::size_t i = 1; i < FilterCalls().size(); ++i) rig.faults.Add({FilterCalls()[i]});
  rig.prompts.ExpectBox(
      "Nosepiece Limit (LIB:80004005)\r\n"
      "Filter Cube (LIB:80004005)\r\n"
      "Filter Cube Optional Cube (LIB:80004005)\r\n"
      "Filter Cube Optional Item Exciter (LIB:80004005)\r\n"
      "Filter Cube Optional Item Dichroic (LIB:80004005)\r\n"
      "Filter Cube Optional Item Barrier (LIB:80004005)\r\n"
      "Condenser Casset (LIB:80004005)",
      box::kCritical);
  rig.k70.Receive();
}

void EditAll(clsK70& k70) {
  k70.curFilter.code(1, 9);
  k70.dbFilter.Set_DbFilterOption(1, "Ratio", 241, 4, 6);
  k70.Exciter.Name(241, "Ex");
  k70.Dichroic.Name(241, "Di");
  k70.Barrier.Name(241, "Ba");
}

std::vector<std::string> FilterWrites(const Rig& rig) {
  std::vector<std::string> writes;
  for (const std::string& line : rig.journal.Writes()) {
    for (const std::string& call : FilterCalls()) {
      if (line.starts_with(call)) writes.push_back(line);
    }
  }
  return writes;
}

TEST(FilterUnits, AreComparedAndSentInTheOrderOfTheTransfer) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EditAll(rig.k70);
  rig.k70.curNosepiece.code(1, 5);
  rig.k70.curCondenser.code(1, 9);
  EXPECT_EQ(rig.k70.Modify(),
            "Nosepiece[1] Plan A 20x\r\n"
            "Filter Cube[1] Red\r\n"
            "Filter Cube Optional Cube[1] Ratio\r\n"
            "Filter Cube Optional Item Exciter[1] Ex\r\n"
            "Filter Cube Optional Item Dichroic[1] Di\r\n"
            "Filter Cube Optional Item Barrier[1] Ba\r\n"
            "Condenser[1] Ph 3");
  rig.k70.Send();
  EXPECT_EQ(FilterWrites(rig), (std::vector<std::string>{
                                   "FilterCubeDevice.Positions(1).Code = 9",
                                   "AccessoryDatabase.FilterCubes.Item(11).Name = \"Ratio\"",
                                   "AccessoryDatabase.FilterCubes.Item(11).ExciterCode = 241",
                                   "AccessoryDatabase.FilterCubes.Item(11).DichroicCode = 4",
                                   "AccessoryDatabase.FilterCubes.Item(11).BarrierCode = 6",
                                   "AccessoryDatabase.Exciters.Item(12).Name = \"Ex\"",
                                   "AccessoryDatabase.Dichroics.Item(10).Name = \"Di\"",
                                   "AccessoryDatabase.Barriers.Item(12).Name = \"Ba\"",
                               }));
  EXPECT_EQ(rig.k70.Modify(), "");
}

TEST(FilterUnits, WithoutATurretAreNeitherComparedNorSent) {
  Rig rig("Harbour");
  rig.instrument().Accessory(accessory::kFilterCube).state = 0;
  rig.ConnectAndReceive();
  EditAll(rig.k70);
  EXPECT_EQ(rig.k70.Modify(), "");
  rig.k70.Send();
  EXPECT_TRUE(FilterWrites(rig).empty());
}

TEST(FilterUnits, OfAnAwkwardControllerAreReadAsFarAsTheyCanBe) {
  Rig rig("Attic");
  rig.Connect();
  rig.prompts.ExpectBox("*** DbFilter.DataError 3", box::kOk);
  rig.prompts.ExpectBox("*** DbFilter.DataError 4", box::kOk);
  EXPECT_EQ(rig.k70.dbFilter.ReadSdk(), "Filter Cube Optional Cube (Mortane:9)");
  EXPECT_EQ(rig.k70.dbFilter.Name(249), "");
  EXPECT_EQ(rig.k70.dbFilter.Name(241), "Twelve chars");
  EXPECT_EQ(rig.k70.Exciter.ReadSdk(), "");
  std::string name;
  std::string exciter;
  std::string dichroic;
  std::string barrier;
  rig.k70.dbFilter.Get_DbFilter(241, name, exciter, dichroic, barrier);
  EXPECT_EQ(name, "Twelve cha");
  EXPECT_EQ(exciter, "Twelve cha");
}

TEST(FilterUnits, OfAnUnchangedInstrumentHaveNothingToCompareOrSend) {
  for (const char* bench : {"Quay", "Harbour", "Lantern", "Hub", "Pair", "Deck", "Watch"}) {
    Rig rig(bench);
    rig.ConnectAndReceive();
    EXPECT_EQ(rig.k70.Modify(), "") << bench;
    rig.k70.Send();
    EXPECT_TRUE(FilterWrites(rig).empty()) << bench;
  }
}

TEST(FilterUnits, StandInTheirSectionOfTheSettingsFileInOrderAndComeBackFromIt) {
  const TempFolder folder;
  const std::string path = folder.Path("settings.xml");
  Rig source("Harbour");
  source.ConnectAndReceive();
  EditAll(source.k70);
  source.k70.WriteXML(path);
  const std::string text = TempFolder::Read(path);
  std::size_t last = text.find("<FILTER>");
  for (const char* element : {"<ITEM ", "<OPTION ", "<EXCITER ", "<DICHROIC ", "<BARRIER "}) {
    const std::size_t place = text.find(element, last);
    EXPECT_GT(place, last) << element;
    EXPECT_LT(place, text.find("</FILTER>")) << element;
    last = place;
  }

  Rig target("Harbour");
  target.ConnectAndReceive();
  target.k70.ReadXMLItems(path);
  target.k70.ReadXML(path);
  EXPECT_EQ(target.k70.Modify(), source.k70.Modify());
  EXPECT_NE(target.k70.Modify(), "");
}

TEST(FilterUnits, RefuseElementsOfTheSettingsFileLineByLine) {
  const TempFolder folder;
  const std::string path = folder.Write(
      "settings.xml",
      R"(<Setup><filter><item position="0" code="1"/><option position="1" code="12" name="x"/>)"
      R"(<exciter position="1" name="Eleven char"/><Dichroic position="0" name="x"/>)"
      R"(<barrier position="10" name="x"/><barrier position="9" name="Taken"/><other/></filter></Setup>)");
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.ReadXMLItems(path);
  rig.prompts.ExpectBox(
      "Filter Cube[0]\r\nFilter Cube Optional Cube[1]\r\n"
      "Filter Cube Optional Item Exciter[1]\r\nFilter Cube Optional Item Dichroic[0]\r\n"
      "Filter Cube Optional Item Barrier[10]",
      box::kOk, Answer::Ok, "XML Read");
  rig.k70.ReadXML(path);
  EXPECT_EQ(rig.k70.Barrier.Name(249), "Taken");
}

}  // namespace
}  // namespace mortane::test

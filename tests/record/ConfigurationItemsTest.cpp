#include "record/ConfigurationItems.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "drives/clsControlOther.h"
#include "drives/clsControlZDrive.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOther.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsLimitation.h"
#include "record/ModelItems.h"
#include "support/Rig.h"

namespace mortane::test {
namespace {

std::vector<ConfigurationItem> Read(const std::string& text) {
  DomDocument document;
  EXPECT_TRUE(document.LoadText(text)) << document.Problem();
  return ItemsOf(document);
}

std::vector<std::string> Lines(const std::vector<ConfigurationItem>& items) {
  std::vector<std::string> lines;
  lines.reserve(items.size());
  for (const ConfigurationItem& item : items) lines.push_back(KeyText(item.key) + "=" + item.value);
  return lines;
}

using Texts = std::vector<std::string>;

TEST(ItemsOfADocument, StandInTheOrderOfTheFileWithTheirKeys) {
  EXPECT_EQ(Lines(Read(R"(<Setup><SYSTEM><QHRMNAME NAME=" A "/></SYSTEM>
      <NOSEPIECE><ITEM POSITION="2" CODE="7"/><OPTION POSITION="1" CODE="x" NAME="y"/></NOSEPIECE>
      <CONTROL><FOCUSDRIVE><Escape_ZDrive CODE="On"/></FOCUSDRIVE></CONTROL>
      <TACTOR><SWITCH><SETTING MODE="0" HANDLE="1"/><SWITCH POSITION="3" FUNCTION="9"/></SWITCH>
      </TACTOR></Setup>)")),
            (Texts{"SYSTEM QHRMNAME NAME= A ", "NOSEPIECE ITEM 2 CODE=7",
                   "NOSEPIECE OPTION 1 CODE=x", "NOSEPIECE OPTION 1 NAME=y",
                   "CONTROL FOCUSDRIVE/Escape_ZDrive CODE=On", "TACTOR SWITCH/SETTING MODE=0",
                   "TACTOR SWITCH/SETTING HANDLE=1", "TACTOR SWITCH/SWITCH 3 FUNCTION=9"}));
}

// As the reader of a settings file takes them.
TEST(ItemsOfADocument, AreKnownInAnySpellingThatAFileMayHave) {
  EXPECT_EQ(
      Lines(Read(R"(<setup><nosepiece><item position=" 2 " code="7"/>
      <Limit Position="skip" Code="on"/></nosepiece>
      <interlock><offset POSITION="diafstop" CODE="1"/></interlock>
      <Control><focusdrive><ESCAPE_ZDRIVE code="On"/></focusdrive></Control></setup>)")),
      (Texts{"NOSEPIECE ITEM 2 CODE=7", "NOSEPIECE LIMIT Skip CODE=on",
             "INTERLOCK OFFSET DiaFStop CODE=1", "CONTROL FOCUSDRIVE/Escape_ZDrive CODE=On"}));
}

TEST(ItemsOfADocument, KeepWhatTheProgramDoesNotKnow) {
  const auto items = Read(R"(<Setup><Extra><Thing POSITION="a" Colour="red"/></Extra>
      <SYSTEM><qhrmname NAME="A"/></SYSTEM>
      <NOSEPIECE><ITEM POSITION="two" CODE="7"/><ITEM CODE="8"/></NOSEPIECE></Setup>)");
  EXPECT_EQ(Lines(items), (Texts{"Extra Thing a Colour=red", "SYSTEM qhrmname NAME=A",
                                 "NOSEPIECE ITEM two CODE=7", "NOSEPIECE ITEM CODE=8"}));
  EXPECT_EQ(items[0].kind, ItemKind::Unknown);
  EXPECT_EQ(items[1].kind, ItemKind::Unknown);
  EXPECT_EQ(items[2].kind, ItemKind::ObjectiveAddress);
}

TEST(ItemsOfADocument, AreNoneInAnotherFormat) {
  for (const char* text : {"<Bench><SYSTEM><QHRMNAME NAME='A'/></SYSTEM></Bench>", "<Setup/>",
                           "<Setup>text<!-- c --></Setup>"}) {
    EXPECT_TRUE(Read(text).empty()) << text;
  }
  EXPECT_TRUE(ItemsOf(DomDocument()).empty());
}

TEST(ItemKinds, HaveARowEachThatIsFoundByItsNames) {
  for (std::size_t i = 0; i < kItemKinds; ++i) {
    const auto kind = static_cast<ItemKind>(i);
    const ItemKindRow& row = RowOf(kind);
    EXPECT_EQ(FindItemKind(row.section, row.element, row.attribute), kind) << i;
  }
}

class ItemsOfABench : public ::testing::TestWithParam<std::string> {};

// Every item that the program writes is of a known kind, and none stands twice.
TEST_P(ItemsOfABench, AreThoseOfItsFile) {
  Rig rig(GetParam());
  rig.prompts.AcceptAnyBox();
  rig.ConnectAndReceive();
  rig.prompts.ClearRecords();
  DomDocument document;
  rig.k70.WriteSections(document);
  const auto items = ItemsOf(rig.k70);
  EXPECT_EQ(Lines(items), Lines(ItemsOf(document)));
  std::set<std::string> keys;
  for (const ConfigurationItem& item : items) {
    EXPECT_NE(item.kind, ItemKind::Unknown) << KeyText(item.key);
    EXPECT_TRUE(keys.insert(KeyText(item.key)).second) << KeyText(item.key);
  }
}

INSTANTIATE_TEST_SUITE_P(Benches, ItemsOfABench, ::testing::ValuesIn(benches::Names()),
                         [](const auto& bench) { return bench.param; });

ConfigurationItem ItemAt(const clsK70& k70, const std::string& key) {
  for (const ConfigurationItem& item : ItemsOf(k70)) {
    if (KeyText(item.key) == key) return item;
  }
  ADD_FAILURE() << key;
  return {};
}

// The file calls each of these numbers unknown, and a Send writes them all the same.
TEST(ItemsOfTheModel, HoldTheNumberThatTheFileHasNoWordFor) {
  Rig rig("Quay");
  clsK70& k70 = rig.k70;
  k70.curLimit.curSkip = 2;
  k70.CZDrive.curFocusCompensation = 7;
  k70.COther.curBuzzer = 2;
  k70.COther.curR_TLPOLED = 3;
  k70.CZDrive.SetEscape(0, 2);
  const std::pair<const char*, const char*> rows[] = {
      {"NOSEPIECE LIMIT Skip CODE", "2"},
      {"NOSEPIECE LIMIT LowerMagnification CODE", ""},
      {"CONTROL FOCUSDRIVE/FocusCompensation CODE", "7"},
      {"CONTROL FOCUSDRIVE/DownLimitation CODE", ""},
      {"CONTROL FOCUSDRIVE/Escape_ZDrive CODE", ""},
      {"CONTROL OTHER/Buzzer CODE", "2"},
      {"CONTROL OTHER/B_KM_RSwitchLED CODE", "3"},
      {"CONTROL OTHER/Switch CODE", ""},
  };
  for (const auto& [key, exact] : rows) {
    const ConfigurationItem item = ItemAt(k70, key);
    EXPECT_EQ(item.value, "Unknown") << key;
    EXPECT_EQ(item.exact, exact) << key;
    EXPECT_EQ(IsKnown(item), *exact != '\0') << key;
  }
}

TEST(ItemsOfTheModel, HoldTheNumbersOfEachRuleAndOfEachInterlock) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  clsK70& k70 = rig.k70;
  k70.curLimit.curImmersion = 9;
  k70.curLimit.curIncrease = 3;
  k70.ILObservation.Status(accessory::kNosepiece, 4);
  k70.ILObservation.Status(accessory::kCondenser, 5);
  k70.ILOther.Status(accessory::kXYStage, 6);
  k70.ILOther.LightPathStatus(accessory::kEpiFieldStop, 7);
  k70.ILOther.ZoomStatus(accessory::kDiaFieldStop, 8);
  const std::pair<const char*, const char*> rows[] = {
      {"NOSEPIECE LIMIT WaferImmersion CODE", "9"},
      {"NOSEPIECE LIMIT LowerMagnification CODE", "3"},
      {"INTERLOCK OBSERVATION Nosepiece CODE", "4"},
      {"INTERLOCK OBSERVATION Condenser CODE", "5"},
      {"INTERLOCK OTHER XYStage CODE", "6"},
      {"INTERLOCK LIGHTPATH EpiFStop CODE", "7"},
      {"INTERLOCK ZOOM DiaFStop CODE", "8"},
  };
  for (const auto& [key, exact] : rows) EXPECT_EQ(ItemAt(k70, key).exact, exact) << key;
}

// 2.54 and 2.5 are the same code text, and other values for the controller.
TEST(ItemsOfTheModel, HoldAnObjectivesValuesInFull) {
  Rig rig("Quay");
  rig.k70.DbNosepiece.Set_DbNosepiece(1, "A", 0, 0, "2.54", "1", "1", 0);
  const ConfigurationItem full = ItemAt(rig.k70, "NOSEPIECE OPTION 1 CODE");
  rig.k70.DbNosepiece.Set_DbNosepiece(1, "A", 0, 0, "2.5", "1", "1", 0);
  const ConfigurationItem rounded = ItemAt(rig.k70, "NOSEPIECE OPTION 1 CODE");
  EXPECT_EQ(full.value, rounded.value);
  EXPECT_FALSE(HaveSameValue(full, rounded));
  EXPECT_TRUE(HaveSameValue(full, full));
}

TEST(ItemValues, OfNamesAreTheSameWithoutTheBlanksAtTheirEnds) {
  const auto items = Read(R"(<Setup><SYSTEM><QHRMNAME NAME="A "/></SYSTEM>
      <FILTER><EXCITER POSITION="1" NAME="A "/></FILTER></Setup>)");
  const auto trimmed = Read(R"(<Setup><SYSTEM><QHRMNAME NAME="A"/></SYSTEM>
      <FILTER><EXCITER POSITION="1" NAME="A"/></FILTER></Setup>)");
  EXPECT_FALSE(HaveSameValue(items[0], trimmed[0]));
  EXPECT_TRUE(HaveSameValue(items[1], trimmed[1]));
}

TEST(ItemValues, AreUnknownAsTheFileSaysIt) {
  const auto items = Read(R"(<Setup><SYSTEM><QHRMNAME NAME="Unknown"/></SYSTEM>
      <NOSEPIECE><LIMIT POSITION="Skip" CODE="unknown"/></NOSEPIECE>
      <INTERLOCK><OFFSET POSITION="ND" CODE="-1"/><OFFSET POSITION="DiaFStop" CODE="1"/>
      <OTHER POSITION="ND" CODE="Unknown"/></INTERLOCK>
      <SWITCH><SWITCH POSITION="1" FUNCTION="-1"/></SWITCH></Setup>)");
  std::vector<bool> known;
  known.reserve(items.size());
  for (const ConfigurationItem& item : items) known.push_back(IsKnown(item));
  EXPECT_EQ(known, (std::vector<bool>{true, false, false, true, false, true}));
}

}  // namespace
}  // namespace mortane::test

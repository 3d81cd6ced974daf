#include "record/ItemWords.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "drives/clsControlOther.h"
#include "filters/FilterItemNames.h"
#include "objectives/clsDbNosepiece.h"
#include "record/ModelItems.h"
#include "record/ReceivedRig.h"

namespace mortane::test {
namespace {

using Lines = std::vector<std::string>;

std::vector<ConfigurationItem> Items(const std::string& sections) {
  DomDocument document;
  EXPECT_TRUE(document.LoadText("<Setup>" + sections + "</Setup>")) << document.Problem();
  return ItemsOf(document);
}

Lines WordsOfFile(const std::string& sections) {
  const auto items = Items(sections);
  const ItemNames names(items);
  Lines lines;
  for (const ConfigurationItem& item : items) lines.push_back(InWords(item, names));
  return lines;
}

struct Row {
  const char* file;
  const char* words;
};

TEST(ItemWords, AreThoseOfThePages) {
  const Row rows[] = {
      {"<SYSTEM><QHRMNAME NAME='A'/></SYSTEM>", "System Name: A"},
      {"<SYSTEM><QHRMNAME NAME=' '/></SYSTEM>", "System Name: NoName"},
      {"<NOSEPIECE><ITEM POSITION='3' CODE='9'/></NOSEPIECE>", "Objective 3: code 9"},
      {"<NOSEPIECE><ITEM POSITION='3' CODE='0'/></NOSEPIECE>", "Objective 3: ----"},
      {"<NOSEPIECE><ITEM POSITION='3' CODE='nine'/></NOSEPIECE>", "Objective 3: nine"},
      {"<NOSEPIECE><OPTION POSITION='1' CODE='230FA0C63B63'/></NOSEPIECE>",
       "Optional Objective 1: Series code 2, Type code 3, Mag. 25x, W.D. 1.98, N.A. 0.95, "
       "DIC / Ph Condenser code 3"},
      {"<NOSEPIECE><OPTION POSITION='1' CODE='230FA0C63B60'/></NOSEPIECE>",
       "Optional Objective 1: Series code 2, Type code 3, Mag. 25x, W.D. 1.98, N.A. 0.95, "
       "DIC / Ph Condenser None"},
      {"<NOSEPIECE><OPTION POSITION='1' CODE='000000000000'/></NOSEPIECE>",
       "Optional Objective 1: ----"},
      {"<NOSEPIECE><OPTION POSITION='1' CODE='230FA0C63B6x'/></NOSEPIECE>",
       "Optional Objective 1: 230FA0C63B6x"},
      {"<NOSEPIECE><OPTION POSITION='1' CODE='23'/></NOSEPIECE>", "Optional Objective 1: 23"},
      {"<NOSEPIECE><OPTION POSITION='1' NAME='Own 5x'/></NOSEPIECE>",
       "Optional Objective 1, Name: Own 5x"},
      {"<NOSEPIECE><OPTION POSITION='1' NAME=''/></NOSEPIECE>",
       "Optional Objective 1, Name: ---------------"},
      {"<NOSEPIECE><LIMIT POSITION='LowerMagnification' CODE='Off'/></NOSEPIECE>",
       "Safety Setting: Free"},
      {"<NOSEPIECE><LIMIT POSITION='LowerMagnification' CODE='NotRotate'/></NOSEPIECE>",
       "Safety Setting: No Rotation"},
      {"<NOSEPIECE><LIMIT POSITION='WaferImmersion' CODE='StageDown'/></NOSEPIECE>",
       "Immersion Objective IN/OUT Control: Rotate After Stage going down"},
      {"<NOSEPIECE><LIMIT POSITION='WaferImmersion' CODE='On'/></NOSEPIECE>",
       "Immersion Objective IN/OUT Control: No Rotation"},
      {"<NOSEPIECE><LIMIT POSITION='Skip' CODE='on'/></NOSEPIECE>", "Empty Position: Skip"},
      {"<NOSEPIECE><LIMIT POSITION='Skip' CODE='Off'/></NOSEPIECE>", "Empty Position: Use"},
      {"<NOSEPIECE><LIMIT POSITION='Skip' CODE='StageDown'/></NOSEPIECE>",
       "Empty Position: StageDown"},
      {"<NOSEPIECE><LIMIT POSITION='Skip' CODE='Unknown'/></NOSEPIECE>", "Empty Position: unknown"},
      {"<FILTER><OPTION POSITION='2' CODE='124120043000'/></FILTER>",
       "Optional Filter Cube 2: Exciter code 241, Dichroic code 4, Barrier ----"},
      {"<FILTER><OPTION POSITION='2' CODE='100020003000'/></FILTER>",
       "Optional Filter Cube 2: ----"},
      {"<FILTER><OPTION POSITION='2' CODE='1x4120043000'/></FILTER>",
       "Optional Filter Cube 2: 1x4120043000"},
      {"<FILTER><OPTION POSITION='2' CODE='1'/></FILTER>", "Optional Filter Cube 2: 1"},
      {"<FILTER><EXCITER POSITION='4' NAME=' '/></FILTER>", "Optional Exciter 4: ----------"},
      {"<FILTER><DICHROIC POSITION='4' NAME='DM'/></FILTER>", "Optional Dichroic 4: DM"},
      {"<FILTER><BARRIER POSITION='4' NAME='LP'/></FILTER>", "Optional Barrier 4: LP"},
      {"<CONDENSER><ITEM POSITION='4' CODE='2'/></CONDENSER>", "Condenser 4: code 2"},
      {"<CONDENSER><OPTION POSITION='4' NAME='Slit'/></CONDENSER>", "Optional Condenser 4: Slit"},
      {"<INTERLOCK><OBSERVATION POSITION='ND' CODE='True'/></INTERLOCK>",
       "Observation Change to ND Filter: ON"},
      {"<INTERLOCK><OTHER POSITION='FoucusStage' CODE='False'/></INTERLOCK>",
       "Nosepiece Change to Z Focus: OFF"},
      {"<INTERLOCK><LIGHTPATH POSITION='epifstop' CODE='True'/></INTERLOCK>",
       "Light Path Change to EPI Field Stop: ON"},
      {"<INTERLOCK><ZOOM POSITION='DiaFStop' CODE='Unknown'/></INTERLOCK>",
       "Zoom Change to DIA Field Stop: unknown"},
      {"<INTERLOCK><ZOOM POSITION='Other' CODE='Maybe'/></INTERLOCK>",
       "Zoom Change to Other: Maybe"},
      {"<INTERLOCK><OFFSET POSITION='ND' CODE='5'/></INTERLOCK>", "Compensation, ND Filter: 0.75"},
      {"<INTERLOCK><OFFSET POSITION='DiaFStop' CODE='-1'/></INTERLOCK>",
       "Compensation, DIA Field Stop: unknown"},
      {"<INTERLOCK><OFFSET POSITION='EpiFStop' CODE='12'/></INTERLOCK>",
       "Compensation, EPI Field Stop: 12"},
      {"<CONTROL><FOCUSDRIVE><FocusCompensation CODE='Relative'/></FOCUSDRIVE></CONTROL>",
       "Z Focus Correction for Pafocality: ON"},
      {"<CONTROL><FOCUSDRIVE><DownLimitation CODE='-300000'/></FOCUSDRIVE></CONTROL>",
       "Lower Limit: -15mm"},
      {"<CONTROL><FOCUSDRIVE><Escape_ZDrive CODE='On'/></FOCUSDRIVE></CONTROL>",
       "Escape, Focus Drive: ON"},
      {"<CONTROL><FOCUSDRIVE><Escape_XYStage CODE='Off'/></FOCUSDRIVE></CONTROL>",
       "Escape, XY Stage: OFF"},
      {"<CONTROL><XYSTAGE><FocusCompensation CODE='None'/></XYSTAGE></CONTROL>",
       "Pitch adjustment to Magnification: OFF"},
      {"<CONTROL><OTHER><FocusDrive AUTO='True'/></OTHER></CONTROL>", "Focus Knob: Auto"},
      {"<CONTROL><OTHER><FocusDrive CODE='Fine'/></OTHER></CONTROL>",
       "Focus Knob, Sensitivity: Fine"},
      {"<CONTROL><OTHER><XYStage AUTO='False'/></OTHER></CONTROL>", "Stage Knob: Manual"},
      {"<CONTROL><OTHER><XYStage CODE='Fine'/></OTHER></CONTROL>", "Stage Knob, Sensitivity: Fine"},
      // The unit's number 0 stands for a buzzer that is on.
      {"<CONTROL><OTHER><Buzzer CODE='False'/></OTHER></CONTROL>", "Buzzer: ON"},
      {"<CONTROL><OTHER><Buzzer CODE='True'/></OTHER></CONTROL>", "Buzzer: OFF"},
      {"<CONTROL><OTHER><Switch CODE='True'/></OTHER></CONTROL>", "K70 Switch: ON"},
      {"<CONTROL><OTHER><TactorSwitch CODE='False'/></OTHER></CONTROL>", "Tactor Switch: OFF"},
      {"<CONTROL><OTHER><B_KM_RSwitch CODE='True'/></OTHER></CONTROL>",
       "B-KM-R Remote Controler, Switch Setting: ON"},
      {"<CONTROL><OTHER><B_KM_RSwitchLED CODE='Dark'/></OTHER></CONTROL>",
       "B-KM-R Remote Controler, LED Setting: Dark"},
      {"<SWITCH><SWITCH POSITION='1' FUNCTION='3'/></SWITCH>",
       "K70 Switch SW_1: Z Focus Knob Speed Change"},
      {"<SWITCH><SWITCH POSITION='13' FUNCTION='9'/></SWITCH>",
       "K70 Switch CW/CCW_1 CW: DIA Aperture Stop OPEN"},
      {"<SWITCH><SWITCH POSITION='14' FUNCTION='28'/></SWITCH>",
       "K70 Switch CW/CCW_1 CCW: Image Capture"},
      {"<SWITCH><SWITCH POSITION='4' FUNCTION='52'/></SWITCH>", "K70 Switch 4: code 52"},
      {"<SWITCH><SWITCH POSITION='x' FUNCTION='y'/></SWITCH>", "K70 Switch x: y"},
      {"<TACTOR><SWITCH><SETTING MODE='1'/></SWITCH></TACTOR>", "Tactor Switch, Mode: Extend"},
      {"<TACTOR><SWITCH><SETTING HANDLE='0'/></SWITCH></TACTOR>", "Tactor Switch, XY Knob: Right"},
      {"<TACTOR><SWITCH><SETTING HANDLE='3'/></SWITCH></TACTOR>", "Tactor Switch, XY Knob: 3"},
      {"<TACTOR><SWITCH><SWITCH POSITION='4' FUNCTION='26'/></SWITCH></TACTOR>",
       "Tactor Switch R (A): DIA Lamp ON/OFF"},
      {"<TACTOR><SWITCH><SWITCH POSITION='9' FUNCTION='2'/></SWITCH></TACTOR>",
       "Tactor Switch CW/CCW(B) CCW: Objective CCW"},
      {"<Extra><Thing POSITION='a' Colour='red'/></Extra>", "Extra Thing a Colour: red"},
  };
  for (const Row& row : rows) EXPECT_EQ(WordsOfFile(row.file), Lines{row.words}) << row.file;
}

std::string PartsInWords(const std::string& file) {
  std::string words;
  for (const ConfigurationItem& item : Items(file)) {
    for (const ValuePart& part : PartsOf(item, ItemNames(std::vector<ConfigurationItem>()))) {
      words += std::string(part.name) + "=" + part.value + "=" + part.words + ";";
    }
  }
  return words;
}

TEST(ItemWords, TellThePartsOfARecord) {
  EXPECT_EQ(PartsInWords("<FILTER><OPTION POSITION='2' CODE='124120043000'/></FILTER>"),
            "Exciter=241=code 241;Dichroic=4=code 4;Barrier=0=----;");
  EXPECT_EQ(PartsInWords("<NOSEPIECE><OPTION POSITION='1' CODE='230FA0C63B65'/></NOSEPIECE>"),
            "Series=2=code 2;Type=3=code 3;Mag.=25x=25x;W.D.=1.98=1.98;N.A.=0.95=0.95;"
            "DIC / Ph Condenser=5=code 5;");
  for (const char* without : {"<FILTER><OPTION POSITION='2' CODE='1x4120043000'/></FILTER>",
                              "<FILTER><OPTION POSITION='2' CODE='1'/></FILTER>",
                              "<NOSEPIECE><OPTION POSITION='1' CODE='230FA0C63B6x'/></NOSEPIECE>",
                              "<NOSEPIECE><ITEM POSITION='1' CODE='3'/></NOSEPIECE>"}) {
    EXPECT_EQ(PartsInWords(without), "") << without;
  }
}

TEST(ItemWords, TakeNamesFromTheFileItself) {
  EXPECT_EQ(WordsOfFile("<NOSEPIECE><ITEM POSITION='1' CODE='241'/>"
                        "<OPTION POSITION='1' NAME='Own 5x'/></NOSEPIECE>"
                        "<FILTER><OPTION POSITION='1' CODE='124122423000' NAME='C'/>"
                        "<EXCITER POSITION='1' NAME='Ex'/><DICHROIC POSITION='2' NAME='Di'/>"
                        "</FILTER><CONDENSER><ITEM POSITION='1' CODE='149'/>"
                        "<OPTION POSITION='9' NAME='Slit'/></CONDENSER>"),
            (Lines{"Objective 1: Own 5x", "Optional Objective 1, Name: Own 5x",
                   "Optional Filter Cube 1: Exciter Ex, Dichroic Di, Barrier ----",
                   "Optional Filter Cube 1, Name: C", "Optional Exciter 1: Ex",
                   "Optional Dichroic 2: Di", "Condenser 1: Slit", "Optional Condenser 9: Slit"}));
}

TEST(ItemWords, TakeNamesFromTheListsOfTheMicroscope) {
  ReceivedRig rig("Quay");
  const ItemNames names(rig.k70);
  const auto items = Items(
      "<NOSEPIECE><ITEM POSITION='1' CODE='9'/><OPTION POSITION='1' CODE='230FA0C63B65'/>"
      "</NOSEPIECE><FILTER><ITEM POSITION='1' CODE='2'/>"
      "<OPTION POSITION='1' CODE='100220013002'/></FILTER>"
      "<CONDENSER><ITEM POSITION='1' CODE='5'/></CONDENSER>");
  Lines lines;
  for (const ConfigurationItem& item : items) lines.push_back(InWords(item, names));
  EXPECT_EQ(
      lines,
      (Lines{"Objective 1: Plan F 20x",
             std::string("Optional Objective 1: Series Plan F, Type Water, Mag. 25x, W.D. 1.98, ") +
                 "N.A. 0.95, DIC / Ph Condenser DIC L",
             "Filter Cube 1: UV Blue",
             "Optional Filter Cube 1: Exciter " + rig.k70.Exciter.Name(2) + ", Dichroic " +
                 rig.k70.Dichroic.Name(1) + ", Barrier " + rig.k70.Barrier.Name(2),
             "Condenser 1: DIC L"}));
}

TEST(ItemWords, TellWhatTheModelHoldsAndTheFileDoesNot) {
  Rig rig("Quay");
  rig.k70.DbNosepiece.Set_DbNosepiece(1, "A", 0, 0, "2.54", "1.234", "1.2345", 0);
  rig.k70.COther.curR_TLPOLED = 3;
  rig.k70.COther.curBuzzer = 2;
  const ItemNames names(rig.k70);
  Lines lines;
  for (const ConfigurationItem& item : ItemsOf(rig.k70)) {
    const bool asked = (item.kind == ItemKind::ObjectiveCode && item.key.position == "1") ||
                       item.kind == ItemKind::RemoteLed || item.kind == ItemKind::Buzzer;
    if (asked) lines.push_back(InWords(item, names));
  }
  EXPECT_EQ(
      lines,
      (Lines{"Optional Objective 1: Series -----------, Type --------, Mag. 2.54x, W.D. 1.234, "
             "N.A. 1.2345, DIC / Ph Condenser None",
             "Buzzer: The two controllers differ", "B-KM-R Remote Controler, LED Setting: 3"}));
}

}  // namespace
}  // namespace mortane::test

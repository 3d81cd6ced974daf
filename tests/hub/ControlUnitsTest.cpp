// Drives and other controls as the transfers and the settings file walk over them.
#include <gtest/gtest.h>

#include <algorithm>

#include "condensers/clsDbCondenser.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "objectives/clsNosepiece.h"
#include "support/Rig.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

using Lines = std::vector<std::string>;

// Something to send in the unit before them and in each of the three.
void ChangeAll(clsK70& k70) {
  k70.dbcon.Name(141, "Slot");
  k70.CZDrive.SetEscape(0, 0);
  k70.CXYDrive.curFocusCompensation = 1;
  k70.COther.curAutoZ = 1;
}

constexpr const char* kCondenserWrite = "AccessoryDatabase.Condensers.Item(10).Name = \"Slot\"";
constexpr const char* kFocusWrite = "ControllerSettings.EscapeMode = 2";
constexpr const char* kStageWrite = "XYDriveDevice.FocusCompensation = 1";
constexpr const char* kOtherWrite = "ZDriveDevice.KnobAuto = 1";

// Those of the lines above that were written, in the order in which they came.
Lines Written(const Rig& rig) {
  const Lines all{kCondenserWrite, kFocusWrite, kStageWrite, kOtherWrite};
  Lines known;
  std::copy_if(
      rig.journal.Writes().begin(), rig.journal.Writes().end(), std::back_inserter(known),
      [&](const auto& line) { return std::find(all.begin(), all.end(), line) != all.end(); });
  return known;
}

TEST(ControlUnits, AreSentInOrderBehindTheCondensers) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ChangeAll(rig.k70);
  rig.k70.Send();
  EXPECT_EQ(Written(rig), (Lines{kCondenserWrite, kFocusWrite, kStageWrite, kOtherWrite}));
}

TEST(ControlUnits, AreComparedInTheSameOrder) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ChangeAll(rig.k70);
  EXPECT_EQ(rig.k70.Modify(),
            "Optional Condenser[1] Slot\r\nControl FocusDrive[EscapeMode]Z:OFF XY:ON\r\n"
            "Control XYStage[FocusCompensation]\r\nControl Other[FocusDrive Auto]");
}

TEST(ControlUnits, FailuresOfAReceiveStandInTheSameOrder) {
  Rig rig("Harbour");
  rig.Connect();
  rig.faults.Add({"ZDriveDevice.FocusCompensation"});
  rig.faults.Add({"XYDriveDevice.FocusCompensation"});
  rig.faults.Add({"BuzzerEnabled(1)"});
  rig.prompts.ExpectBox(
      "Control Focus Drive (LIB:-2147467259)\r\nControl XY Stage (LIB:80004005)\r\n"
      "Control Other (LIB:80004005)",
      box::kCritical);
  rig.k70.Receive();
}

struct GateRow {
  std::int32_t accessory;
  std::int32_t mounted;
  Lines writes;
};

TEST(ControlUnits, AreSentOnlyWhileTheyAreEnabled) {
  for (const GateRow& row :
       {GateRow{accessory::kNosepiece, kNotMounted, {kCondenserWrite, kOtherWrite}},
        GateRow{accessory::kNosepiece, kSensorOnly, {kCondenserWrite, kOtherWrite}},
        GateRow{accessory::kZFocusDrive, kNotMounted, {kCondenserWrite, kStageWrite}},
        GateRow{accessory::kXYStage, kSensorOnly, {kCondenserWrite, kFocusWrite, kOtherWrite}},
        GateRow{accessory::kCondenser, kNotMounted, {kFocusWrite, kStageWrite, kOtherWrite}}}) {
    Rig rig("Harbour");
    rig.instrument().Accessory(row.accessory).state = row.mounted == kNotMounted ? 0 : 1;
    rig.instrument().Accessory(row.accessory).readOnly = row.mounted == kSensorOnly;
    rig.ConnectAndReceive();
    ChangeAll(rig.k70);
    rig.k70.Send();
    EXPECT_EQ(Written(rig), row.writes) << row.accessory << ' ' << row.mounted;
  }
}

TEST(ControlUnits, AnUnchangedSendWritesOnlyWhatIsAlwaysWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.Send();
  EXPECT_EQ(rig.journal.Writes(),
            (Lines{"NosepieceDevice.Limitation = 1", "ControllerSettings.EscapeMode = 3",
                   "BuzzerOn(1)", "BuzzerOn(5)"}));
}

std::string NoseCounts(const clsK70& k70) {
  return std::to_string(k70.CZDrive.NoseCount) + " " + std::to_string(k70.CXYDrive.NoseCount);
}

TEST(ControlUnits, TheDrivesAreToldTheNosepiecesAddressesOnConnectAndOnReceive) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(NoseCounts(rig.k70), "6 6");
  rig.instrument().nosepiece.pop_back();
  rig.k70.Receive();
  EXPECT_EQ(NoseCounts(rig.k70), "5 5");
}

TEST(ControlUnits, ANosepieceWhoseCountFailsOrThatIsAbsentGivesTheDrivesNone) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"NosepieceDevice.Positions.Count"});
  rig.prompts.ExpectBox("Nosepiece Count", box::kCritical);
  rig.k70.Receive();
  EXPECT_EQ(NoseCounts(rig.k70), "0 0");
  rig.faults.Clear();
  rig.k70.CZDrive.NoseCount = rig.k70.CXYDrive.NoseCount = 6;
  rig.instrument().Accessory(accessory::kNosepiece).state = 0;
  rig.Connect();
  EXPECT_EQ(NoseCounts(rig.k70), "0 0");
}

// A turret's own read changes its own count.
TEST(ControlUnits, TheDrivesKeepTheirCountWhenOnlyTheNosepieceIsRead) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.instrument().nosepiece.pop_back();
  EXPECT_EQ(rig.k70.curNosepiece.ReadSdk(), "");
  EXPECT_EQ(rig.k70.curNosepiece.Count, 5);
  EXPECT_EQ(NoseCounts(rig.k70), "6 6");
}

TEST(ControlUnits, TheirElementsStandInTheirSectionInOrder) {
  const TempFolder folder;
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.WriteXML(folder.Path("all.xml"));
  EXPECT_NE(
      TempFolder::Read(folder.Path("all.xml"))
          .find(R"(<CONTROL><FOCUSDRIVE><FocusCompensation CODE="Relative"/>)"
                R"(<DownLimitation CODE="Unknown"/><Escape_ZDrive CODE="On"/>)"
                R"(<Escape_XYStage CODE="On"/></FOCUSDRIVE><XYSTAGE>)"
                R"(<FocusCompensation CODE="Relative"/></XYSTAGE><OTHER><FocusDrive AUTO="False"/>)"
                R"(<XYStage AUTO="False"/><Buzzer CODE="False"/><Switch CODE="True"/>)"
                R"(<TactorSwitch CODE="True"/><B_KM_RSwitch CODE="Unknown"/>)"
                R"(<B_KM_RSwitchLED CODE="Unknown"/></OTHER></CONTROL>)"),
      std::string::npos);
}

TEST(ControlUnits, AFileCarriesThemToAnotherModel) {
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
  target.k70.Send();
  EXPECT_EQ(Written(target), (Lines{kCondenserWrite, kFocusWrite, kStageWrite, kOtherWrite}));
}

TEST(ControlUnits, LinesOfAFileStandInItsOrder) {
  const TempFolder folder;
  const std::string path = folder.Write(
      "bad.xml",
      R"(<Setup><control><other><Buzzer CODE="x"/></other><xystage><FocusCompensation/></xystage>)"
      R"(<focusdrive><DownLimitation/></focusdrive></control></Setup>)");
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.prompts.ExpectBox(
      "Control Other TactorSwitch\r\nControl XY Stage FocusCompensation\r\n"
      "Control Focus Drive DownLimitation",
      box::kOk, Answer::Ok, "XML Read");
  rig.k70.ReadXMLItems(path);
  rig.k70.ReadXML(path);
}

// "OTHER" stands in another section too.
TEST(ControlUnits, ElementsOfAnotherSectionAreNotTheirs) {
  const TempFolder folder;
  const std::string path =
      folder.Write("elsewhere.xml",
                   R"(<Setup><SWITCH><OTHER><Buzzer CODE="True"/></OTHER></SWITCH><FILTER>)"
                   R"(<FOCUSDRIVE><DownLimitation CODE="-500000"/></FOCUSDRIVE></FILTER></Setup>)");
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.ReadXMLItems(path);
  rig.k70.ReadXML(path);
  EXPECT_EQ(rig.k70.COther.curBuzzer, 0);
  EXPECT_EQ(rig.k70.CZDrive.curLowerLimit, -1);
}

}  // namespace
}  // namespace mortane::test

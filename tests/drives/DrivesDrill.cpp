// The drill of the drive units.
#include "drives/DriveUnits.h"
#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

std::string Focus(const std::string& children) {
  return "<FOCUSDRIVE>" + children + "</FOCUSDRIVE>";
}

UnitDrillData FocusDrive() {
  UnitDrillData data;
  data.name = "ControlZDrive";
  data.bench = "Harbour";
  data.unit = OperationsOf(&DriveUnits::CZDrive);
  data.edits = {
      {"the compensation, which is not compared, and the escape",
       [](DriveUnits& units) {
         units.CZDrive.curFocusCompensation = 1;
         units.CZDrive.SetEscape(0, 0);
       },
       "Control FocusDrive[EscapeMode]Z:OFF XY:ON",
       {"ZDriveDevice.FocusCompensation = 1", "ControllerSettings.EscapeMode = 2"}},
  };
  data.alwaysWritten = {"ControllerSettings.EscapeMode = 3"};
  data.readFailure = data.modifyFailure = "Control Focus Drive (";
  data.readFailed = "LIB:-2147467259)";
  data.writeFailures = {"Control Focus Drive FocusCompensation", "Control Focus Drive EscapeMode"};
  data.refused = {
      {Focus(R"(<FocusCompensation CODE="Some"/>)"), "Control Focus Drive FocusCompensation"},
      {Focus(R"(<FocusCompensation CODE="1"/>)"), "Control Focus Drive FocusCompensation"},
      {Focus(R"(<FocusCompensation CODE=" None"/>)"), "Control Focus Drive FocusCompensation"},
      {Focus(R"(<FocusCompensation CODE=""/>)"), "Control Focus Drive FocusCompensation"},
      {Focus("<FocusCompensation/>"), "Control Focus Drive FocusCompensation"},
      {Focus(R"(<FocusCompensation AUTO="None"/>)"), "Control Focus Drive FocusCompensation"},
      {Focus(R"(<DownLimitation CODE="300000"/>)"), "Control Focus Drive DownLimitation"},
      {Focus(R"(<DownLimitation CODE="-300000.0"/>)"), "Control Focus Drive DownLimitation"},
      {Focus("<DownLimitation/>"), "Control Focus Drive DownLimitation"},
      {Focus(R"(<Escape_ZDrive CODE="True"/>)"), "Control Focus Drive EscapeSetting"},
      {Focus("<Escape_ZDrive/>"), "Control Focus Drive EscapeSetting"},
      {Focus(R"(<Escape_XYStage CODE="2"/>)"), "Control Focus Drive EscapeSetting"},
      {Focus("<Escape_XYStage/>"), "Control Focus Drive EscapeSetting"},
      {Focus(R"(<Escape_XYStage/><DownLimitation CODE="x"/><Escape_ZDrive CODE="1"/>)"),
       "Control Focus Drive EscapeSetting\r\nControl Focus Drive DownLimitation\r\n"
       "Control Focus Drive EscapeSetting"},
      {Focus(R"(<FocusCompensation CODE="unKnown"/><DownLimitation CODE="Unknown"/>)"), ""},
      {Focus(R"(<Escape_ZDrive CODE="unknown"/><Escape_XYStage CODE="UNKNOWN"/>)"), ""},
      {Focus(R"(<Nobody CODE="x"/>text<!--Escape_ZDrive--><?FocusCompensation CODE="x"?>)"), ""},
      {Focus(""), ""},
  };
  return data;
}

// No condenser stands below this stage, so its drive has a lower limit.
UnitDrillData FocusDriveWithALimit() {
  UnitDrillData data = FocusDrive();
  data.name = "ControlZDriveWithALimit";
  data.bench = "Lantern";
  data.edits = {
      {"lower limit",
       [](DriveUnits& units) { units.CZDrive.curLowerLimit = 0; },
       "Control FocusDrive[DownLimitation]",
       {"ZDriveDevice.LowerLimit = 0", "ControllerSettings.EscapeMode = 1"}},
      {"the compensation, which is not compared, and the escape",
       [](DriveUnits& units) {
         units.CZDrive.curFocusCompensation = 3;
         units.CZDrive.SetEscape(1, 1);
       },
       "Control FocusDrive[EscapeMode]Z:ON XY:ON",
       {"ZDriveDevice.FocusCompensation = 3", "ControllerSettings.EscapeMode = 3"}},
  };
  data.alwaysWritten = {"ControllerSettings.EscapeMode = 1"};
  data.writeFailures = {"Control Focus Drive FocusCompensation",
                        "Control Focus Drive DownLimitation", "Control Focus Drive EscapeMode"};
  return data;
}

std::string Stage(const std::string& children) {
  return "<XYSTAGE>" + children + "</XYSTAGE>";
}

UnitDrillData XYStage() {
  constexpr const char* kRefused = "Control XY Stage FocusCompensation";
  UnitDrillData data;
  data.name = "ControlXYDrive";
  data.bench = "Harbour";
  data.unit = OperationsOf(&DriveUnits::CXYDrive);
  data.edits = {
      {"compensation",
       [](DriveUnits& units) { units.CXYDrive.curFocusCompensation = 2; },
       "Control XYStage[FocusCompensation]",
       {"XYDriveDevice.FocusCompensation = 2"}},
  };
  data.marksUnknown = true;
  data.readFailure = data.modifyFailure = "Control XY Stage (";
  data.writeFailures = {kRefused};
  data.refused = {
      {Stage(R"(<FocusCompensation CODE="Some"/>)"), kRefused},
      {Stage(R"(<FocusCompensation CODE="3"/>)"), kRefused},
      {Stage(R"(<FocusCompensation CODE=""/>)"), kRefused},
      {Stage("<FocusCompensation/>"), kRefused},
      {Stage(R"(<FocusCompensation CODE="UNKNOWN"/>)"), ""},
      {Stage(R"(<DownLimitation CODE="x"/>text<!--FocusCompensation-->)"), ""},
      {Stage(""), ""},
  };
  return data;
}

std::string Other(const std::string& children) {
  return "<OTHER>" + children + "</OTHER>";
}

UnitDrillData OtherControls() {
  const std::vector<std::string> on{"BuzzerOn(1)", "BuzzerOn(2)", "BuzzerOn(5)"};
  const auto before = [&](const std::string& write) {
    std::vector<std::string> writes = on;
    writes.insert(writes.begin(), write);
    return writes;
  };
  const auto behind = [&](const std::string& write) {
    std::vector<std::string> writes = on;
    writes.push_back(write);
    return writes;
  };
  UnitDrillData data;
  data.name = "ControlOther";
  data.bench = "Quay";
  data.unit = OperationsOf(&DriveUnits::COther);
  data.edits = {
      {"focus knob", [](DriveUnits& units) { units.COther.curAutoZ = 0; },
       "Control Other[FocusDrive Auto]", before("ZDriveDevice.KnobAuto = 0")},
      {"stage knob", [](DriveUnits& units) { units.COther.curAutoXY = 1; },
       "Control Other[XYStage Auto]", before("XYDriveDevice.KnobAuto = 1")},
      {"buzzer",
       [](DriveUnits& units) { units.COther.curBuzzer = 1; },
       "Control Other[Buzzer]",
       {"BuzzerOff(1)", "BuzzerOff(2)", "BuzzerOff(5)"}},
      {"body switches", [](DriveUnits& units) { units.COther.curSwEnable = 0; },
       "Control Other[Switch]", behind("DisableSwitch(0, 0)")},
      {"hand controller's switches", [](DriveUnits& units) { units.COther.curTactorSwEnable = 0; },
       "Control Other[Tactor Switch]", behind("DisableSwitch(4, 0)")},
  };
  data.alwaysWritten = on;
  data.marksUnknown = true;
  data.readFailure = data.modifyFailure = "Control Other (";
  data.writeFailures = {"Control Other FocusDrive Auto", "Control Other XY Stage Auto",
                        "Control Other Buzzer K70",      "Control Other Buzzer QH_R",
                        "Control Other Buzzer Tactor",   "Control Other Switch",
                        "Control Other TactorSwitch"};
  data.refused = {
      {Other(R"(<FocusDrive AUTO="x"/>)"), "Control Other Focus Drive Auto"},
      {Other(R"(<FocusDrive AUTO=""/>)"), "Control Other Focus Drive Auto"},
      {Other(R"(<FocusDrive CODE="x"/>)"), "Control Other Focus Drive Sensitivity"},
      {Other(R"(<FocusDrive CODE="x" AUTO="1"/>)"),
       "Control Other Focus Drive Auto\r\nControl Other Focus Drive Sensitivity"},
      {Other(R"(<XYStage AUTO="x"/>)"), "Control Other XY Stage Auto"},
      {Other(R"(<XYStage CODE="Rough"/>)"), "Control Other XY Stage Sensitivity"},
      {Other(R"(<Buzzer CODE="On"/>)"), "Control Other TactorSwitch"},
      {Other(R"(<Switch CODE="1"/>)"), "Control Other TactorSwitch"},
      {Other(R"(<TactorSwitch CODE=""/>)"), "Control Other TactorSwitch"},
      {Other(R"(<B_KM_RSwitch CODE="x"/>)"), "Control Other B_KM_R Switch"},
      {Other(R"(<B_KM_RSwitchLED CODE="True"/>)"), "Control Other B_KM_R Remote SwitchLED"},
      {Other("<FocusDrive/><XYStage/><Buzzer/><Switch/><TactorSwitch/><B_KM_RSwitch/>"
             "<B_KM_RSwitchLED/>"),
       ""},
      {Other(R"(<FocusDrive AUTO="UNKNOWN" CODE="Unknown"/><XYStage AUTO="unknown"/>)"), ""},
      {Other(R"(<Buzzer CODE="unknown"/><B_KM_RSwitchLED CODE="unKNOWN"/>)"), ""},
      {Other(R"(<Buzzer AUTO="x"/><Nobody CODE="x"/>text<!--Switch-->)"), ""},
      {Other(""), ""},
  };
  return data;
}

INSTANTIATE_TEST_SUITE_P(Drives, UnitDrill,
                         testing::Values(FocusDrive(), FocusDriveWithALimit(), XYStage(),
                                         OtherControls()),
                         DrillName);

}  // namespace
}  // namespace mortane::test

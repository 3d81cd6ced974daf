// The drill of the drive pages.
#include "gui/drives/DrivePages.h"
#include "gui/drives/DrivesTold.h"
#include "gui/support/PageDrill.h"

namespace mortane::test {
namespace {

template <auto Unit, auto Field>
std::string ValueOf(DrivePageUnits& k70) {
  return std::to_string(k70.*Unit.*Field);
}

template <auto Unit, auto Field, std::int32_t Value>
void Set(DrivePageUnits& k70) {
  k70.*Unit.*Field = Value;
}

constexpr auto kZ = &DrivePageUnits::CZDrive;
constexpr auto kXY = &DrivePageUnits::CXYDrive;
constexpr auto kZCompensation = &clsControlZDrive::curFocusCompensation;
constexpr auto kLowerLimit = &clsControlZDrive::curLowerLimit;
constexpr auto kUpperLimit = &clsControlZDrive::curUpperLimit;
constexpr auto kXYCompensation = &clsControlXYDrive::curFocusCompensation;

template <std::int32_t Axis>
std::string EscapeOf(DrivePageUnits& k70) {
  return std::to_string(k70.CZDrive.SetEscape(Axis));
}

template <std::int32_t Axis, std::int16_t Flag>
void SetEscape(DrivePageUnits& k70) {
  k70.CZDrive.SetEscape(Axis, Flag);
}

std::function<std::string(DrivePageUnits&)> PositionOf(std::int32_t address) {
  return [address](DrivePageUnits& k70) { return std::to_string(k70.CZDrive.Position(address)); };
}
std::function<void(DrivePageUnits&)> PutPosition(std::int32_t address, std::int32_t steps) {
  return [=](DrivePageUnits& k70) { k70.CZDrive.Position(address, steps); };
}
std::function<std::string(DrivePageUnits&)> XOf(std::int32_t address) {
  return [address](DrivePageUnits& k70) { return std::to_string(k70.CXYDrive.PositionX(address)); };
}
std::function<void(DrivePageUnits&)> PutX(std::int32_t address, std::int32_t steps) {
  return [=](DrivePageUnits& k70) { k70.CXYDrive.PositionX(address, steps); };
}
std::function<std::string(DrivePageUnits&)> YOf(std::int32_t address) {
  return [address](DrivePageUnits& k70) { return std::to_string(k70.CXYDrive.PositionY(address)); };
}
std::function<void(DrivePageUnits&)> PutY(std::int32_t address, std::int32_t steps) {
  return [=](DrivePageUnits& k70) { k70.CXYDrive.PositionY(address, steps); };
}

// An instrument that has a lower limit: no condenser, not even a sensed one.
void WithoutCondenser(Bench& bench) {
  bench.instruments.back().Accessory(accessory::kCondenser) = {};
}
void WithUnknownLimit(Bench& bench) {
  WithoutCondenser(bench);
  bench.instruments.back().zDrive.lowerLimit = -1;
}

std::function<void(Bench&)> WithVersion(const char* version) {
  return [version](Bench& bench) { bench.instruments.back().Unit(1).version = version; };
}

// What the drills of all these pages begin with; their loading prepares a drive for moves.
PageDrillData Drill(const char* name, const char* bench, std::function<Page*(DrivePageUnits&)> make,
                    std::vector<AccessibleControl> accessible) {
  PageDrillData data;
  data.name = name;
  data.bench = bench;
  data.make = std::move(make);
  data.accessible = std::move(accessible);
  data.loadBox = "MoveStart Error!!";
  return data;
}

PageDrillData FocusDrive() {
  PageDrillData data = Drill("FocusDrive", "Harbour", MakeControlFocusDriveCtl, ToldOfFocusDrive());
  data.without = {DrillTable::Refused};
  data.controls = {
      {"FrameBase", "Focus Drive Setting"},
      {"frmEscapeSetting", "Escape"},
      {"lblEscape_0", "Focus Drive  "},
      {"lblEscape_1", "XY Stage"},
      {"chkEscape_0", "ON"},
      {"chkEscape_1", "ON"},
      {"FrameUpperLimitation", "Upper Limit"},
      {"optUpperLimitation_0", "ON"},
      {"optUpperLimitation_1", "OFF ( default )"},
      {"FrameDownLimitation", "Lower Limit"},
      {"optDownLimitation_0", "-15mm ( default )"},
      {"optDownLimitation_1", "-25mm  "},
      {"FrameZNose", "Z Focus Correction for Pafocality"},
  };
  data.shown = {
      {"chkEscape_0", SetEscape<0, 0>, EscapeOf<0>, "off"},
      {"chkEscape_0", SetEscape<0, 1>, EscapeOf<0>, "on"},
      {"chkEscape_1", SetEscape<1, 0>, EscapeOf<1>, "off"},
      {"chkEscape_1", SetEscape<1, 2>, EscapeOf<1>, "off"},
      {"chkEscape_0", SetEscape<0, 2>, EscapeOf<0>, "off"},
  };
  data.edits = {
      {"optUpperLimitation_1", "OFF ( default )", ValueOf<kZ, kUpperLimit>, "1"},
      {"chkEscape_0", "ON", EscapeOf<0>, "0"},
      {"chkEscape_1", "ON", EscapeOf<1>, "0"},
  };
  data.enabling = {
      {"frmEscapeSetting", "Harbour", {}, true},
      {"frmEscapeSetting", "Harbour", WithVersion("V1.3"), true},
      {"frmEscapeSetting", "Harbour", WithVersion("V1.30b"), true},
      {"frmEscapeSetting", "Harbour", WithVersion("V1.21"), false},
      {"frmEscapeSetting", "Harbour", WithVersion("V1.29999"), false},
      {"frmEscapeSetting", "Harbour", WithVersion("VER V1.3"), false},
      {"frmEscapeSetting", "Harbour", WithVersion("vDEMO"), false},
      {"frmEscapeSetting", "Harbour", WithVersion(""), false},
      {"frmEscapeSetting", "Outpost", {}, false},
      {"chkEscape_0", "Harbour", WithVersion("V1.2"), false},
      {"lblEscape_0", "Harbour", WithVersion("V1.2"), false},
      {"chkEscape_1", "Harbour", WithVersion("V1.2"), false},
      {"lblEscape_1", "Harbour", WithVersion("V1.2"), false},
      {"chkEscape_0", "Hollow", {}, true},
      {"chkEscape_1", "Hollow", {}, false},
      {"lblEscape_1", "Hollow", {}, false},
      {"lblEscape_1", "Harbour", {}, true},
      {"chkEscape_1", "Watch", {}, true},
      {"FrameDownLimitation", "Harbour", {}, false},
      {"optDownLimitation_0", "Harbour", {}, false},
      {"optDownLimitation_1", "Harbour", {}, false},
      {"FrameDownLimitation", "Harbour", WithoutCondenser, true},
      {"optDownLimitation_0", "Lantern", {}, true},
      {"optDownLimitation_1", "Lantern", {}, true},
      {"FrameDownLimitation", "Relay", {}, false},
      {"FrameDownLimitation", "Outpost", {}, true},
      {"FrameDownLimitation", "Harbour", WithUnknownLimit, false},
  };
  data.tabOrder = {"chkEscape_0", "chkEscape_1", "optUpperLimitation_0"};
  return data;
}

PageDrillData Teaching() {
  PageDrillData data = Drill("Teaching", "Harbour", MakeControlFocusDriveCtl, ToldOfTeaching());
  data.without = {DrillTable::Enabling};
  data.prepare = [](PageWindow& rig) { rig.Find("FrameZNose").show(); };
  data.controls = {
      {"FrameZControl", "Z Control"},         {"ButtonStart", "Start"},
      {"CheckRealMove", "Is Real Move ?"},    {"FrameNosepiece", "Nosepiece"},
      {"optFocusCompensation_0", "Absolute"}, {"optFocusCompensation_1", "ON ( default )"},
      {"optFocusCompensation_2", "OFF"},
  };
  data.shown = {
      {"optFocusCompensation_1", Set<kZ, kZCompensation, 3>, ValueOf<kZ, kZCompensation>, "on"},
      {"optFocusCompensation_2", Set<kZ, kZCompensation, 1>, ValueOf<kZ, kZCompensation>, "on"},
      {"optFocusCompensation_0", Set<kZ, kZCompensation, 2>, ValueOf<kZ, kZCompensation>, "on"},
      {"TextNosepiece_0", PutPosition(1, 0), PositionOf(1), "0"},
      {"TextNosepiece_0", PutPosition(1, 1), PositionOf(1), "0.05"},
      {"TextNosepiece_5", PutPosition(6, -50), PositionOf(6), "-2.5"},
      {"TextNosepiece_5", PutPosition(6, -900000), PositionOf(6), "No Setting"},
      {"TextNosepiece_5", PutPosition(6, 20000), PositionOf(6), "1000"},
      {"TextNosepiece_6", PutPosition(7, 20000), PositionOf(7), ""},
  };
  data.edits = {
      {"TextNosepiece_0", "2.5", PositionOf(1), "50"},
      {"TextNosepiece_5", "50000", PositionOf(6), "1000000"},
      {"TextNosepiece_5", "-100000", PositionOf(6), "-2000000"},
      {"optFocusCompensation_2", "OFF", ValueOf<kZ, kZCompensation>, "1"},
  };
  data.refused = {
      {"TextNosepiece_0", "abc", PositionOf(1), kWrongValue},
      {"TextNosepiece_0", " ", PositionOf(1), kWrongValue},
      {"TextNosepiece_5", "50000.01", PositionOf(6), kWrongValue},
      {"TextNosepiece_5", "-100000.01", PositionOf(6), kWrongValue},
      {"TextNosepiece_0", "1e300", PositionOf(1), kWrongValue},
      {"TextNosepiece_0", "nan", PositionOf(1), kWrongValue},
      {"TextNosepiece_0", "inf", PositionOf(1), kWrongValue},
      {"TextNosepiece_0", "1,5", PositionOf(1), kWrongValue},
      {"TextNosepiece_0", std::string(400, '9'), PositionOf(1), kWrongValue},
      {"TextNosepiece_0", "No Setting", PositionOf(1), kWrongValue},
  };
  data.tabOrder = {"chkEscape_0", "chkEscape_1", "optUpperLimitation_0", "optFocusCompensation_1",
                   "optNosepiece_0"};
  for (int row = 0; row < 6; ++row) data.tabOrder.push_back(Numbered("TextNosepiece", row));
  for (const char* name : {"CheckRealMove", "ButtonUpLarge", "ButtonUpSmall", "ButtonStart",
                           "ButtonDownSmall", "ButtonDownLarge"}) {
    data.tabOrder.emplace_back(name);
  }
  return data;
}

PageDrillData Limits() {
  PageDrillData data = Drill("Limits", "Lantern", MakeControlFocusDriveCtl, ToldOfLimits());
  data.without = {DrillTable::Controls, DrillTable::Refused, DrillTable::Enabling};
  data.shown = {
      {"optDownLimitation_0", Set<kZ, kLowerLimit, 0>, ValueOf<kZ, kLowerLimit>, "on"},
      {"optDownLimitation_1", Set<kZ, kLowerLimit, 1>, ValueOf<kZ, kLowerLimit>, "on"},
      {"optDownLimitation_1", Set<kZ, kLowerLimit, 2>, ValueOf<kZ, kLowerLimit>, "off"},
  };
  data.edits = {
      {"optDownLimitation_0", "-15mm ( default )", ValueOf<kZ, kLowerLimit>, "0"},
  };
  data.tabOrder = {"optUpperLimitation_0", "optDownLimitation_1"};
  return data;
}

PageDrillData XYStage() {
  PageDrillData data = Drill("XYStage", "Harbour", MakeControlXYStageCtl, ToldOfStage());
  data.without = {DrillTable::Enabling};
  data.controls = {
      {"FrameBase", "XY Stage Setting"},
      {"Frame1", "Pitch adjustment to Magnification"},
      {"optFocusCompensation_0", "Absolute"},
      {"optFocusCompensation_1", "ON"},
      {"optFocusCompensation_2", "OFF"},
      {"FrameNosepiece", "Nosepiece"},
      {"FrameXYControl", "XY Control"},
      {"CheckRealMove", "Is Real Move ?"},
      {"ButtonStart", "Start"},
  };
  data.shown = {
      {"optFocusCompensation_0", Set<kXY, kXYCompensation, 2>, ValueOf<kXY, kXYCompensation>, "on"},
      {"optFocusCompensation_1", Set<kXY, kXYCompensation, 3>, ValueOf<kXY, kXYCompensation>, "on"},
      {"optFocusCompensation_2", Set<kXY, kXYCompensation, 1>, ValueOf<kXY, kXYCompensation>, "on"},
      {"TextNosepieceX_0", PutX(1, 0), XOf(1), "0"},
      {"TextNosepieceX_0", PutX(1, -1), XOf(1), "-0.05"},
      {"TextNosepieceX_5", PutX(6, -900000), XOf(6), "-45000"},
      {"TextNosepieceX_6", PutX(7, 20), XOf(7), ""},
      {"TextNosepieceY_0", PutY(1, 0), YOf(1), "0"},
      {"TextNosepieceY_5", PutY(6, 30), YOf(6), "1.5"},
      {"TextNosepieceY_6", PutY(7, 20), YOf(7), ""},
  };
  data.edits = {
      {"TextNosepieceX_0", "-50000", XOf(1), "-1000000"},
      {"TextNosepieceX_5", "0.05", XOf(6), "1"},
      {"TextNosepieceY_0", "50000", YOf(1), "1000000"},
      {"TextNosepieceY_5", "-0.05", YOf(6), "-1"},
      {"optFocusCompensation_0", "Absolute", ValueOf<kXY, kXYCompensation>, "2"},
      {"optFocusCompensation_2", "OFF", ValueOf<kXY, kXYCompensation>, "1"},
  };
  data.refused = {
      {"TextNosepieceX_0", "abc", XOf(1), kWrongValue},
      {"TextNosepieceX_0", "50000.01", XOf(1), kWrongValue},
      {"TextNosepieceX_5", "-50000.01", XOf(6), kWrongValue},
      {"TextNosepieceY_0", "50000.01", YOf(1), kWrongValue},
      {"TextNosepieceY_5", "-50000.01", YOf(6), kWrongValue},
      {"TextNosepieceY_0", "1e300", YOf(1), kWrongValue},
      {"TextNosepieceY_0", "nan", YOf(1), kWrongValue},
      {"TextNosepieceX_0", std::string(400, '9'), XOf(1), kWrongValue},
  };
  data.tabOrder = {"optFocusCompensation_1", "optNosepiece_0"};
  for (int row = 0; row < 6; ++row) {
    data.tabOrder.push_back(Numbered("TextNosepieceX", row));
    data.tabOrder.push_back(Numbered("TextNosepieceY", row));
  }
  for (const char* name : {"CheckRealMove", "ButtonUpLarge", "ButtonUpSmall", "ButtonLeftLarge",
                           "ButtonLeftSmall", "ButtonStart", "ButtonRightSmall", "ButtonRightLarge",
                           "ButtonDownSmall", "ButtonDownLarge"}) {
    data.tabOrder.emplace_back(name);
  }
  return data;
}

INSTANTIATE_TEST_SUITE_P(Drives, PageDrill,
                         testing::Values(FocusDrive(), Limits(), Teaching(), XYStage()),
                         PageDrillName);

}  // namespace
}  // namespace mortane::test

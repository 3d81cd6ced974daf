// The drill of the pages of the switches.
#include "gui/support/PageActs.h"
#include "gui/support/PageDrill.h"
#include "gui/switches/SwitchPages.h"
#include "support/Rows.h"
#include "support/ScriptedJoystick.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

std::function<std::string(SwitchPageUnits&)> BodyCode(std::int16_t position) {
  return [=](SwitchPageUnits& k70) { return std::to_string(k70.curSwitch.Func(position)); };
}

std::function<void(SwitchPageUnits&)> PutBodyCode(std::int16_t position, std::int16_t code) {
  return [=](SwitchPageUnits& k70) { k70.curSwitch.Func(position, code); };
}

std::function<std::string(SwitchPageUnits&)> HandCode(std::int16_t position) {
  return [=](SwitchPageUnits& k70) { return std::to_string(k70.curTactor.Func(position)); };
}

std::function<void(SwitchPageUnits&)> PutHandCode(std::int16_t position, std::int16_t code) {
  return [=](SwitchPageUnits& k70) { k70.curTactor.Func(position, code); };
}

AccessibleControl Button(std::string caption) {
  return {QAccessible::Button, std::move(caption)};
}

AccessibleControl ShownIn(std::string name, std::string text) {
  return {QAccessible::EditableText, std::move(name), std::move(text), "read only"};
}

// Boxes about knobs have tests of their own.
std::function<void(PageWindow&)> SelectRow(int row) {
  return [row](PageWindow& rig) {
    rig.prompts.AcceptAnyBox();
    ClickRow(rig.Find<ListBox>("ListView1"), row);
  };
}

PageDrillData Body() {
  PageDrillData data;
  data.name = "Body";
  data.without = {DrillTable::Refused, DrillTable::Enabling};
  data.bench = "Harbour";
  data.make = MakeSwitchSettingCtl;
  data.prepare = SelectRow(5);
  data.controls = {{"Frame1", "K70 Switch Setting"},
                   {"Picture4", "Switch"},
                   {"ListView1", "Switch"},
                   {"textSwFunc", "Function"},
                   {"ComboCWCCW", "Function"},
                   {"ComboFunction", "Function"},
                   {"lstSwFunc", ""},
                   {"cmdDefault", "Default"},
                   {"cmdAllClear", "All Clear"}};
  for (int row = 1; row <= 10; ++row) {
    const int number = row <= 4 ? row : row - 4;
    data.controls.push_back({Numbered("optBtn", row), std::to_string(number)});
  }
  data.shown = {
      {"ListView1", PutBodyCode(6, 41), BodyCode(6), "SW_2\tDIC <-> Brightfield"},
      {"ListView1", PutBodyCode(6, 28), BodyCode(6), "SW_2\tImage Capture "},
      {"textSwFunc", PutBodyCode(6, 35), BodyCode(6), "Optional Observation 1"},
      {"textSwFunc", PutBodyCode(6, 52), BodyCode(6), ""},
      {"ComboFunction", PutBodyCode(6, 4), BodyCode(6), "Z Escape"},
      {"optBtn_6", PutBodyCode(6, 4), BodyCode(6), "on"},
  };
  data.edits = {{"ComboFunction", "Z Escape", BodyCode(6), "4"},
                {"ComboFunction", "Image Capture ", BodyCode(6), "28"},
                {"cmdAllClear", "All Clear", BodyCode(16), "0"}};
  data.accessible = {told::Group("K70 Switch Setting"),
                     told::Label("K70 Switch Setting"),
                     told::Group("Switch"),
                     told::NotChosen("SW_3, DIA Lamp Preset"),
                     told::NotChosen("SW_4, LightPath Change"),
                     told::NotChosen("CW/CCW_3, Filter Cube CW/CCW"),
                     told::NotChosen("CW/CCW_1, DIA Aperture Stop OPEN/CLOSE"),
                     told::NotChosen("SW_1, Z Focus Knob Speed Change"),
                     told::Chosen("SW_2, Shutter OPEN/CLOSE"),
                     told::NotChosen("CW/CCW_2, DIA Field Stop OPEN/CLOSE"),
                     told::NotChosen("CW/CCW_4, Objective CW/CCW"),
                     told::NotChosen("SW_5, Z Focus Knob Speed Change"),
                     told::NotChosen("SW_6, Z Escape"),
                     told::List("Switch", "Switch SW_2, Function Shutter OPEN/CLOSE"),
                     ShownIn("Function", "Shutter OPEN/CLOSE"),
                     told::Combo("Function", "Shutter OPEN/CLOSE"),
                     Button("Default"),
                     Button("All Clear")};
  data.tabOrder = {"optBtn_6", "ListView1", "ComboFunction", "cmdDefault", "cmdAllClear"};
  return data;
}

std::function<void(Bench&)> PutMode(const char* mode) {
  return [=](Bench& bench) { bench.instruments.back().handSwitches[0] = mode; };
}

std::function<void(Bench&)> PutSide(std::int16_t side) {
  return [=](Bench& bench) { bench.instruments.back().xyDrive.handleMode = side; };
}

PageDrillData Tactor() {
  PageDrillData data;
  data.name = "Tactor";
  data.without = {DrillTable::Refused};
  data.bench = "Harbour";
  data.make = MakeTactorSwitchSettingCtl;
  data.prepare = SelectRow(1);
  data.controls = {{"FrameBase", "Tactor Switch Setting"},
                   {"frmSetup", ""},
                   {"TabSwitch", "Setting"},
                   {"frmMode", ""},
                   {"OptMode_0", "Standard"},
                   {"OptMode_1", "Extend"},
                   {"frmHandle", ""},
                   {"optHandle_0", "Right"},
                   {"optHandle_1", "Left"},
                   {"optChg_1", "A"},
                   {"optChg_2", "B"},
                   {"ListView1", "Switch"},
                   {"textSW", "Switch"},
                   {"ComboCWCCW", "Function"},
                   {"ComboFunction", "Function"},
                   {"ComboSWFunc", ""},
                   {"cmdDefault", "Default"},
                   {"cmdAllClear", "All Clear"},
                   {"btnNewFileOpen", ""},
                   {"btnReadFileOpen", ""},
                   {"Command1", ""}};
  for (int row = 1; row <= 6; ++row) {
    const char* const glyphs[] = {"CW/CCW", "L", "R", "1", "2", "3"};
    data.controls.push_back({Numbered("optBtn", row), glyphs[row - 1]});
  }
  data.shown = {
      {"ListView1", PutHandCode(3, 41), HandCode(3), "L (A)\tDIC <-> Brightfield"},
      {"ListView1", PutHandCode(3, 52), HandCode(3), "L (A)\t"},
      {"textSW", PutHandCode(3, 4), HandCode(3), "L (A)"},
      {"OptMode_1", [](SwitchPageUnits& k70) { k70.curTactor.ControlMode = 1; },
       [](SwitchPageUnits& k70) { return std::to_string(k70.curTactor.ControlMode); }, "on"},
      {"optHandle_1", [](SwitchPageUnits& k70) { k70.curTactor.HandleMode = 1; },
       [](SwitchPageUnits& k70) { return std::to_string(k70.curTactor.HandleMode); }, "on"},
  };
  data.edits = {
      {"ComboFunction", "Z Escape", HandCode(3), "4"},
      {"cmdAllClear", "All Clear", HandCode(9), "0"},
      {"OptMode_1", "Extend",
       [](SwitchPageUnits& k70) { return std::to_string(k70.curTactor.ControlMode); }, "1"},
      {"optHandle_1", "Left",
       [](SwitchPageUnits& k70) { return std::to_string(k70.curTactor.HandleMode); }, "1"},
  };
  data.enabling = {{"frmHandle", "Harbour", {}, true},
                   {"frmHandle", "Hub", {}, false},
                   {"frmMode", "Harbour", {}, true},
                   {"frmMode", "Harbour", PutMode("2"), false},
                   {"frmHandle", "Harbour", PutSide(3), false},
                   {"optHandle_0", "Hub", {}, false},
                   {"optBtn_2", "Hub", {}, true}};
  data.accessible = {told::Group("Tactor Switch Setting"),
                     told::Label("Tactor Switch Setting"),
                     told::Tabs("Setting", "Setting"),
                     Button("New File"),
                     Button("Open"),
                     Button("Save"),
                     told::Group("Switch"),
                     told::NotChosen("CW/CCW(A), Objective CW/CCW"),
                     told::Chosen("L (A), Z Focus Knob Speed Change"),
                     told::NotChosen("R (A), XYstage Knob Speed Change"),
                     told::NotChosen("1 (A), Z Escape"),
                     told::NotChosen("2 (A), DIA Lamp ON/OFF"),
                     told::NotChosen("3 (A), DIA Lamp Preset"),
                     told::Group("Mode"),
                     told::Label("Mode"),
                     told::Chosen("Standard"),
                     told::NotChosen("Extend"),
                     told::Group("XY Knob"),
                     told::Label("XY Knob"),
                     told::Chosen("Right"),
                     told::NotChosen("Left"),
                     told::Group("Page"),
                     told::Chosen("A"),
                     told::NotChosen("B"),
                     Button("Default"),
                     Button("All Clear"),
                     told::List("Switch", "Switch L (A), Function Z Focus Knob Speed Change"),
                     ShownIn("Switch", "L (A)"),
                     told::Combo("Function", "Z Focus Knob Speed Change")};
  data.tabOrder = {"TabSwitch",  "btnNewFileOpen", "btnReadFileOpen", "Command1",
                   "optBtn_2",   "OptMode_0",      "optHandle_0",     "optChg_1",
                   "cmdDefault", "cmdAllClear",    "ListView1",       "ComboFunction"};
  return data;
}

// Both must outlive the page.
JoypadSwitchSettingCtl* MakeJoypadSwitchSettingCtl(SwitchPageUnits&) {
  static const TempFolder folder;
  static ScriptedJoystick joystick;
  return new JoypadSwitchSettingCtl(std::make_shared<JoypadSettings>(joystick, folder.Path("")));
}

PageDrillData Joypad() {
  PageDrillData data;
  data.name = "Joypad";
  data.without = {DrillTable::Shown, DrillTable::Edits, DrillTable::Refused, DrillTable::Enabling};
  data.bench = "Harbour";
  data.make = MakeJoypadSwitchSettingCtl;
  data.prepare = SelectRow(0);
  data.controls = {{"Frame1", "Joypad Switch Settings"},
                   {"textSwFunc", "Function"},
                   {"ListView1", "Button"},
                   {"lstSwFunc", "Function"},
                   {"cmdAllClear", "All Clear"}};
  data.accessible = {told::Group("Joypad Switch Settings"),
                     told::Label("Joypad Switch Settings"),
                     ShownIn("Function", ""),
                     told::List("Button", "Button Axis X(<0), Function -----------------"),
                     told::List("Function", "-----------------"),
                     Button("All Clear")};
  data.tabOrder = {"ListView1", "lstSwFunc", "cmdAllClear"};
  return data;
}

INSTANTIATE_TEST_SUITE_P(Switches, PageDrill, testing::Values(Body(), Tactor(), Joypad()),
                         PageDrillName);

}  // namespace
}  // namespace mortane::test

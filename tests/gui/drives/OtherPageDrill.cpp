// The drill for the page of the other controls, on instruments that have one part of it each.
#include "gui/drives/OtherPage.h"
#include "gui/support/PageDrill.h"

namespace mortane::test {
namespace {

template <std::int32_t clsControlOther::*Field>
std::string ValueOf(DrivePageUnits& k70) {
  return std::to_string(k70.COther.*Field);
}

template <std::int32_t clsControlOther::*Field, std::int32_t Value>
void Set(DrivePageUnits& k70) {
  k70.COther.*Field = Value;
}

constexpr auto kAutoZ = &clsControlOther::curAutoZ;
constexpr auto kAutoXY = &clsControlOther::curAutoXY;
constexpr auto kSensitivityXY = &clsControlOther::curSensitivityXY;
constexpr auto kBuzzer = &clsControlOther::curBuzzer;
constexpr auto kSwitch = &clsControlOther::curSwEnable;
constexpr auto kTactor = &clsControlOther::curTactorSwEnable;
constexpr auto kRemoteSwitch = &clsControlOther::curR_TLPOSwEnable;
constexpr auto kRemoteLed = &clsControlOther::curR_TLPOLED;
constexpr auto kFiberSwitch = &clsControlOther::curFiberSwEnable;
constexpr auto kFiberLed = &clsControlOther::curFiberLED;

const std::vector<GivenControl> kControls{
    {"FrameBase", "Other Settings"},
    {"FrameFiberRemote", "Fiber Remote Controler Settings"},
    {"optFiber_Switch_0", "OFF"},
    {"optFiber_Switch_1", "ON ( default )"},
    {"Frame4", "LED Setting"},
    {"optFiber_LED_0", "OFF"},
    {"optFiber_LED_1", "Dark"},
    {"optFiber_LED_2", "Bright ( default )"},
    {"Label2", "LED Setting"},
    {"Label3", "Switch Setting"},
    {"FrameR_TLPORemote", "B-KM-R Remote Controler Settings"},
    {"Frame2", "LED Setting"},
    {"optR_TLPO_LED_0", "OFF"},
    {"optR_TLPO_LED_1", "Dark"},
    {"optR_TLPO_LED_2", "Bright ( default )"},
    {"lblR_TLPOLED", "LED Setting"},
    {"optR_TLPO_Switch_0", "ON ( default )"},
    {"optR_TLPO_Switch_1", "OFF"},
    {"lblRTlpoRemote", "Switch Setting"},
    {"FrameTactorSwich", "Tactor Switch"},
    {"optTactorSwitch_0", "ON ( default )"},
    {"optTactorSwitch_1", "OFF"},
    {"FrameManualHandle", "Knob Setting"},
    {"Frame1", "Stage Knob"},
    {"optXYAuto_0", "Auto"},
    {"optXYAuto_1", "Manual ( default )"},
    {"lblXYStage", "Stage Knob"},
    {"optAuto_0", "Auto"},
    {"optAuto_1", "Manual ( default )"},
    {"CheckStageAuto", "Auto"},
    {"CheckFocusAuto", "Auto"},
    {"Label1", "Select Auto is effective after rotating the nosepiece with interlock mode."},
    {"lblFocusDrive", "Focus Knob"},
    {"FrameSwitch", "K70 Switch"},
    {"optSwitch_0", "ON ( default )"},
    {"optSwitch_1", "OFF"},
    {"FrameBuzzer", "Buzzer"},
    {"optBuzzer_0", "ON ( default )"},
    {"optBuzzer_1", "OFF"},
    {"optBuzzer_2", ""},
};

// What the frames of a page tell a screen reader: caption, rows and options.
using Told = std::vector<AccessibleControl>;

Told Joined(std::initializer_list<Told> parts) {
  Told all{told::Group("Other Settings"), told::Label("Other Settings")};
  for (const Told& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

Told Frame(const char* caption, std::initializer_list<AccessibleControl> controls) {
  Told all{told::Group(caption), told::Label(caption)};
  all.insert(all.end(), controls.begin(), controls.end());
  return all;
}

AccessibleControl Disabled(AccessibleControl option) {
  option.state += ", disabled";
  return option;
}

const AccessibleControl kUnticked{QAccessible::CheckBox, "Auto", "", "unchecked"};
const AccessibleControl kNote =
    told::Label("Select Auto is effective after rotating the nosepiece with interlock mode.");

Told Buzzer() {
  return Frame("Buzzer", {told::Chosen("ON ( default )"), told::NotChosen("OFF"),
                          told::NotChosen("The two controllers differ")});
}

Told Switches(const char* caption) {
  return Frame(caption, {told::Chosen("ON ( default )"), told::NotChosen("OFF")});
}

// A body of version 1.31 with a hand controller: its knobs can only be shown.
PageDrillData NewBody() {
  PageDrillData data;
  data.name = "NewBody";
  data.without = {DrillTable::Refused};
  data.bench = "Harbour";
  data.make = MakeControlOtherCtl;
  data.controls = kControls;
  data.shown = {
      {"optAuto_0", Set<kAutoZ, 1>, ValueOf<kAutoZ>, "on"},
      {"optAuto_1", Set<kAutoZ, 0>, ValueOf<kAutoZ>, "on"},
      {"optAuto_1", Set<kAutoZ, -1>, ValueOf<kAutoZ>, "off"},
      {"optXYAuto_0", Set<kAutoXY, 1>, ValueOf<kAutoXY>, "on"},
      {"optXYAuto_1", Set<kAutoXY, -1>, ValueOf<kAutoXY>, "off"},
      {"ComboStage", Set<kSensitivityXY, 1>, ValueOf<kSensitivityXY>, "Coarse"},
      {"ComboStage", Set<kSensitivityXY, 2>, ValueOf<kSensitivityXY>, "Medium"},
      {"ComboStage", Set<kSensitivityXY, 3>, ValueOf<kSensitivityXY>, "Fine"},
      {"ComboStage", Set<kSensitivityXY, 0>, ValueOf<kSensitivityXY>, ""},
      {"optBuzzer_0", Set<kBuzzer, 0>, ValueOf<kBuzzer>, "on"},
      {"optBuzzer_1", Set<kBuzzer, 1>, ValueOf<kBuzzer>, "on"},
      {"optBuzzer_2", Set<kBuzzer, 2>, ValueOf<kBuzzer>, "on"},
      {"optSwitch_0", Set<kSwitch, 1>, ValueOf<kSwitch>, "on"},
      {"optSwitch_1", Set<kSwitch, 0>, ValueOf<kSwitch>, "on"},
      {"optTactorSwitch_0", Set<kTactor, 1>, ValueOf<kTactor>, "on"},
      {"optTactorSwitch_1", Set<kTactor, 0>, ValueOf<kTactor>, "on"},
  };
  data.edits = {
      {"ComboStage", "Medium", ValueOf<kSensitivityXY>, "2"},
      {"ComboStage", "Fine", ValueOf<kSensitivityXY>, "3"},
      {"optBuzzer_1", "OFF", ValueOf<kBuzzer>, "1"},
      {"optBuzzer_2", "", ValueOf<kBuzzer>, "2"},
      {"optSwitch_1", "OFF", ValueOf<kSwitch>, "0"},
      {"optTactorSwitch_1", "OFF", ValueOf<kTactor>, "0"},
  };
  const auto older = [](Bench& bench) { bench.instruments.back().Unit(1).version = "V1.29"; };
  data.enabling = {
      {"optAuto_0", "Harbour", {}, false},   {"optAuto_1", "Harbour", {}, false},
      {"optXYAuto_0", "Harbour", {}, false}, {"optXYAuto_1", "Harbour", {}, false},
      {"optAuto_0", "Harbour", older, true}, {"optXYAuto_1", "Harbour", older, true},
      {"ComboStage", "Harbour", {}, true},   {"CheckStageAuto", "Harbour", {}, true},
      {"optBuzzer_0", "Harbour", {}, true},  {"optSwitch_0", "Harbour", {}, true},
  };
  data.tabOrder = {"CheckStageAuto", "ComboStage", "optBuzzer_0", "optSwitch_0",
                   "optTactorSwitch_0"};
  data.loadBox = "Data_Load Error";
  data.accessible =
      Joined({Frame("Knob Setting", {told::Group("Focus Knob"), told::Label("Focus Knob"),
                                     Disabled(told::NotChosen("Focus Knob Auto")),
                                     Disabled(told::Chosen("Focus Knob Manual ( default )")),
                                     told::Group("Stage Knob"), told::Label("Stage Knob"),
                                     Disabled(told::NotChosen("Stage Knob Auto")),
                                     Disabled(told::Chosen("Stage Knob Manual ( default )")),
                                     kUnticked, told::Combo("Stage Knob", "Coarse"), kNote}),
              Buzzer(), Switches("K70 Switch"), Switches("Tactor Switch")});
  return data;
}

// The simulated microscope, whose knobs can be changed, with a fiber illuminator that answers.
PageDrillData FiberIlluminator() {
  PageDrillData data;
  data.name = "FiberIlluminator";
  data.without = {DrillTable::Refused};
  data.bench = "Quay";
  data.make = [](DrivePageUnits& k70) -> Page* {
    k70.COther.curFiberStatus = true;
    k70.COther.curFiberSwEnable = 1;
    k70.COther.curFiberLED = 2;
    return MakeControlOtherCtl(k70);
  };
  data.controls = kControls;
  data.shown = {
      {"optFiber_Switch_0", Set<kFiberSwitch, 0>, ValueOf<kFiberSwitch>, "on"},
      {"optFiber_Switch_1", Set<kFiberSwitch, 1>, ValueOf<kFiberSwitch>, "on"},
      {"optFiber_LED_0", Set<kFiberLed, 0>, ValueOf<kFiberLed>, "on"},
      {"optFiber_LED_1", Set<kFiberLed, 1>, ValueOf<kFiberLed>, "on"},
      {"optFiber_LED_2", Set<kFiberLed, 2>, ValueOf<kFiberLed>, "on"},
  };
  data.edits = {
      {"optAuto_1", "Manual ( default )", ValueOf<kAutoZ>, "0"},
      {"optXYAuto_0", "Auto", ValueOf<kAutoXY>, "1"},
      {"CheckStageAuto", "Auto", ValueOf<kAutoXY>, "1"},
      {"optFiber_Switch_0", "OFF", ValueOf<kFiberSwitch>, "0"},
      {"optFiber_LED_0", "OFF", ValueOf<kFiberLed>, "0"},
      {"optFiber_LED_1", "Dark", ValueOf<kFiberLed>, "1"},
  };
  data.enabling = {
      {"optAuto_0", "Quay", {}, true},
      {"optXYAuto_1", "Quay", {}, true},
      {"optFiber_LED_0", "Quay", {}, true},
  };
  data.tabOrder = {"optAuto_0",      "optXYAuto_1",       "CheckStageAuto", "ComboStage",
                   "optFiber_LED_2", "optFiber_Switch_1", "optBuzzer_0",    "optSwitch_0"};
  data.loadBox = "Data_Load Error";
  data.accessible = Joined(
      {Frame("Knob Setting",
             {told::Group("Focus Knob"), told::Label("Focus Knob"), told::Chosen("Focus Knob Auto"),
              told::NotChosen("Focus Knob Manual ( default )"), told::Group("Stage Knob"),
              told::Label("Stage Knob"), told::NotChosen("Stage Knob Auto"),
              told::Chosen("Stage Knob Manual ( default )"), kUnticked,
              told::Combo("Stage Knob", "Fine"), kNote}),
       Frame("Fiber Remote Controler Settings",
             {told::Group("LED Setting"), told::Label("LED Setting"), told::NotChosen("OFF"),
              told::NotChosen("Dark"), told::Chosen("Bright ( default )"),
              told::Group("Switch Setting"), told::Label("Switch Setting"), told::NotChosen("OFF"),
              told::Chosen("ON ( default )")}),
       Buzzer(), Switches("K70 Switch")});
  return data;
}

PageDrillData Remote() {
  PageDrillData data;
  data.name = "Remote";
  data.without = {DrillTable::Refused};
  data.bench = "DeckRemote";
  data.make = MakeControlOtherCtl;
  data.controls = kControls;
  data.shown = {
      {"optR_TLPO_LED_0", Set<kRemoteLed, 0>, ValueOf<kRemoteLed>, "on"},
      {"optR_TLPO_LED_1", Set<kRemoteLed, 1>, ValueOf<kRemoteLed>, "on"},
      {"optR_TLPO_LED_2", Set<kRemoteLed, 2>, ValueOf<kRemoteLed>, "on"},
      {"optR_TLPO_LED_0", Set<kRemoteLed, 3>, ValueOf<kRemoteLed>, "on"},
      {"optR_TLPO_LED_0", Set<kRemoteLed, -1>, ValueOf<kRemoteLed>, "on"},
      {"optR_TLPO_Switch_0", Set<kRemoteSwitch, 1>, ValueOf<kRemoteSwitch>, "on"},
      {"optR_TLPO_Switch_1", Set<kRemoteSwitch, 0>, ValueOf<kRemoteSwitch>, "on"},
  };
  data.edits = {
      {"optR_TLPO_LED_0", "OFF", ValueOf<kRemoteLed>, "0"},
      {"optR_TLPO_LED_1", "Dark", ValueOf<kRemoteLed>, "1"},
      {"optR_TLPO_Switch_1", "OFF", ValueOf<kRemoteSwitch>, "0"},
      {"optBuzzer_1", "OFF", ValueOf<kBuzzer>, "1"},
  };
  data.enabling = {{"optR_TLPO_LED_0", "DeckRemote", {}, true}};
  data.tabOrder = {"optR_TLPO_LED_2", "optR_TLPO_Switch_0", "optBuzzer_0"};
  data.accessible =
      Joined({Frame("B-KM-R Remote Controler Settings",
                    {told::Group("LED Setting"), told::Label("LED Setting"), told::NotChosen("OFF"),
                     told::NotChosen("Dark"), told::Chosen("Bright ( default )"),
                     told::Group("Switch Setting"), told::Label("Switch Setting"),
                     told::Chosen("ON ( default )"), told::NotChosen("OFF")}),
              Buzzer()});
  return data;
}

INSTANTIATE_TEST_SUITE_P(OtherPage, PageDrill,
                         testing::Values(NewBody(), FiberIlluminator(), Remote()), PageDrillName);

}  // namespace
}  // namespace mortane::test

// The drill of the switch units.
#include "support/UnitDrill.h"
#include "switches/SwitchUnits.h"

namespace mortane::test {
namespace {

UnitDrillData Body() {
  UnitDrillData data;
  data.name = "Switch";
  data.bench = "Harbour";
  data.unit = OperationsOf(&SwitchUnits::curSwitch);
  data.edits = {
      {"no function at the first position",
       [](SwitchUnits& units) { units.curSwitch.Func(1, 0); },
       "Switch Function[1] -----------------",
       {R"(ControllerSettings.SetSwitchFunction(0, "1", "0"))"}},
      {"a function that reports name otherwise",
       [](SwitchUnits& units) { units.curSwitch.Func(3, 3); },
       "Switch Function[3] Z Escape",
       {R"(ControllerSettings.SetSwitchFunction(0, "3", "3"))"}},
      {"a position without a control",
       [](SwitchUnits& units) { units.curSwitch.Func(8, 28); },
       "Switch Function[8] Image Capture ",
       {R"(ControllerSettings.SetSwitchFunction(0, "8", "S"))"}},
      {"the first position that is a letter",
       [](SwitchUnits& units) { units.curSwitch.Func(10, 51); },
       "Switch Function[A] Option 6 <-> Brightfield",
       {R"(ControllerSettings.SetSwitchFunction(0, "A", "p"))"}},
      {"the last position",
       [](SwitchUnits& units) { units.curSwitch.Func(16, 36); },
       "Switch Function[G] Optional Observation 2",
       {R"(ControllerSettings.SetSwitchFunction(0, "G", "a"))"}},
  };
  data.readFailure = data.modifyFailure = "Switch Function (";
  data.writeFailures = {"Switch Function["};
  data.refused = {
      {R"(<SWITCH POSITION="0" FUNCTION="1"/>)", "Tactor[0]"},
      {R"(<SWITCH POSITION="-1" FUNCTION="1"/>)", "Tactor[-1]"},
      {R"(<SWITCH POSITION="18" FUNCTION="1"/>)", "Tactor[18]"},
      {R"(<SWITCH POSITION="65537" FUNCTION="1"/>)", "Tactor[65537]"},
      {R"(<SWITCH POSITION="x" FUNCTION="1"/>)", "Tactor[0]"},
      {R"(<SWITCH POSITION="2" FUNCTION="52"/>)", "Tactor[2]"},
      {R"(<SWITCH POSITION="17" FUNCTION="52"/>)", "Tactor[17]"},
      {R"(<SWITCH POSITION="2" FUNCTION="-1"/>)", "Tactor[2]"},
      {R"(<SWITCH POSITION="2" FUNCTION="65539"/>)", "Tactor[2]"},
      {R"(<SWITCH FUNCTION="1"/>)", "Tactor[-1]"},
      {R"(<SWITCH POSITION="2"/>)", "Tactor[2]"},
      {"<SWITCH/>", "Tactor[-1]"},
  };
  return data;
}

UnitDrillData Tactor() {
  UnitDrillData data;
  data.name = "Tactor";
  data.bench = "Harbour";
  data.unit = OperationsOf(&SwitchUnits::curTactor);
  data.edits = {
      {"the mode",
       [](SwitchUnits& units) { units.curTactor.ControlMode = 1; },
       "TactorSwitch Function[Mode] : Extend",
       {R"(ControllerSettings.SetSwitchFunction(4, "0", "1"))"}},
      {"the knob's side",
       [](SwitchUnits& units) { units.curTactor.HandleMode = 1; },
       "TactorSwitch Function[XY Knob] : Left",
       {"XYDriveDevice.HandleMode = int16(1)"}},
      {"no function at the first position",
       [](SwitchUnits& units) { units.curTactor.Func(1, 0); },
       "TactorSwitch Function[1] -----------------",
       {R"(ControllerSettings.SetSwitchFunction(4, "1", "0"))"}},
      {"a function that reports name otherwise",
       [](SwitchUnits& units) { units.curTactor.Func(2, 4); },
       "TactorSwitch Function[2] Z Focus Knob Speed Change",
       {R"(ControllerSettings.SetSwitchFunction(4, "2", "4"))"}},
      {"the first position that is a letter",
       [](SwitchUnits& units) { units.curTactor.Func(10, 51); },
       "TactorSwitch Function[10] Option 6 <-> Brightfield",
       {R"(ControllerSettings.SetSwitchFunction(4, "A", "p"))"}},
      {"a code without a function at the last position",
       [](SwitchUnits& units) { units.curTactor.Func(14, 52); },
       "TactorSwitch Function[14] Nothing",
       {R"(ControllerSettings.SetSwitchFunction(4, "E", "q"))"}},
  };
  data.undoKept = [](SwitchUnits& units) {
    units.curTactor.ControlMode = 0;
    units.curTactor.HandleMode = 0;
  };
  data.readFailure = data.modifyFailure = "TactorController SW Function (";
  data.writeFailures = {"TactorSwitch Control Mode[1]", "TactorSwitch Handle Mode[1]",
                        "TactorSwitch Function["};
  data.refused = {
      {R"(<SWITCH><SWITCH POSITION="0" FUNCTION="1"/></SWITCH>)", "Tactor[0]"},
      {R"(<SWITCH><SWITCH POSITION="-1" FUNCTION="1"/></SWITCH>)", "Tactor[-1]"},
      {R"(<SWITCH><SWITCH POSITION="15" FUNCTION="1"/></SWITCH>)", "Tactor[15]"},
      {R"(<SWITCH><SWITCH POSITION="65537" FUNCTION="1"/></SWITCH>)", "Tactor[65537]"},
      {R"(<SWITCH><SWITCH POSITION="x" FUNCTION="1"/></SWITCH>)", "Tactor[0]"},
      {R"(<SWITCH><SWITCH POSITION="2" FUNCTION="53"/></SWITCH>)", "Tactor[2]"},
      {R"(<SWITCH><SWITCH POSITION="2" FUNCTION="-1"/></SWITCH>)", "Tactor[2]"},
      {R"(<SWITCH><SWITCH POSITION="2" FUNCTION="65539"/></SWITCH>)", "Tactor[2]"},
      {R"(<SWITCH><SWITCH FUNCTION="1"/></SWITCH>)", "Tactor[-1]"},
      {R"(<SWITCH><SWITCH POSITION="2"/></SWITCH>)", "Tactor[2]"},
      {R"(<SWITCH><SETTING MODE="2"/></SWITCH>)", "Tactor[ Mode ]"},
      {R"(<SWITCH><SETTING MODE="-1"/></SWITCH>)", "Tactor[ Mode ]"},
      {R"(<SWITCH><SETTING MODE="65536"/></SWITCH>)", "Tactor[ Mode ]"},
      {R"(<SWITCH><SETTING HANDLE="2"/></SWITCH>)", "Tactor[ Handle ]"},
      {R"(<SWITCH><SETTING HANDLE="65537"/></SWITCH>)", "Tactor[ Handle ]"},
  };
  return data;
}

INSTANTIATE_TEST_SUITE_P(Switches, UnitDrill, testing::Values(Body(), Tactor()), DrillName);

}  // namespace
}  // namespace mortane::test

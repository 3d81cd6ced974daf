// The pages of the switches over the units of a model.
#pragma once

#include <string>

#include "hub/clsK70.h"
#include "support/ScriptedJoystick.h"
#include "switches/JoypadSwitchSettingCtl.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"

namespace mortane::test {

inline KnobModes KnobsOf(clsK70& k70) {
  return {k70.COther.curAutoZ, k70.COther.curAutoXY};
}

inline SwitchSettingCtl* MakeSwitchSettingCtl(clsK70& k70) {
  return new SwitchSettingCtl(k70.curSwitch, k70.curTactor, KnobsOf(k70));
}

inline TactorSwitchSettingCtl* MakeTactorSwitchSettingCtl(clsK70& k70) {
  return new TactorSwitchSettingCtl(
      k70.curTactor, k70.curSwitch, KnobsOf(k70),
      {[&k70] { return k70.CXYDrive.IsEnable(); },
       [&k70](const std::string& path) { k70.Tactor_ReadXML(path); },
       [&k70](const std::string& path) { k70.Tactor_WriteXML(path); }});
}

}  // namespace mortane::test

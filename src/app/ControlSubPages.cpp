#include "app/ControlSubPages.h"

#include "app/CommandBoundary.h"
#include "app/FormServices.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlOtherCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "hub/clsK70.h"
#include "switches/JoypadSwitchSettingCtl.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"

namespace mortane {
namespace {

// What the pages of the drives and switches have to do with other areas.

ControlFocusDriveCtl* MakeFocusDrive(clsK70& k70) {
  return new ControlFocusDriveCtl(k70.CZDrive, [&k70](std::int32_t state) {
    k70.ILOther.Status(accessory::kZFocusDrive, state);
  });
}

KnobModes KnobsOf(clsK70& k70) {
  return {k70.COther.curAutoZ, k70.COther.curAutoXY};
}

TactorSwitchSettingCtl* MakeTactor(clsK70& k70, Prompts& prompts) {
  TactorProgram program;
  program.hasStage = [&k70] { return k70.CXYDrive.IsEnable(); };
  program.readFile = [&k70, &prompts](const std::string& path) {
    RunStep(prompts, [&] { k70.Tactor_ReadXML(path); });
  };
  program.writeFile = [&k70, &prompts](const std::string& path) {
    RunStep(prompts, [&] { k70.Tactor_WriteXML(path); });
  };
  return new TactorSwitchSettingCtl(k70.curTactor, k70.curSwitch, KnobsOf(k70), std::move(program));
}

template <typename DrivePage>
ControlSubPage WithPosition(DrivePage* page) {
  return {page, [page] { page->SetNosePosition(); }};
}

}  // namespace

ControlSubPages MakeControlSubPages(const FormServices& services) {
  clsK70& k70 = services.k70;
  return {{
      WithPosition(MakeFocusDrive(k70)),
      WithPosition(new ControlXYStageCtl(k70.CXYDrive)),
      {new ControlOtherCtl(k70.COther)},
      {new SwitchSettingCtl(k70.curSwitch, k70.curTactor, KnobsOf(k70))},
      {MakeTactor(k70, services.prompts)},
      {new JoypadSwitchSettingCtl(services.joystick, services.applicationData)},
  }};
}

}  // namespace mortane

#include "app/ControlSubPages.h"

#include "app/FormServices.h"
#include "app/MakePages.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlOtherCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "switches/JoypadSwitchSettingCtl.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"

namespace mortane {
namespace {

template <typename DrivePage>
ControlSubPage WithPosition(DrivePage* page) {
  return {page, [page] { page->SetNosePosition(); }};
}

}  // namespace

ControlSubPages MakeControlSubPages(const FormServices& services) {
  clsK70& k70 = services.k70;
  return {{
      WithPosition(MakeFocusDrive(k70)),
      WithPosition(MakeXYStage(k70)),
      {MakeOther(k70)},
      {.plan = {.make = [&k70] { return MakeBodySwitches(k70); }, .load = ChangesNothing}},
      {.plan = {.make = [&k70,
                         &prompts = services.prompts] { return MakeTactorSwitches(k70, prompts); },
                .load = ChangesNothing}},
      {new JoypadSwitchSettingCtl(services.joystick, services.applicationData)},
  }};
}

}  // namespace mortane

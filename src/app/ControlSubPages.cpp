#include "app/ControlSubPages.h"

#include <memory>

#include "app/FormServices.h"
#include "app/MakePages.h"
#include "switches/JoypadSettings.h"
#include "switches/JoypadSwitchSettingCtl.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"

namespace mortane {
namespace {

ControlSubPage WithPosition(LateDrive drive) {
  return {nullptr, std::move(drive.SetNosePosition), std::move(drive.plan)};
}

}  // namespace

ControlSubPages MakeControlSubPages(const FormServices& services) {
  clsK70& k70 = services.k70;
  // Read now, and saved at the end, also where the page is never made.
  const auto joypad = std::make_shared<JoypadSettings>(services.joystick, services.applicationData);
  return {{
      WithPosition(PlanFocusDrive(k70)),
      WithPosition(PlanXYStage(k70)),
      {.plan = PlanOther(k70)},
      {.plan = {.make = [&k70] { return MakeBodySwitches(k70); }, .load = ChangesNothing}},
      {.plan = {.make = [&k70,
                         &prompts = services.prompts] { return MakeTactorSwitches(k70, prompts); },
                .load = ChangesNothing}},
      {.plan = {.make = [joypad] { return new JoypadSwitchSettingCtl(joypad); },
                .load = ChangesNothing}},
  }};
}

}  // namespace mortane

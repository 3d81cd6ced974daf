// The pages over the program's model, as both windows show them.
#pragma once

#include <functional>

#include "widgets/LatePage.h"

class QWidget;

namespace mortane {

class CondenserSettingsCtl;
class ControlFocusDriveCtl;
class ControlOtherCtl;
class ControlXYStageCtl;
class FilterQubeSettingsCtl;
class InterlockSettingsCtl;
class ObjectiveSettingsCtl;
class Prompts;
class SwitchSettingCtl;
class SystemSettingsCtl;
class TactorSwitchSettingCtl;
class clsK70;

// The parent owns the page.
SystemSettingsCtl* MakeSystemSettings(clsK70& k70, QWidget* parent);
ObjectiveSettingsCtl* MakeObjectiveSettings(clsK70& k70, QWidget* parent);
FilterQubeSettingsCtl* MakeFilterQubeSettings(clsK70& k70, QWidget* parent);
CondenserSettingsCtl* MakeCondenserSettings(clsK70& k70, QWidget* parent);
InterlockSettingsCtl* MakeInterlockSettings(clsK70& k70, QWidget* parent);

// Sub-pages without a parent: the caller hands each to the page that names and owns it.
ControlFocusDriveCtl* MakeFocusDrive(clsK70& k70);
ControlXYStageCtl* MakeXYStage(clsK70& k70);
ControlOtherCtl* MakeOther(clsK70& k70);

// Sub-pages that are made when they are first shown.
struct LateDrive {
  LatePlan plan;
  // Of the page, or of what its loading keeps until it is made.
  std::function<void()> SetNosePosition;
};
LateDrive PlanFocusDrive(clsK70& k70);
LateDrive PlanXYStage(clsK70& k70);
LatePlan PlanOther(clsK70& k70);
SwitchSettingCtl* MakeBodySwitches(clsK70& k70);
TactorSwitchSettingCtl* MakeTactorSwitches(clsK70& k70, Prompts& prompts);

}  // namespace mortane

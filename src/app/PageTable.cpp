#include "app/PageTable.h"

#include <QFrame>

#include "app/ControlSettingsCtl.h"
#include "app/ControlSubPages.h"
#include "app/MakePages.h"
#include "app/MortaneMainForm.h"
#include "app/SystemSettingsCtl.h"
#include "condensers/CondenserSettingsCtl.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "hub/clsK70.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "widgets/Named.h"

namespace mortane {
namespace {

bool IsFitted(const clsK70& k70, std::int32_t accessory) {
  return k70.IsMounted(accessory) != kNotMounted;
}

template <auto Make, auto Member>
Page* MakeAs(MortaneMainForm& form, const FormServices& services) {
  return form.*Member = Make(services.k70, form.FrameControl);
}

}  // namespace

PageTable MainPages() {
  return {{
      {"System", IconName::System,
       MakeAs<MakeSystemSettings, &MortaneMainForm::SystemSettingsCtl1>},
      {"Objectives", IconName::Objective,
       MakeAs<MakeObjectiveSettings, &MortaneMainForm::ObjectiveSettingsCtl1>,
       [](const clsK70& k70) { return IsFitted(k70, accessory::kNosepiece); },
       "No nosepiece is mounted."},
      {"Filter Cubes", IconName::Cube,
       MakeAs<MakeFilterQubeSettings, &MortaneMainForm::FilterQubeSettingsCtl1>,
       [](const clsK70& k70) { return IsFitted(k70, accessory::kFilterCube); },
       "No filter cube turret is mounted."},
      {"Condensers", IconName::Condenser,
       MakeAs<MakeCondenserSettings, &MortaneMainForm::CondenserSettingsCtl1>,
       [](const clsK70& k70) { return k70.Controller(0) && IsFitted(k70, accessory::kCondenser); },
       "No condenser is mounted, or the body of the microscope is not connected."},
      {"Interlocks", IconName::Interlock,
       MakeAs<MakeInterlockSettings, &MortaneMainForm::InterlockSettingsCtl1>,
       [](const clsK70& k70) {
         return k70.ILObservation.IsEnable() || k70.ILOther.IsEnable() || k70.ILOffset.IsEnable();
       },
       "Nothing is mounted that follows another accessory or is compensated."},
      {"Controls", IconName::Control,
       [](MortaneMainForm& form, const FormServices& services) -> Page* {
         return form.ControlSettingsCtl1 =
                    Named(new ControlSettingsCtl(services, MakeControlSubPages(services),
                                                 form.FrameControl),
                          "ControlSettingsCtl1");
       },
       [](const clsK70& k70) {
         return k70.CZDrive.IsEnable() || k70.CXYDrive.IsEnable() || k70.COther.IsEnable();
       },
       "No drive or other control can be set."},
  }};
}

}  // namespace mortane

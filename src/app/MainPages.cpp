#include "app/MainPages.h"

#include <QFrame>

#include "app/ControlSettingsCtl.h"
#include "app/ControlSubPages.h"
#include "app/MakePages.h"
#include "app/MortaneMainForm.h"
#include "app/SystemSettingsCtl.h"
#include "condensers/CondenserSettingsCtl.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "hub/clsK70.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "objectives/ObjectiveSettingsCtl.h"

namespace mortane {

using namespace Qt::StringLiterals;
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
      {u"System"_s, IconName::System, u"system"_s,
       MakeAs<MakeSystemSettings, &MortaneMainForm::SystemSettingsCtl1>},
      {u"Objectives"_s, IconName::Objective, u"objectives"_s,
       MakeAs<MakeObjectiveSettings, &MortaneMainForm::ObjectiveSettingsCtl1>,
       [](const clsK70& k70) { return IsFitted(k70, accessory::kNosepiece); },
       u"No nosepiece is mounted."_s},
      {u"Filter Cubes"_s, IconName::Cube, u"filter-cubes"_s,
       MakeAs<MakeFilterQubeSettings, &MortaneMainForm::FilterQubeSettingsCtl1>,
       [](const clsK70& k70) { return IsFitted(k70, accessory::kFilterCube); },
       u"No filter cube turret is mounted."_s},
      {u"Condensers"_s, IconName::Condenser, u"condensers"_s,
       MakeAs<MakeCondenserSettings, &MortaneMainForm::CondenserSettingsCtl1>,
       [](const clsK70& k70) { return k70.Controller(0) && IsFitted(k70, accessory::kCondenser); },
       u"No condenser is mounted, or the body of the microscope is not connected."_s},
      {u"Interlocks"_s, IconName::Interlock, u"interlocks"_s,
       MakeAs<MakeInterlockSettings, &MortaneMainForm::InterlockSettingsCtl1>,
       [](const clsK70& k70) { return k70.IsInterlockEnable(); },
       u"Nothing is mounted that follows another accessory or is compensated."_s},
      {u"Controls"_s, IconName::Control, u"controls"_s,
       [](MortaneMainForm& form, const FormServices& services) -> Page* {
         return form.ControlSettingsCtl1 = new ControlSettingsCtl(
                    services, MakeControlSubPages(services), form.FrameControl);
       },
       [](const clsK70& k70) {
         return k70.CZDrive.IsEnable() || k70.CXYDrive.IsEnable() || k70.COther.IsEnable();
       },
       u"No drive or other control can be set."_s},
  }};
}

}  // namespace mortane

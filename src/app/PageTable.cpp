#include "app/PageTable.h"

#include <QFrame>

#include "app/MortaneMainForm.h"
#include "app/SystemSettingsCtl.h"
#include "condensers/CondenserSettingsCtl.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "hub/clsK70.h"
#include "objectives/ObjectiveSettingsCtl.h"

namespace mortane {
namespace {

// A page is a member of the window and bears its name.
template <typename Ctl>
PageEntry MakePage(MortaneMainForm& form, Ctl*& member, const char* name) {
  member = new Ctl(form.FrameControl);
  member->setObjectName(QLatin1String(name));
  return MakeEntry(*member);
}

}  // namespace

PageTable MainPages() {
  return {{
      {"System", IconName::System,
       [](MortaneMainForm& form) {
         return MakePage(form, form.SystemSettingsCtl1, "SystemSettingsCtl1");
       },
       [](const clsK70&) { return true; }},
      {"Objectives", IconName::Objective,
       [](MortaneMainForm& form) {
         return MakePage(form, form.ObjectiveSettingsCtl1, "ObjectiveSettingsCtl1");
       },
       [](const clsK70& k70) { return k70.IsMounted(accessory::kNosepiece) != kNotMounted; }},
      {"Filter Cubes", IconName::Cube,
       [](MortaneMainForm& form) {
         return MakePage(form, form.FilterQubeSettingsCtl1, "FilterQubeSettingsCtl1");
       },
       [](const clsK70& k70) { return k70.IsMounted(accessory::kFilterCube) != kNotMounted; }},
      {"Condensers", IconName::Condenser,
       [](MortaneMainForm& form) {
         return MakePage(form, form.CondenserSettingsCtl1, "CondenserSettingsCtl1");
       },
       [](const clsK70& k70) {
         return k70.Controller(0) && k70.IsMounted(accessory::kCondenser) != kNotMounted;
       }},
      {"Interlocks", IconName::Interlock},
      {"Controls", IconName::Control},
  }};
}

}  // namespace mortane

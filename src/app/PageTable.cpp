#include "app/PageTable.h"

#include <QFrame>

#include "app/MortaneMainForm.h"
#include "app/SystemSettingsCtl.h"

namespace mortane {

PageTable MainPages() {
  return {{
      {"System", IconName::System,
       [](MortaneMainForm& form) {
         form.SystemSettingsCtl1 = new SystemSettingsCtl(form.FrameControl);
         form.SystemSettingsCtl1->setObjectName("SystemSettingsCtl1");
         return MakeEntry(*form.SystemSettingsCtl1);
       },
       [](const clsK70&) { return true; }},
      {"Objectives", IconName::Objective},
      {"Filter Cubes", IconName::Cube},
      {"Condensers", IconName::Condenser},
      {"Interlocks", IconName::Interlock},
      {"Controls", IconName::Control},
  }};
}

}  // namespace mortane

#include "app/PageTable.h"

#include <QFrame>

#include "app/ControlSettingsCtl.h"
#include "app/ControlSubPages.h"
#include "app/MortaneMainForm.h"
#include "app/SystemSettingsCtl.h"
#include "condensers/CondenserSettingsCtl.h"
#include "filters/FilterItemLists.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "hub/clsK70.h"
#include "interlocks/InterlockOtherCtl.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "widgets/Named.h"

namespace mortane {
namespace {

bool IsFitted(const clsK70& k70, std::int32_t accessory) {
  return k70.IsMounted(accessory) != kNotMounted;
}

}  // namespace

PageTable MainPages() {
  return {{
      {"System", IconName::System,
       [](MortaneMainForm& form, const FormServices& services) -> Page* {
         clsK70& k70 = services.k70;
         return form.SystemSettingsCtl1 =
                    Named(new SystemSettingsCtl(k70, form.FrameControl), "SystemSettingsCtl1");
       }},
      {"Objectives", IconName::Objective,
       [](MortaneMainForm& form, const FormServices& services) -> Page* {
         clsK70& k70 = services.k70;
         return form.ObjectiveSettingsCtl1 =
                    Named(new ObjectiveSettingsCtl(k70.curNosepiece, k70.DbNosepiece, k70.curLimit,
                                                   form.FrameControl),
                          "ObjectiveSettingsCtl1");
       },
       [](const clsK70& k70) { return IsFitted(k70, accessory::kNosepiece); },
       "No nosepiece is mounted."},
      {"Filter Cubes", IconName::Cube,
       [](MortaneMainForm& form, const FormServices& services) -> Page* {
         clsK70& k70 = services.k70;
         const FilterItemLists items{k70.Exciter, k70.Dichroic, k70.Barrier};
         return form.FilterQubeSettingsCtl1 =
                    Named(new FilterQubeSettingsCtl(k70.curFilter, k70.dbFilter, items,
                                                    form.FrameControl),
                          "FilterQubeSettingsCtl1");
       },
       [](const clsK70& k70) { return IsFitted(k70, accessory::kFilterCube); },
       "No filter cube turret is mounted."},
      {"Condensers", IconName::Condenser,
       [](MortaneMainForm& form, const FormServices& services) -> Page* {
         clsK70& k70 = services.k70;
         return form.CondenserSettingsCtl1 =
                    Named(new CondenserSettingsCtl(k70.curCondenser, k70.dbcon, form.FrameControl),
                          "CondenserSettingsCtl1");
       },
       [](const clsK70& k70) { return k70.Controller(0) && IsFitted(k70, accessory::kCondenser); },
       "No condenser is mounted, or the body of the microscope is not connected."},
      {"Interlocks", IconName::Interlock,
       [](MortaneMainForm& form, const FormServices& services) -> Page* {
         clsK70& k70 = services.k70;
         const InterlockSettingsCtl::Units units{k70.ILObservation, k70.ILOther, k70.ILOffset};
         const FocusCompensations compensations{k70.CZDrive.curFocusCompensation,
                                                k70.CXYDrive.curFocusCompensation};
         return form.InterlockSettingsCtl1 =
                    Named(new InterlockSettingsCtl(units, compensations, form.FrameControl),
                          "InterlockSettingsCtl1");
       },
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

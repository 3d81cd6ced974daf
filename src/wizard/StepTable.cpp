#include "wizard/StepTable.h"

#include <QFrame>
#include <algorithm>

#include "app/SystemSettingsCtl.h"
#include "condensers/CondenserSettingsCtl.h"
#include "filters/FilterItemLists.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "hub/clsK70.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "widgets/Named.h"
#include "wizard/SadrelEndingCtl.h"
#include "wizard/SadrelMainForm.h"
#include "wizard/SelSetupItemCtl.h"

namespace mortane {
namespace {

// Before the first selection the first tab counts.
int CurrentTab(Page& page) {
  return std::max(static_cast<ContainerPage&>(page).CurrentItem(), 0);
}

Page* MakeItems(SadrelMainForm& form, clsK70& k70) {
  auto* page = Named(new SelSetupItemCtl(k70, form.FrameControl), "SelSetupItemCtl1");
  QObject::connect(page, &SelSetupItemCtl::ItemChanged, &form, &SadrelMainForm::OnItemChanged);
  return form.SelSetupItemCtl1 = page;
}

Page* MakeObjectives(SadrelMainForm& form, clsK70& k70) {
  return form.ObjectiveSettingsCtl1 =
             Named(new ObjectiveSettingsCtl(k70.curNosepiece, k70.DbNosepiece, k70.curLimit,
                                            form.FrameControl),
                   "ObjectiveSettingsCtl1");
}

Page* MakeCubes(SadrelMainForm& form, clsK70& k70) {
  const FilterItemLists items{k70.Exciter, k70.Dichroic, k70.Barrier};
  return form.FilterQubeSettingsCtl1 =
             Named(new FilterQubeSettingsCtl(k70.curFilter, k70.dbFilter, items, form.FrameControl),
                   "FilterQubeSettingsCtl1");
}

Page* MakeCondensers(SadrelMainForm& form, clsK70& k70) {
  return form.CondenserSettingsCtl1 =
             Named(new CondenserSettingsCtl(k70.curCondenser, k70.dbcon, form.FrameControl),
                   "CondenserSettingsCtl1");
}

Page* MakeEnding(SadrelMainForm& form, clsK70& k70) {
  auto* page = Named(new SadrelEndingCtl(k70, form.FrameControl), "SadrelEndingCtl1");
  QObject::connect(page, &SadrelEndingCtl::Sent, &form, &SadrelMainForm::OnSent);
  return form.SadrelEndingCtl1 = page;
}

// The lists are built once, when the microscope is connected.
void KeepLists(Page&) {}

}  // namespace

StepTable WizardSteps() {
  return {{
      {"System",
       IconName::System,
       {"Please input System Name."},
       [](SadrelMainForm& form, clsK70& k70) -> Page* {
         return form.SystemSettingsCtl1 =
                    Named(new SystemSettingsCtl(k70, form.FrameControl), "SystemSettingsCtl1");
       }},
      {"Setup Items",
       IconName::CheckList,
       {"Please select wizard type."},
       MakeItems,
       {},
       KeepLists},
      {"Objective",
       IconName::Objective,
       {"Click Address Number Tab and Select Series and Description from the list.",
        "Click Number Tab and Input  Objective Name, W.D., N.A. and select Series, Type and Mag "
        "from the lists.",
        "Set the Limit Controls."},
       MakeObjectives,
       CurrentTab},
      {"Filter Cube",
       IconName::Cube,
       {"Click Address Number Tab and Select Filter Cube from the List.",
        "Click Number Tab, Input Filter Cube Name and Select Exciter / Dichroic / Barrier from the "
        "list.",
        "Input Exciter / Dichroic / Barrier Name."},
       MakeCubes,
       CurrentTab},
      {"Condenser",
       IconName::Condenser,
       {"Select Condenser Module of Each Address from the List.",
        "Input Name of Optional Condenser Module."},
       MakeCondensers,
       CurrentTab},
      {"Control", IconName::Loudspeaker, {"Set Other Settigs.", "Select Buzzer On or Off."}},
      {"InterLock",
       IconName::Interlock,
       {"Set whether each accessory is interlocked when Observation Method is changed.",
        "Set whether each accessory is interlocked when each of Nosepiece / LightPath / Optical "
        "Zoom is changed.",
        "Set the compensation on the proper value. The proper value is calculated using "
        "information such as objective N.A and condenser focal length."}},
      {"Z Focus", IconName::ZFocus, {"Set Focus Drive settings."}},
      {"Controller",
       IconName::HandController,
       {"Set Switch Functions of K70 Microscope ", "Set Tactor Controller settings."}},
      {"Ending", IconName::Flag, {"Check data to set."}, MakeEnding},
  }};
}

}  // namespace mortane

#include "wizard/StepTable.h"

#include <QFrame>
#include <algorithm>

#include "app/MakePages.h"
#include "app/SystemSettingsCtl.h"
#include "condensers/CondenserSettingsCtl.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "hub/clsK70.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "widgets/Named.h"
#include "wizard/SadrelEndingCtl.h"
#include "wizard/SadrelMainForm.h"
#include "wizard/SadrelPages.h"
#include "wizard/SelSetupItemCtl.h"

namespace mortane {
namespace {

// Before the first selection the first tab counts.
int CurrentTab(Page& page) {
  return std::max(static_cast<ContainerPage&>(page).CurrentItem(), 0);
}

template <auto Make, auto Member>
Page* MakeAs(SadrelMainForm& form, const FormServices& services) {
  return form.*Member = Make(services.k70, form.FrameControl);
}

Page* MakeItems(SadrelMainForm& form, const FormServices& services) {
  auto* page = Named(new SelSetupItemCtl(services.k70, form.FrameControl), "SelSetupItemCtl1");
  QObject::connect(page, &SelSetupItemCtl::ItemChanged, &form, &SadrelMainForm::OnItemChanged);
  return form.SelSetupItemCtl1 = page;
}

Page* MakeControls(SadrelMainForm& form, const FormServices& services) {
  return form.SadrelControlOtherCtl1 = Named(
             new SadrelControlOtherCtl(services.k70, form.FrameControl), "SadrelControlOtherCtl1");
}

Page* MakeFocusStep(SadrelMainForm& form, const FormServices& services) {
  return form.SadrelControlFocusDriveCtl1 =
             Named(new SadrelControlFocusDriveCtl(services.k70, form.FrameControl),
                   "SadrelControlFocusDriveCtl1");
}

Page* MakeSwitches(SadrelMainForm& form, const FormServices& services) {
  return form.SadrelControlTactorSwitch1 =
             Named(new SadrelControlTactorSwitch(services.k70, services.prompts, form.FrameControl),
                   "SadrelControlTactorSwitch1");
}

Page* MakeEnding(SadrelMainForm& form, const FormServices& services) {
  auto* page = Named(new SadrelEndingCtl(services.k70, form.FrameControl), "SadrelEndingCtl1");
  QObject::connect(page, &SadrelEndingCtl::Sent, &form, &SadrelMainForm::OnSent);
  return form.SadrelEndingCtl1 = page;
}

int HelpOfControls(Page& page) {
  return static_cast<SadrelControlOtherCtl&>(page).qhrOnly() ? 1 : 0;
}

void EnterFocusStep(Page& page) {
  page.LoadData();
  static_cast<SadrelControlFocusDriveCtl&>(page).SetNosePositgion();
}

// The lists are built once, when the microscope is connected.
void KeepLists(Page&) {}

}  // namespace

StepTable WizardSteps() {
  return {{
      {"System",
       IconName::System,
       {"Please input System Name."},
       MakeAs<MakeSystemSettings, &SadrelMainForm::SystemSettingsCtl1>},
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
       MakeAs<MakeObjectiveSettings, &SadrelMainForm::ObjectiveSettingsCtl1>,
       CurrentTab},
      {"Filter Cube",
       IconName::Cube,
       {"Click Address Number Tab and Select Filter Cube from the List.",
        "Click Number Tab, Input Filter Cube Name and Select Exciter / Dichroic / Barrier from the "
        "list.",
        "Input Exciter / Dichroic / Barrier Name."},
       MakeAs<MakeFilterQubeSettings, &SadrelMainForm::FilterQubeSettingsCtl1>,
       CurrentTab},
      {"Condenser",
       IconName::Condenser,
       {"Select Condenser Module of Each Address from the List.",
        "Input Name of Optional Condenser Module."},
       MakeAs<MakeCondenserSettings, &SadrelMainForm::CondenserSettingsCtl1>,
       CurrentTab},
      {"Control",
       IconName::Loudspeaker,
       {"Set Other Settigs.", "Select Buzzer On or Off."},
       MakeControls,
       HelpOfControls},
      {"InterLock",
       IconName::Interlock,
       {"Set whether each accessory is interlocked when Observation Method is changed.",
        "Set whether each accessory is interlocked when each of Nosepiece / LightPath / Optical "
        "Zoom is changed.",
        "Set the compensation on the proper value. The proper value is calculated using "
        "information such as objective N.A and condenser focal length."},
       MakeAs<MakeInterlockSettings, &SadrelMainForm::InterlockSettingsCtl1>,
       CurrentTab},
      {"Z Focus",
       IconName::ZFocus,
       {"Set Focus Drive settings."},
       MakeFocusStep,
       {},
       EnterFocusStep},
      {"Controller",
       IconName::HandController,
       {"Set Switch Functions of K70 Microscope ", "Set Tactor Controller settings."},
       MakeSwitches},
      {"Ending", IconName::Flag, {"Check data to set."}, MakeEnding},
  }};
}

}  // namespace mortane

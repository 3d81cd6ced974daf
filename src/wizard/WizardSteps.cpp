#include "wizard/WizardSteps.h"

#include <QFrame>
#include <algorithm>

#include "app/MakePages.h"
#include "app/SystemSettingsCtl.h"
#include "condensers/CondenserSettingsCtl.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "hub/clsK70.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "wizard/SadrelEndingCtl.h"
#include "wizard/SadrelMainForm.h"
#include "wizard/SadrelPages.h"
#include "wizard/SelSetupItemCtl.h"

namespace mortane {

using namespace Qt::StringLiterals;
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
  auto* page = new SelSetupItemCtl(services.k70, form.FrameControl);
  page->beforeFile = [&form] { MakeLoadedPages(form); };
  QObject::connect(page, &SelSetupItemCtl::ItemChanged, &form, &SadrelMainForm::OnItemChanged);
  return form.SelSetupItemCtl1 = page;
}

Page* MakeControls(SadrelMainForm& form, const FormServices& services) {
  return form.SadrelControlOtherCtl1 = new SadrelControlOtherCtl(services.k70, form.FrameControl);
}

Page* MakeFocusStep(SadrelMainForm& form, const FormServices& services) {
  return form.SadrelControlFocusDriveCtl1 =
             new SadrelControlFocusDriveCtl(services.k70, form.FrameControl);
}

Page* MakeSwitches(SadrelMainForm& form, const FormServices& services) {
  return form.SadrelControlTactorSwitch1 =
             new SadrelControlTactorSwitch(services.k70, services.prompts, form.FrameControl);
}

Page* MakeEnding(SadrelMainForm& form, const FormServices& services) {
  auto* page = new SadrelEndingCtl(services.k70, form.FrameControl);
  page->beforeSend = [&form] { form.KeepBackup(); };
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
      {u"System"_s,
       IconName::System,
       u"system"_s,
       {u"Please input System Name."_s},
       MakeAs<MakeSystemSettings, &SadrelMainForm::SystemSettingsCtl1>},
      {u"Setup Items"_s,
       IconName::CheckList,
       u"wizard"_s,
       {u"Please select wizard type."_s},
       MakeItems,
       {},
       KeepLists},
      {u"Objective"_s,
       IconName::Objective,
       u"objectives"_s,
       {u"Click Address Number Tab and Select Series and Description from the list."_s,
        u"Click Number Tab and Input  Objective Name, W.D., N.A. and select Series, Type and Mag "
        u"from the lists."_s,
        u"Set the Limit Controls."_s},
       MakeAs<MakeObjectiveSettings, &SadrelMainForm::ObjectiveSettingsCtl1>,
       CurrentTab},
      {u"Filter Cube"_s,
       IconName::Cube,
       u"filter-cubes"_s,
       {u"Click Address Number Tab and Select Filter Cube from the List."_s,
        u"Click Number Tab, Input Filter Cube Name and Select Exciter / Dichroic / Barrier from "
        u"the "
        u"list."_s,
        u"Input Exciter / Dichroic / Barrier Name."_s},
       MakeAs<MakeFilterQubeSettings, &SadrelMainForm::FilterQubeSettingsCtl1>,
       CurrentTab},
      {u"Condenser"_s,
       IconName::Condenser,
       u"condensers"_s,
       {u"Select Condenser Module of Each Address from the List."_s,
        u"Input Name of Optional Condenser Module."_s},
       MakeAs<MakeCondenserSettings, &SadrelMainForm::CondenserSettingsCtl1>,
       CurrentTab},
      {u"Control"_s,
       IconName::Loudspeaker,
       u"controls"_s,
       {u"Set Other Settigs."_s, u"Select Buzzer On or Off."_s},
       MakeControls,
       HelpOfControls},
      {u"InterLock"_s,
       IconName::Interlock,
       u"interlocks"_s,
       {u"Set whether each accessory is interlocked when Observation Method is changed."_s,
        u"Set whether each accessory is interlocked when each of Nosepiece / LightPath / Optical "
        u"Zoom is changed."_s,
        u"Set the compensation on the proper value. The proper value is calculated using "
        u"information such as objective N.A and condenser focal length."_s},
       MakeAs<MakeInterlockSettings, &SadrelMainForm::InterlockSettingsCtl1>,
       CurrentTab},
      {u"Z Focus"_s,
       IconName::ZFocus,
       u"controls"_s,
       {u"Set Focus Drive settings."_s},
       MakeFocusStep,
       {},
       EnterFocusStep},
      {u"Controller"_s,
       IconName::HandController,
       u"controls"_s,
       {u"Set Switch Functions of K70 Microscope "_s, u"Set Tactor Controller settings."_s},
       MakeSwitches},
      {u"Ending"_s, IconName::Flag, u"wizard"_s, {u"Check data to set."_s}, MakeEnding},
  }};
}

}  // namespace mortane

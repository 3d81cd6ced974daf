#include "wizard/SadrelPages.h"

#include <QVBoxLayout>

#include "app/MakePages.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlOtherCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "hub/clsK70.h"
#include "interlocks/clsInterLockOffset.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"
#include "widgets/TabOrder.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// Types of the microscope.
constexpr std::int32_t kHubOnly = 1;
constexpr std::int32_t kWithKnobs = 6;

}  // namespace

SadrelPage::SadrelPage(IconName icon, const QString& title, QWidget* parent) : Page(parent) {
  Header = new PageHeader(icon, title, this);
}

void SadrelPage::SetInner(LatePage& inner) {
  inner_ = &inner;
  QVBoxLayout* column = MakePageLayout(this, Header);
  inner.SetPlace(*this, [this, column](Page& page) {
    column->addWidget(&page, 1);
    PutInTabOrder(page, *Header);
  });
}

void SadrelPage::LoadData() {
  inner_->LoadMade();
}

void SadrelPage::SaveData() {
  inner_->SaveData();
}

SadrelControlOtherCtl::SadrelControlOtherCtl(clsK70& k70, QWidget* parent)
    : SadrelPage(IconName::Loudspeaker, u"Control"_s, parent), k70_(k70) {
  ControlOtherCtl1.Plan({.make = [&k70] { return MakeOther(k70); }});
  SetInner(ControlOtherCtl1);
}

bool SadrelControlOtherCtl::qhrOnly() const {
  return k70_.curType == kHubOnly;
}

// Kept: type 1 has its buzzer hidden although the help line names it.
void SadrelControlOtherCtl::LoadData() {
  ControlOtherCtl1->R_TLPORemoteVisible(true);
  ControlOtherCtl1->SwitchVisible(true);
  ControlOtherCtl1->BuzzerVisible(true);
  ControlOtherCtl1->ManualHandleVisible(true);
  ControlOtherCtl1->LoadData();
  if (k70_.curType == kHubOnly || k70_.curType == kWithKnobs) {
    ControlOtherCtl1->R_TLPORemoteVisible(false);
    ControlOtherCtl1->BuzzerVisible(false);
  }
  if (k70_.curType != kWithKnobs) ControlOtherCtl1->ManualHandleVisible(false);
}

SadrelControlFocusDriveCtl::SadrelControlFocusDriveCtl(clsK70& k70, QWidget* parent)
    : SadrelPage(IconName::ZFocus, u"Z Focus"_s, parent) {
  ControlFocusDriveCtl1.Plan({.make = [&k70] { return MakeFocusDrive(k70); }});
  SetInner(ControlFocusDriveCtl1);
}

void SadrelControlFocusDriveCtl::SetNosePositgion() {
  ControlFocusDriveCtl1->SetNosePosition();
}

SadrelControlXYStageCtl::SadrelControlXYStageCtl(clsK70& k70, QWidget* parent)
    : SadrelPage(IconName::XYStage, u"XY Stage"_s, parent) {
  ControlXYStageCtl1.Plan({.make = [&k70] { return MakeXYStage(k70); }});
  SetInner(ControlXYStageCtl1);
}

void SadrelControlXYStageCtl::SetNosePosition() {
  ControlXYStageCtl1->SetNosePosition();
}

SadrelControlTactorSwitch::SadrelControlTactorSwitch(clsK70& k70, Prompts& prompts, QWidget* parent)
    : ContainerPage(IconName::HandController, u"Controller"_s, parent, NotOffered::Hidden),
      k70_(k70) {
  optSettings = sections();
  SwitchSettingCtl1.Plan(
      {.make = [&k70] { return MakeBodySwitches(k70); }, .load = ChangesNothing});
  TactorSwitchSettingCtl1.Plan(
      {.make = [&k70, &prompts] { return MakeTactorSwitches(k70, prompts); },
       .load = ChangesNothing});
  SetSections({{u"K70 Switch"_s, SwitchSettingCtl1, [this] { return tabs_.k70; }, KeepAsLoaded},
               {u"Tactor Switch"_s, TactorSwitchSettingCtl1, [this] { return tabs_.tactor; },
                KeepAsLoaded}},
              {1, 0});
}

void SadrelControlTactorSwitch::LoadData() {
  tabs_ = FindSwitchTabs(k70_);
  ContainerPage::LoadData();
}

void SadrelControlTactorSwitch::SaveData() {
  if (k70_.ILOffset.IsEnable()) TactorSwitchSettingCtl1->SaveData();
  if (k70_.ILOffset.IsEnable()) SwitchSettingCtl1->SaveData();
}

}  // namespace mortane

#include "wizard/SadrelPages.h"

#include <QVBoxLayout>

#include "app/MakePages.h"
#include "app/SwitchTabs.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlOtherCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "hub/clsK70.h"
#include "interlocks/clsInterLockOffset.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// Types of the microscope.
constexpr std::int32_t kHubOnly = 1;
constexpr std::int32_t kWithKnobs = 6;

}  // namespace

SadrelPage::SadrelPage(IconName icon, const QString& title, Page* inner, QWidget* parent)
    : Page(parent), inner_(inner) {
  Header = new PageHeader(icon, title, this);
  MakePageLayout(this, Header)->addWidget(inner_, 1);
}

void SadrelPage::LoadData() {
  inner_->LoadData();
}

void SadrelPage::SaveData() {
  inner_->SaveData();
}

SadrelControlOtherCtl::SadrelControlOtherCtl(clsK70& k70, QWidget* parent)
    : SadrelControlOtherCtl(k70, MakeOther(k70), parent) {}

SadrelControlOtherCtl::SadrelControlOtherCtl(clsK70& k70, ControlOtherCtl* inner, QWidget* parent)
    : SadrelPage(IconName::Loudspeaker, u"Control"_s, inner, parent), k70_(k70) {
  ControlOtherCtl1 = inner;
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
    : SadrelControlFocusDriveCtl(MakeFocusDrive(k70), parent) {}

SadrelControlFocusDriveCtl::SadrelControlFocusDriveCtl(ControlFocusDriveCtl* inner, QWidget* parent)
    : SadrelPage(IconName::ZFocus, u"Z Focus"_s, inner, parent) {
  ControlFocusDriveCtl1 = inner;
}

void SadrelControlFocusDriveCtl::SetNosePositgion() {
  ControlFocusDriveCtl1->SetNosePosition();
}

SadrelControlXYStageCtl::SadrelControlXYStageCtl(clsK70& k70, QWidget* parent)
    : SadrelControlXYStageCtl(MakeXYStage(k70), parent) {}

SadrelControlXYStageCtl::SadrelControlXYStageCtl(ControlXYStageCtl* inner, QWidget* parent)
    : SadrelPage(IconName::XYStage, u"XY Stage"_s, inner, parent) {
  ControlXYStageCtl1 = inner;
}

void SadrelControlXYStageCtl::SetNosePosition() {
  ControlXYStageCtl1->SetNosePosition();
}

SadrelControlTactorSwitch::SadrelControlTactorSwitch(clsK70& k70, Prompts& prompts, QWidget* parent)
    : ContainerPage(IconName::HandController, u"Controller"_s, parent, NotOffered::Hidden),
      k70_(k70) {
  optSettings = sections();
  SwitchSettingCtl1 = MakeBodySwitches(k70);
  TactorSwitchSettingCtl1 = MakeTactorSwitches(k70, prompts);
  SetSections({{u"K70 Switch"_s, SwitchSettingCtl1, [&k70] { return FindSwitchTabs(k70).k70; },
                KeepAsLoaded},
               {u"Tactor Switch"_s, TactorSwitchSettingCtl1,
                [&k70] { return FindSwitchTabs(k70).tactor; }, KeepAsLoaded}},
              {1, 0});
}

void SadrelControlTactorSwitch::SaveData() {
  if (k70_.ILOffset.IsEnable()) TactorSwitchSettingCtl1->SaveData();
  if (k70_.ILOffset.IsEnable()) SwitchSettingCtl1->SaveData();
}

}  // namespace mortane

#include "app/ControlSettingsCtl.h"

#include <QShowEvent>
#include <utility>
#include <vector>

#include "app/SwitchTabs.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "hub/clsK70.h"
#include "switches/GTJoy.h"
#include "widgets/SectionBar.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

using namespace controltab;

constexpr std::array<const char*, kCount> kCaptions{
    "Focus Drive", "XY Stage", "Other", "K70 Switch", "Tactor Switch", "Joypad Switch"};

}  // namespace

ControlSettingsCtl::ControlSettingsCtl(const FormServices& services, const ControlSubPages& pages,
                                       QWidget* parent)
    : ContainerPage(IconName::Control, u"Controls"_s, parent, NotOffered::Hidden),
      k70_(services.k70),
      joystick_(services.joystick),
      fiber_(services.library),
      setNosePosition_(pages[kFocusDrive].SetNosePosition) {
  optControl = sections();
  const std::array<LateControl<Page>*, kCount> controls{
      &ControlFocusDriveCtl1, &ControlXYStageCtl1,      &ControlOtherCtl1,
      &SwitchSettingCtl1,     &ControlTactorSwitchCtl1, &JoypadSwitchSettingCtl1};
  std::vector<Section> sections;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    LateControl<Page>& control = *controls[i];
    if (pages[i].page != nullptr) {
      control = pages[i].page;
    } else {
      control.Plan(pages[i].plan);
    }
    sections.push_back({QLatin1String(kCaptions[i]), control, [this, i] { return tabs_[i]; },
                        pages[i].SetNosePosition});
  }
  SetSections(std::move(sections),
              {kJoypadSwitch, kTactorSwitch, kK70Switch, kOther, kXYStage, kFocusDrive});
  optControl->select(kFocusDrive);
}

void ControlSettingsCtl::LoadData() {
  FindTabs();
  ContainerPage::LoadData();
}

void ControlSettingsCtl::FindTabs() {
  tabs_[kJoypadSwitch] = GetJoyStatus(joystick_) < 1;
  tabs_[kFocusDrive] = k70_.CZDrive.IsEnable();
  tabs_[kXYStage] = k70_.CXYDrive.IsEnable();
  tabs_[kOther] = k70_.COther.IsEnable();
  fiber_.Read(k70_.COther);
  const SwitchTabs switches = FindSwitchTabs(k70_);
  tabs_[kK70Switch] = switches.k70;
  tabs_[kTactorSwitch] = switches.tactor;
}

void ControlSettingsCtl::SaveData() {
  if (k70_.CZDrive.IsEnable()) ControlOtherCtl1->SaveData();
  if (k70_.CXYDrive.IsEnable()) ControlXYStageCtl1->SaveData();
  if (k70_.COther.IsEnable()) ControlFocusDriveCtl1->SaveData();
}

void ControlSettingsCtl::SetNosePostiton() {
  setNosePosition_();
}

void ControlSettingsCtl::SendData() {
  fiber_.Write(k70_.COther);
}

int ControlSettingsCtl::FirstSection() const {
  for (int i = kXYStage; i < kCount; ++i) {
    if (IsOffered(i)) return i;
  }
  return kFocusDrive;
}

// A window that comes back from the task bar shows the page as it was.
void ControlSettingsCtl::showEvent(QShowEvent* event) {
  ContainerPage::showEvent(event);
  if (!event->spontaneous()) ControlFocusDriveCtl1->LoadData();
}

}  // namespace mortane

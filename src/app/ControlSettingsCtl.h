// The page of the drives and controls: six sub-pages under one header.
#pragma once

#include <array>
#include <functional>

#include "app/ControlSubPages.h"
#include "app/FormServices.h"
#include "drives/FiberRemoteLink.h"
#include "widgets/ContainerPage.h"

namespace mortane {

// Kept: opens on the lowest tab from "XY Stage" on that the microscope has, else on "Focus Drive",
// also where there is nothing to show. Talks to the fiber illuminator's server as long as it lives.
class ControlSettingsCtl : public ContainerPage {
 public:
  // Takes the sub-pages over.
  ControlSettingsCtl(const FormServices& services, const ControlSubPages& pages,
                     QWidget* parent = nullptr);

  void LoadData() override;
  // Kept: the focus drive decides whether the other controls are saved, and they whether it is.
  void SaveData() override;
  void SetNosePostiton() override;
  void SendData() override;

  Control<SectionBar> optControl{"optControl"};
  LateControl<Page> ControlFocusDriveCtl1{"ControlFocusDriveCtl1"};
  LateControl<Page> ControlXYStageCtl1{"ControlXYStageCtl1"};
  LateControl<Page> ControlOtherCtl1{"ControlOtherCtl1"};
  LateControl<Page> SwitchSettingCtl1{"SwitchSettingCtl1"};
  LateControl<Page> ControlTactorSwitchCtl1{"ControlTactorSwitchCtl1"};
  LateControl<Page> JoypadSwitchSettingCtl1{"JoypadSwitchSettingCtl1"};

 protected:
  [[nodiscard]] int FirstSection() const override;
  void showEvent(QShowEvent* event) override;

 private:
  void FindTabs();

  clsK70& k70_;
  Joystick& joystick_;
  FiberRemoteLink fiber_;
  std::function<void()> setNosePosition_;
  std::array<bool, controltab::kCount> tabs_{};
};

}  // namespace mortane

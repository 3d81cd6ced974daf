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
  Control<Page> ControlFocusDriveCtl1{"ControlFocusDriveCtl1"};
  Control<Page> ControlXYStageCtl1{"ControlXYStageCtl1"};
  Control<Page> ControlOtherCtl1{"ControlOtherCtl1"};
  Control<Page> SwitchSettingCtl1{"SwitchSettingCtl1"};
  Control<Page> ControlTactorSwitchCtl1{"ControlTactorSwitchCtl1"};
  Control<Page> JoypadSwitchSettingCtl1{"JoypadSwitchSettingCtl1"};

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

// The page of the drives and controls: six sub-pages under one header.
#pragma once

#include <array>
#include <functional>

#include "drives/FiberRemoteLink.h"
#include "widgets/ContainerPage.h"

namespace mortane {

class Joystick;
class clsK70;

// The tabs, from left to right.
namespace controltab {
inline constexpr int kFocusDrive = 0;
inline constexpr int kXYStage = 1;
inline constexpr int kOther = 2;
inline constexpr int kK70Switch = 3;
inline constexpr int kTactorSwitch = 4;
inline constexpr int kJoypadSwitch = 5;
inline constexpr int kCount = 6;
}  // namespace controltab

// A sub-page, and how it shows where the nosepiece stands. When its tab is clicked a page that can
// does this; another one is loaded.
struct ControlSubPage {
  Page* page = nullptr;
  std::function<void()> SetNosePosition = {};
};
using ControlSubPages = std::array<ControlSubPage, controltab::kCount>;

// Opens on the lowest tab from "XY Stage" on that the microscope has, else on "Focus Drive", also
// where there is nothing to show. Talks to the fiber illuminator's server as long as it lives.
class ControlSettingsCtl : public ContainerPage {
 public:
  // Takes the sub-pages over.
  ControlSettingsCtl(clsK70& k70, controller::ControllerLibrary& library, Joystick& joystick,
                     const ControlSubPages& pages, QWidget* parent = nullptr);

  void LoadData() override;
  // The focus drive decides whether the other controls are saved, and they whether it is.
  void SaveData() override;
  void SetNosePostiton() override;
  void SendData() override;

  SectionBar* optControl;
  Page* ControlFocusDriveCtl1;
  Page* ControlXYStageCtl1;
  Page* ControlOtherCtl1;
  Page* SwitchSettingCtl1;
  Page* ControlTactorSwitchCtl1;
  Page* JoypadSwitchSettingCtl1;

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

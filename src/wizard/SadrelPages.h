// Pages of the full window as steps of the wizard: under a header, without what a beginner need not
// see.
#pragma once

#include "app/SwitchTabs.h"
#include "widgets/ContainerPage.h"
#include "widgets/Control.h"

namespace mortane {

class ControlFocusDriveCtl;
class ControlOtherCtl;
class ControlXYStageCtl;
class Prompts;
class SwitchSettingCtl;
class TactorSwitchSettingCtl;
class clsK70;

// One page under a header, made when it is first loaded; loading and saving pass on to it.
class SadrelPage : public Page {
  Q_OBJECT

 public:
  SadrelPage(IconName icon, const QString& title, QWidget* parent);

  void LoadData() override;
  void SaveData() override;

  Control<PageHeader> Header{"Header"};

 protected:
  // To be called by the constructor of the derived page, which names it.
  void SetInner(LatePage& inner);

 private:
  LatePage* inner_ = nullptr;
};

class SadrelControlOtherCtl : public SadrelPage {
  Q_OBJECT

 public:
  explicit SadrelControlOtherCtl(clsK70& k70, QWidget* parent = nullptr);

  // Whether buzzers are all that this type of microscope has here.
  [[nodiscard]] bool qhrOnly() const;
  // Shows every frame, then hides those that the microscope or its type has not.
  void LoadData() override;

  LateControl<ControlOtherCtl> ControlOtherCtl1{"ControlOtherCtl1"};

 private:
  const clsK70& k70_;
};

class SadrelControlFocusDriveCtl : public SadrelPage {
  Q_OBJECT

 public:
  explicit SadrelControlFocusDriveCtl(clsK70& k70, QWidget* parent = nullptr);

  // Shows where the nosepiece stands.
  void SetNosePositgion();

  LateControl<ControlFocusDriveCtl> ControlFocusDriveCtl1{"ControlFocusDriveCtl1"};
};

class SadrelControlXYStageCtl : public SadrelPage {
  Q_OBJECT

 public:
  explicit SadrelControlXYStageCtl(clsK70& k70, QWidget* parent = nullptr);

  // Shows where the nosepiece stands.
  void SetNosePosition();

  LateControl<ControlXYStageCtl> ControlXYStageCtl1{"ControlXYStageCtl1"};
};

// The switches of the body and of the hand controller, each where its firmware has them.
class SadrelControlTactorSwitch : public ContainerPage {
  Q_OBJECT

 public:
  SadrelControlTactorSwitch(clsK70& k70, Prompts& prompts, QWidget* parent = nullptr);

  void LoadData() override;
  // Kept: both pages are saved where the interlock offsets are enabled.
  void SaveData() override;

  Control<SectionBar> optSettings{"optSettings"};
  LateControl<SwitchSettingCtl> SwitchSettingCtl1{"SwitchSettingCtl1"};
  LateControl<TactorSwitchSettingCtl> TactorSwitchSettingCtl1{"TactorSwitchSettingCtl1"};

 private:
  const clsK70& k70_;
  SwitchTabs tabs_;  // as the last loading found them
};

}  // namespace mortane

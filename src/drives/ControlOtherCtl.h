// The panel of knobs, buzzers, switches and remotes.
#pragma once

#include "widgets/CardPage.h"

class QBoxLayout;
class QCheckBox;
class QFrame;
class QLabel;

namespace mortane {

class ComboBox;
class InnerFrame;
class OptionGroup;
class clsControlOther;

// Shows what the connected microscope has, each in a frame of its own; an edit reaches its field at
// once.
class ControlOtherCtl : public CardPage {
  Q_OBJECT

 public:
  explicit ControlOtherCtl(clsControlOther& other, QWidget* parent = nullptr);

  // A step that fails is shown with its number and ends the loading.
  void LoadData() override;

  // Whether a frame is shown. Reading one of the last three writes "True" or "False" over the
  // frame's caption and returns false.
  bool ManualHandleVisible() const;
  void ManualHandleVisible(bool visible);
  bool BuzzerVisible();
  void BuzzerVisible(bool visible);
  bool SwitchVisible();
  void SwitchVisible(bool visible);
  bool R_TLPORemoteVisible();
  void R_TLPORemoteVisible(bool visible);

  InnerFrame* FrameManualHandle;
  QFrame* Frame1;
  QLabel* lblFocusDrive;
  OptionGroup* optAuto;
  QCheckBox* CheckFocusAuto;
  ComboBox* ComboFocus;
  QLabel* lblXYStage;
  OptionGroup* optXYAuto;
  QCheckBox* CheckStageAuto;
  ComboBox* ComboStage;
  QLabel* Label1;
  InnerFrame* FrameR_TLPORemote;
  QFrame* Frame2;
  QLabel* lblR_TLPOLED;
  OptionGroup* optR_TLPO_LED;
  QLabel* lblRTlpoRemote;
  OptionGroup* optR_TLPO_Switch;
  InnerFrame* FrameFiberRemote;
  QFrame* Frame4;
  QLabel* Label2;
  OptionGroup* optFiber_LED;
  QLabel* Label3;
  OptionGroup* optFiber_Switch;
  InnerFrame* FrameBuzzer;
  OptionGroup* optBuzzer;
  InnerFrame* FrameSwitch;
  OptionGroup* optSwitch;
  InnerFrame* FrameTactorSwich;
  OptionGroup* optTactorSwitch;

 protected:
  // One step of LoadData; `step` counts from 1 to 8.
  virtual void LoadStep(int step);

 private:
  using Step = void (ControlOtherCtl::*)();

  void Build();
  void StoreEdits();
  void ArrangeColumns();

  void LoadFocusKnob();
  void LoadStageKnob();
  void LoadKnobFrame();
  void LoadBuzzer();
  void LoadBodySwitches();
  void LoadTactorSwitches();
  void LoadRemote();
  void LoadFiber();

  clsControlOther& other_;
  QBoxLayout* columns_ = nullptr;
  bool hasFocusKnob_ = false;
  bool hasStageKnob_ = false;
};

}  // namespace mortane

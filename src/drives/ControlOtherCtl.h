// The panel of knobs, buzzers, switches and remotes.
#pragma once

#include "model/ConnectedMicroscope.h"
#include "widgets/CardPage.h"
#include "widgets/Control.h"

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

  // What is kept of a LoadData before the page is made.
  struct Loading {
    bool isOrdinary = false;  // what follows was read
    double knobVersion = kNoVersion;
    double tactorVersion = kNoVersion;
    int failedStep = 0;  // 0: none
  };
  // Does what LoadData does beside showing; false where that would change the unit or fail over one
  // of its values.
  static bool Load(Loading& loading, const clsControlOther& other);
  // Shows what was loaded so, without a call to the controller, or loads where it was not.
  void Fill(const Loading& loading);

  // Whether a frame is shown. Kept: reading one of the last three writes "True" or "False" over
  // the frame's caption and returns false.
  bool ManualHandleVisible() const;
  void ManualHandleVisible(bool visible);
  bool BuzzerVisible();
  void BuzzerVisible(bool visible);
  bool SwitchVisible();
  void SwitchVisible(bool visible);
  bool R_TLPORemoteVisible();
  void R_TLPORemoteVisible(bool visible);

  Control<InnerFrame> FrameManualHandle{"FrameManualHandle"};
  Control<QFrame> Frame1{"Frame1"};
  Control<QLabel> lblFocusDrive{"lblFocusDrive"};
  Control<OptionGroup> optAuto{"optAuto"};
  Control<QCheckBox> CheckFocusAuto{"CheckFocusAuto"};
  Control<ComboBox> ComboFocus{"ComboFocus"};
  Control<QLabel> lblXYStage{"lblXYStage"};
  Control<OptionGroup> optXYAuto{"optXYAuto"};
  Control<QCheckBox> CheckStageAuto{"CheckStageAuto"};
  Control<ComboBox> ComboStage{"ComboStage"};
  Control<QLabel> Label1{"Label1"};
  Control<InnerFrame> FrameR_TLPORemote{"FrameR_TLPORemote"};
  Control<QFrame> Frame2{"Frame2"};
  Control<QLabel> lblR_TLPOLED{"lblR_TLPOLED"};
  Control<OptionGroup> optR_TLPO_LED{"optR_TLPO_LED"};
  Control<QLabel> lblRTlpoRemote{"lblRTlpoRemote"};
  Control<OptionGroup> optR_TLPO_Switch{"optR_TLPO_Switch"};
  Control<InnerFrame> FrameFiberRemote{"FrameFiberRemote"};
  Control<QFrame> Frame4{"Frame4"};
  Control<QLabel> Label2{"Label2"};
  Control<OptionGroup> optFiber_LED{"optFiber_LED"};
  Control<QLabel> Label3{"Label3"};
  Control<OptionGroup> optFiber_Switch{"optFiber_Switch"};
  Control<InnerFrame> FrameBuzzer{"FrameBuzzer"};
  Control<OptionGroup> optBuzzer{"optBuzzer"};
  Control<InnerFrame> FrameSwitch{"FrameSwitch"};
  Control<OptionGroup> optSwitch{"optSwitch"};
  Control<InnerFrame> FrameTactorSwich{"FrameTactorSwich"};
  Control<OptionGroup> optTactorSwitch{"optTactorSwitch"};

 protected:
  // One step of LoadData; `step` counts from 1 to 8.
  virtual void LoadStep(int step);

 private:
  using Step = void (ControlOtherCtl::*)();
  using Version = double Loading::*;
  class Columns;

  void Build();
  void StoreEdits();
  void ArrangeColumns();

  double BodyVersion(Version version) const;
  void LoadFocusKnob();
  void LoadStageKnob();
  void LoadKnobFrame();
  void LoadBuzzer();
  void LoadBodySwitches();
  void LoadTactorSwitches();
  void LoadRemote();
  void LoadFiber();

  clsControlOther& other_;
  const Loading* loaded_ = nullptr;  // while Fill goes by it
  Columns* columns_ = nullptr;
  bool hasFocusKnob_ = false;
  bool hasStageKnob_ = false;
};

}  // namespace mortane

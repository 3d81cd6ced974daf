// The page of the focus drive: its limits, its escape, and the teaching of a position for each
// nosepiece address.
#pragma once

#include "drives/DrivePageCtl.h"
#include "drives/clsControlZDrive.h"

class QLabel;

namespace mortane {

class CheckToggle;

// Every edit reaches the unit at once. Kept: the teaching section, FrameZNose, is hidden by each
// loading but works; its buttons move the real drive. A position that a step, or the question of a
// row, has shown is stored, unless it is 0.
class ControlFocusDriveCtl : public DrivePageCtl {
  Q_OBJECT

 public:
  // `follow` is told when the compensation is chosen.
  ControlFocusDriveCtl(clsControlZDrive& drive, FollowNosepiece follow, QWidget* parent = nullptr);

  // Prepares the drive for moves where the nosepiece turns. Of a body without the escape in its
  // firmware the focus drive's escape is set on; a version that cannot be read sets nothing.
  void LoadData() override;

  // What is kept of a LoadData before the page is made.
  struct Loading : DriveLoading {
    int option = -1;  // of the compensation
    std::int32_t compensation = kUnknown;
    EscapeFirmware firmware = EscapeFirmware::Unknown;
  };
  static void Load(Loading& loading, clsControlZDrive& drive, const FollowNosepiece& follow);
  // Shows what was loaded so; the drive is not called, and no edit stored.
  void Fill(const Loading& loading);

  Control<InnerFrame> frmEscapeSetting{"frmEscapeSetting"};
  Controls<CheckToggle, 2> chkEscape{"chkEscape"};
  Controls<QLabel, 2> lblEscape{"lblEscape"};
  Control<InnerFrame> FrameUpperLimitation{"FrameUpperLimitation"};
  Control<OptionGroup> optUpperLimitation{"optUpperLimitation"};
  Control<InnerFrame> FrameDownLimitation{"FrameDownLimitation"};
  Control<OptionGroup> optDownLimitation{"optDownLimitation"};
  Control<CaptionedFrame> FrameZNose{"FrameZNose"};
  Control<InnerFrame> FrameZControl{"FrameZControl"};
  Control<MoveButton> ButtonUpLarge{"ButtonUpLarge"};
  Control<MoveButton> ButtonUpSmall{"ButtonUpSmall"};
  Control<MoveButton> ButtonDownLarge{"ButtonDownLarge"};
  Control<MoveButton> ButtonDownSmall{"ButtonDownSmall"};
  Controls<TextField, PositionTableCtl::kRows> TextNosepiece{"TextNosepiece"};

 private:
  struct StepButton;
  static const std::array<StepButton, 4> kStepButtons;
  struct Limit;
  static const std::array<Limit, 2> kLimits;

  void MoveStart() const override;
  std::int32_t NosePosition() const override;
  std::int32_t CurPosition(std::size_t axis) const override;
  void Move(std::size_t axis, std::int32_t delta) const override;
  void MoveAsyncStart(const std::vector<std::int32_t>& targets) const override;
  bool IsMoveAsyncEnd() const override;
  void MoveStop() const override;
  void LoadPositions() override;
  void RowSelected(int row) override;
  void PositionShown(int row, std::int32_t position) override;

  void Build();
  InnerFrame* BuildEscape();
  InnerFrame* BuildLimit(const Limit& limit);
  void AlignRows();
  void BuildTeaching();
  void StoreEdits();

  void LoadCompensation(std::int32_t code);
  void LoadRest(EscapeFirmware bodyFirmware);
  void LoadLowerLimit();
  void LoadEscape(EscapeFirmware firmware);
  void ShowEscape(int axis);
  void StoreEscape(int axis);
  void EnableEscape(int axis, bool enabled);

  clsControlZDrive& drive_;
  FollowNosepiece follow_;
};

}  // namespace mortane

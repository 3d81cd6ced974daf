// The page of the stage: its compensation, and the teaching of a position for each nosepiece
// address.
#pragma once

#include "drives/DrivePageCtl.h"

namespace mortane {

class clsControlXYDrive;

// Every edit reaches the unit at once; what a move shows is not stored before its field is left or
// the page saved.
class ControlXYStageCtl : public DrivePageCtl {
  Q_OBJECT

 public:
  explicit ControlXYStageCtl(clsControlXYDrive& stage, QWidget* parent = nullptr);

  // Prepares the stage for moves where the nosepiece turns, or where there is no stage.
  void LoadData() override;

  // LoadData before the page is made, and what the page then shows of it.
  static void Load(DriveLoading& loading, const clsControlXYDrive& stage);
  void Fill();

  Control<CaptionedFrame> Frame1{"Frame1"};
  Controls<TextField, PositionTableCtl::kRows> TextNosepieceX{"TextNosepieceX"};
  Controls<TextField, PositionTableCtl::kRows> TextNosepieceY{"TextNosepieceY"};
  Control<InnerFrame> FrameXYControl{"FrameXYControl"};
  Control<MoveButton> ButtonLeftLarge{"ButtonLeftLarge"};
  Control<MoveButton> ButtonLeftSmall{"ButtonLeftSmall"};
  Control<MoveButton> ButtonRightLarge{"ButtonRightLarge"};
  Control<MoveButton> ButtonRightSmall{"ButtonRightSmall"};
  Control<MoveButton> ButtonUpLarge{"ButtonUpLarge"};
  Control<MoveButton> ButtonUpSmall{"ButtonUpSmall"};
  Control<MoveButton> ButtonDownLarge{"ButtonDownLarge"};
  Control<MoveButton> ButtonDownSmall{"ButtonDownSmall"};

 protected:
  // The interlock page changes the compensation too, so it is shown anew.
  void showEvent(QShowEvent* event) override;

 private:
  struct StepButton;
  static const std::array<StepButton, 8> kStepButtons;

  void MoveStart() const override;
  std::int32_t NosePosition() const override;
  std::int32_t CurPosition(std::size_t axis) const override;
  void Move(std::size_t axis, std::int32_t delta) const override;
  void MoveAsyncStart(const std::vector<std::int32_t>& targets) const override;
  bool IsMoveAsyncEnd() const override;
  void MoveStop() const override;
  void LoadPositions() override;

  void Build();
  void LoadCompensation();

  clsControlXYDrive& stage_;
};

}  // namespace mortane

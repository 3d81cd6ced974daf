// The page of the stage: its compensation, and the teaching of a position for each nosepiece
// address.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "drives/MoveScope.h"
#include "widgets/CardPage.h"

class QCheckBox;
class QPushButton;

namespace mortane {

class CaptionedFrame;
class InnerFrame;
class MoveButton;
class OptionGroup;
class PositionTableCtl;
class TextField;
class clsControlXYDrive;

// Every edit reaches the unit at once. Its buttons move the real stage; what a move shows is not
// stored before its field is left or the page saved. A move that its person leaves goes on by
// itself.
class ControlXYStageCtl : public CardPage {
  Q_OBJECT

 public:
  explicit ControlXYStageCtl(clsControlXYDrive& stage, QWidget* parent = nullptr);

  // Prepares the stage for moves, unless there is one and the nosepiece does not turn.
  void LoadData() override;
  // Stores the positions of all rows.
  void SaveData() override;
  // Selects the row of the address at which the nosepiece stands.
  void SetNosePosition();

  CaptionedFrame* Frame1;
  OptionGroup* optFocusCompensation;
  PositionTableCtl* FrameNosepiece;
  OptionGroup* optNosepiece;
  std::array<TextField*, 7> TextNosepieceX;
  std::array<TextField*, 7> TextNosepieceY;
  InnerFrame* FrameXYControl;
  QPushButton* ButtonStart;
  MoveButton* ButtonLeftLarge;
  MoveButton* ButtonLeftSmall;
  MoveButton* ButtonRightLarge;
  MoveButton* ButtonRightSmall;
  MoveButton* ButtonUpLarge;
  MoveButton* ButtonUpSmall;
  MoveButton* ButtonDownLarge;
  MoveButton* ButtonDownSmall;
  QCheckBox* CheckRealMove;

 protected:
  // The interlock page changes the compensation too, so it is shown anew.
  void showEvent(QShowEvent* event) override;

 private:
  struct Axis;
  struct StepButton;
  static const std::array<Axis, 2> kAxes;  // X, Y
  static const std::array<StepButton, 8> kStepButtons;

  void Build();
  void Connect();
  void LoadCompensation();
  void OnRealMove(bool real);
  void OnRow(int row);
  void Step(const StepButton& button);
  void MoveAndShow(const StepButton& button);
  bool ShowPosition(const MoveScope& scope, int row, std::size_t axis);
  void Start();
  void MoveToRow(int row, std::int32_t x, std::int32_t y);

  clsControlXYDrive& stage_;
  int selectedRow_ = -1;
  MoveFlag moving_ = std::make_shared<bool>(false);
};

}  // namespace mortane

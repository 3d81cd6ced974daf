// The page of the focus drive: its limits, its escape, and the teaching of a position for each
// nosepiece address.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "drives/MoveScope.h"
#include "model/DriveCompensation.h"
#include "widgets/CardPage.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace mortane {

class CaptionedFrame;
class CheckToggle;
class InnerFrame;
class MoveButton;
class OptionGroup;
class PositionTableCtl;
class TextField;
class clsControlZDrive;

// Every edit reaches the unit at once. The teaching section, FrameZNose, is hidden by each loading
// but works: its buttons move the real drive. A move that its person leaves goes on by itself.
class ControlFocusDriveCtl : public CardPage {
  Q_OBJECT

 public:
  // `follow` is told when the compensation is chosen.
  ControlFocusDriveCtl(clsControlZDrive& drive, FollowNosepiece follow, QWidget* parent = nullptr);

  // Prepares the drive for moves where the nosepiece turns. Of a body without the escape in its
  // firmware the focus drive's escape is set on; a version that cannot be read sets nothing.
  void LoadData() override;
  // Stores the positions of all rows. "No Setting" is stored as 0.
  void SaveData() override;
  // Selects the row of the address at which the nosepiece stands.
  void SetNosePosition();

  InnerFrame* frmEscapeSetting;
  std::array<CheckToggle*, 2> chkEscape;
  std::array<QLabel*, 2> lblEscape;
  InnerFrame* FrameUpperLimitation;
  OptionGroup* optUpperLimitation;
  InnerFrame* FrameDownLimitation;
  OptionGroup* optDownLimitation;
  CaptionedFrame* FrameZNose;
  InnerFrame* FrameZControl;
  QPushButton* ButtonStart;
  MoveButton* ButtonUpLarge;
  MoveButton* ButtonUpSmall;
  MoveButton* ButtonDownLarge;
  MoveButton* ButtonDownSmall;
  QCheckBox* CheckRealMove;
  PositionTableCtl* FrameNosepiece;
  OptionGroup* optNosepiece;
  std::array<TextField*, 7> TextNosepiece;
  OptionGroup* optFocusCompensation;

 private:
  struct StepButton;
  struct Limit;
  static const std::array<StepButton, 4> kStepButtons;

  void Build();
  InnerFrame* BuildEscape();
  InnerFrame* BuildLimit(const Limit& limit);
  void BuildTeaching();
  void Connect();

  void LoadCompensation();
  void LoadPositions();
  void LoadLowerLimit();
  void LoadEscape();
  void ShowEscape(int axis);
  void StoreEscape(int axis);
  void EnableEscape(int axis, bool enabled);

  void OnRealMove(bool real);
  void OnRow(int row);
  void Step(std::int32_t steps);
  void Teach(const MoveScope& scope);
  std::int32_t ShowPosition(const MoveScope& scope, int row);
  void Start();
  void MoveToRow(int row, std::int32_t target);

  clsControlZDrive& drive_;
  FollowNosepiece follow_;
  int selectedRow_ = -1;
  MoveFlag moving_ = std::make_shared<bool>(false);
};

}  // namespace mortane

// What the pages of the focus drive and of the stage have in common: a position for each nosepiece
// address, taught by moves of the real drive.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "drawings/MoveCross.h"
#include "drives/DriveLoading.h"
#include "drives/MoveScope.h"
#include "drives/PositionTableCtl.h"
#include "model/DriveCompensation.h"
#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QCheckBox;
class QPushButton;

namespace mortane {

class CaptionedFrame;
class OptionGroup;

// The value of the drive's compensation that each option stands for: absolute, relative, none.
inline constexpr std::array<std::int32_t, 3> kCompensationCodes{
    compensation::kAbsolute, compensation::kRelative, compensation::kNone};

// The option of a compensation; -1 for a value that is none of them.
int CompensationIndex(std::int32_t code);

// Its buttons move the real drive. No move begins within another, and the input that came during a
// move is dropped. A move whose box is answered goes on to its target. An axis is its place among
// the columns of the table; rows count from 0.
class DrivePageCtl : public CardPage {
  Q_OBJECT

 public:
  // Stores the positions of all rows.
  void SaveData() override;
  void ShowStored() override { LoadPositions(); }
  // Selects the row of the address at which the nosepiece stands.
  void SetNosePosition();
  // Shows what was loaded before the page was made, without a call to the drive.
  void Restore(const DriveLoading& loading);

  Control<OptionGroup> optFocusCompensation{"optFocusCompensation"};
  Control<PositionTableCtl> FrameNosepiece{"FrameNosepiece"};
  Control<OptionGroup> optNosepiece{"optNosepiece"};
  Control<QCheckBox> CheckRealMove{"CheckRealMove"};
  Control<QPushButton> ButtonStart{"ButtonStart"};

 protected:
  // Of the move buttons, in steps of 0.05 micrometres.
  static constexpr std::int32_t kLargeStep = 50;
  static constexpr std::int32_t kSmallStep = 1;

  struct TeachingTexts {
    const char* caption;
    std::array<const char*, kCompensationCodes.size()> compensations;
    const char* controlCaption;
  };
  struct TeachingParts {
    CaptionedFrame* frame;  // holds all
    InnerFrame* control;    // holds the tick and the buttons
    MoveCross* cross;
  };

  DrivePageCtl(const QString& caption, const ConnectedMicroscope& microscope, QWidget* parent);

  // Adds the section to the card: the options of the compensation in a row; below them the
  // positions at the left, the move buttons at the right.
  TeachingParts AddTeaching(const TeachingTexts& texts, std::vector<PositionColumn> columns,
                            MoveCross::Axes axes);
  void KeepCardToContents();
  void ConnectStep(MoveButton& button, std::int32_t steps, std::size_t axis = 0);

  // Ticks the real moves and prepares the drive; a new tick has prepared it by itself before.
  // False when the page was destroyed meanwhile.
  bool PrepareMoves();
  MoveScope BeginMove() { return {moving_, microscope_}; }
  // Shows where the drive stands in the selected row, if there is one.
  void ShowInSelectedRow(const MoveScope& scope, std::size_t axis = 0);

 private:
  using Positions = std::vector<std::int32_t>;  // of each axis, in steps

  // The drive. Its unit shows a box of a call that failed, and answers 0 or false.
  virtual void MoveStart() const = 0;
  virtual std::int32_t NosePosition() const = 0;
  virtual std::int32_t CurPosition(std::size_t axis) const = 0;
  virtual void Move(std::size_t axis, std::int32_t delta) const = 0;
  virtual void MoveAsyncStart(const Positions& targets) const = 0;
  virtual bool IsMoveAsyncEnd() const = 0;
  virtual void MoveStop() const = 0;

  // Fills the table from the unit.
  virtual void LoadPositions() = 0;

  // What else a page does with a row that was selected, and with a position shown in it.
  virtual void RowSelected(int /*row*/) {}
  virtual void PositionShown(int /*row*/, std::int32_t /*position*/) {}

  void OnRealMove(bool real);
  void OnRow(int row);
  void Step(std::size_t axis, std::int32_t steps);
  void Start();
  std::optional<Positions> TargetsOf(int row) const;
  void MoveToRow(int row, const Positions& targets);
  std::optional<std::int32_t> ShowPosition(const MoveScope& scope, int row, std::size_t axis);

  const ConnectedMicroscope& microscope_;
  int selectedRow_ = -1;
  MoveFlag moving_ = std::make_shared<bool>(false);
};

}  // namespace mortane

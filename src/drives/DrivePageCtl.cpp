#include "drives/DrivePageCtl.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QPointer>
#include <QSignalBlocker>
#include <algorithm>
#include <cstdlib>

#include "widgets/OptionGroup.h"

namespace mortane {

static_assert(kTaughtAddresses == PositionTableCtl::kRows);

int CompensationIndex(std::int32_t code) {
  const auto* const found = std::find(kCompensationCodes.begin(), kCompensationCodes.end(), code);
  return found == kCompensationCodes.end() ? -1
                                           : static_cast<int>(found - kCompensationCodes.begin());
}

DrivePageCtl::DrivePageCtl(const QString& caption, const ConnectedMicroscope& microscope,
                           QWidget* parent)
    : CardPage(caption, parent), microscope_(microscope) {}

// A check box that is destroyed within its own signal is still used by the toolkit, so the tick is
// set in silence and what it does is done here.
bool DrivePageCtl::PrepareMoves() {
  const QPointer<DrivePageCtl> page(this);
  if (!CheckRealMove->isChecked()) {
    {
      const QSignalBlocker quiet(CheckRealMove);
      CheckRealMove->setChecked(true);
    }
    OnRealMove(true);
  }
  if (page) MoveStart();
  return !page.isNull();
}

void DrivePageCtl::SaveData() {
  FrameNosepiece->Save();
}

void DrivePageCtl::SetNosePosition() {
  const std::int32_t address = NosePosition();
  if (address > 0) optNosepiece->select(address - 1);
}

void DrivePageCtl::Restore(const DriveLoading& loading) {
  const QSignalBlocker quietTick(CheckRealMove);
  const QSignalBlocker quietRows(optNosepiece);
  CheckRealMove->setChecked(loading.real);
  optNosepiece->select(loading.row);
  selectedRow_ = loading.row;
}

void DrivePageCtl::OnRealMove(bool real) {
  if (real) {
    MoveStart();
  } else {
    selectedRow_ = -1;
  }
}

void DrivePageCtl::OnRow(int row) {
  {
    // The pointer is set and restored before the row is stored.
    const HourglassScope hourglass(microscope_.prompts());
  }
  selectedRow_ = row;
  RowSelected(row);
}

// Clicks made while the move blocked would each move the drive again.
void DrivePageCtl::Step(std::size_t axis, std::int32_t steps) {
  if (*moving_) return;
  Prompts& prompts = microscope_.prompts();
  if (CheckRealMove->isChecked()) {
    const MoveScope scope = BeginMove();
    Move(axis, steps);
    if (!scope.IsLost()) ShowInSelectedRow(scope, axis);
  }
  prompts.FlushInput();
}

// The row may be given up while a box tells that the position could not be read.
void DrivePageCtl::ShowInSelectedRow(const MoveScope& scope, std::size_t axis) {
  const int row = selectedRow_;
  if (row < 0) return;
  if (const std::optional<std::int32_t> position = ShowPosition(scope, row, axis)) {
    PositionShown(row, *position);
  }
}

// None when the scope was lost meanwhile.
std::optional<std::int32_t> DrivePageCtl::ShowPosition(const MoveScope& scope, int row,
                                                       std::size_t axis) {
  const std::int32_t position = CurPosition(axis);
  if (scope.IsLost()) return {};
  FrameNosepiece->Show(row, position, axis);
  return position;
}

// A row that the nosepiece does not have is hidden and empty, which would mean 0.
void DrivePageCtl::Start() {
  if (*moving_ || selectedRow_ < 0 || !CheckRealMove->isChecked()) return;
  if (optNosepiece->button(selectedRow_)->isHidden()) return;
  const std::optional<Positions> targets = TargetsOf(selectedRow_);
  if (!targets) return;
  Prompts& prompts = microscope_.prompts();
  MoveToRow(selectedRow_, *targets);
  prompts.FlushInput();
}

// None for a row with a number outside 32 bits.
std::optional<DrivePageCtl::Positions> DrivePageCtl::TargetsOf(int row) const {
  Positions targets;
  for (std::size_t axis = 0; axis < FrameNosepiece->columnCount(); ++axis) {
    const std::optional<std::int32_t> steps = FrameNosepiece->Steps(row, axis);
    if (!steps) return {};
    targets.push_back(*steps);
  }
  return targets;
}

// The row keeps its stored position; leaving its field, or saving, takes what is shown.
void DrivePageCtl::MoveToRow(int row, const Positions& targets) {
  const MoveScope scope = BeginMove();
  std::int64_t distance = 0;
  for (std::size_t axis = 0; axis < targets.size(); ++axis) {
    distance += std::abs(std::int64_t{CurPosition(axis)} - targets[axis]);
    if (scope.IsLost()) return;
  }
  MoveAsyncStart(targets);
  if (scope.IsLost()) return;
  const auto isAtTarget = [&] {
    bool arrived = true;
    for (std::size_t axis = 0; axis < targets.size() && !scope.IsLost(); ++axis) {
      if (CurPosition(axis) != targets[axis]) arrived = false;
    }
    return arrived;
  };
  WatchMove(scope, microscope_.prompts(),
            {distance, isAtTarget, [this] { return IsMoveAsyncEnd(); }, [this] { MoveStop(); }});
  for (std::size_t axis = 0; axis < targets.size() && !scope.IsLost(); ++axis) {
    ShowPosition(scope, row, axis);
  }
}

}  // namespace mortane

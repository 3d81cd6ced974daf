#include "drives/ControlFocusDriveCtl.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <cstdlib>
#include <optional>
#include <utility>

#include "drives/CaptionedFrame.h"
#include "drives/PositionTableCtl.h"
#include "drives/TeachingSectionCtl.h"
#include "drives/clsControlZDrive.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/OptionGroup.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kAbsolute = 0;
constexpr int kRelative = 1;
constexpr int kFocusAxis = 0;
constexpr int kStageAxis = 1;
constexpr std::int16_t kUnknownEscape = 2;

// The position that means that none is set.
constexpr std::int32_t kNoSettingOfSimulator = 20000;
constexpr std::int32_t kNoSetting = -900000;

constexpr std::int32_t kLargeStep = 50;
constexpr std::int32_t kSmallStep = 1;

}  // namespace

struct ControlFocusDriveCtl::StepButton {
  MoveButton* ControlFocusDriveCtl::*button;
  std::int32_t steps;
};

const std::array<ControlFocusDriveCtl::StepButton, 4> ControlFocusDriveCtl::kStepButtons{{
    {&ControlFocusDriveCtl::ButtonUpLarge, kLargeStep},
    {&ControlFocusDriveCtl::ButtonUpSmall, kSmallStep},
    {&ControlFocusDriveCtl::ButtonDownLarge, -kLargeStep},
    {&ControlFocusDriveCtl::ButtonDownSmall, -kSmallStep},
}};

ControlFocusDriveCtl::ControlFocusDriveCtl(clsControlZDrive& drive, FollowNosepiece follow,
                                           QWidget* parent)
    : CardPage(u"Focus Drive Setting"_s, parent), drive_(drive), follow_(std::move(follow)) {
  Build();
  Connect();
}

void ControlFocusDriveCtl::Connect() {
  for (int axis = 0; axis < 2; ++axis) {
    connect(chkEscape[static_cast<std::size_t>(axis)], &CheckToggle::toggled, this,
            [this, axis] { StoreEscape(axis); });
  }
  connect(optUpperLimitation, &OptionGroup::selectionChanged, this,
          [this](int index) { drive_.curUpperLimit = index == 0 ? 0 : 1; });
  connect(optDownLimitation, &OptionGroup::selectionChanged, this,
          [this](int index) { drive_.curLowerLimit = index == 0 ? 0 : 1; });
  connect(optFocusCompensation, &OptionGroup::selectionChanged, this, [this](int index) {
    drive_.curFocusCompensation = kCompensationCodes[static_cast<std::size_t>(index)];
    follow_(index == kRelative);
  });
  connect(CheckRealMove, &QCheckBox::toggled, this, &ControlFocusDriveCtl::OnRealMove);
  connect(optNosepiece, &OptionGroup::selectionChanged, this, &ControlFocusDriveCtl::OnRow);
  for (const StepButton& row : kStepButtons) {
    connect(this->*row.button, &QAbstractButton::clicked, this,
            [this, steps = row.steps] { Step(steps); });
  }
  connect(ButtonStart, &QAbstractButton::clicked, this, &ControlFocusDriveCtl::Start);
}

void ControlFocusDriveCtl::LoadData() {
  LoadCompensation();
  LoadPositions();
  const ConnectedMicroscope& microscope = drive_.parent;
  const bool turns = microscope.IsControllable(accessory::kNosepiece);
  if (turns && microscope.IsMounted(accessory::kZFocusDrive) != kNotMounted) {
    CheckRealMove->setChecked(true);  // prepares the drive by itself when it was not ticked
    drive_.MoveStart();
  }
  FrameZNose->hide();
  FrameUpperLimitation->setVisible(turns);
  LoadLowerLimit();
  LoadEscape();
}

// Options after the one that is selected keep their visibility.
void ControlFocusDriveCtl::LoadCompensation() {
  OptionGroup& options = *optFocusCompensation;
  const std::int32_t code = drive_.curFocusCompensation;
  const int selected = CompensationIndex(code);
  for (int i = 0; i < options.count(); ++i) {
    if (code == kUnknown) options.button(i)->hide();
    if (code != kUnknown && (selected < 0 || i <= selected)) options.button(i)->show();
  }
  if (code != kUnknown && selected < 0) options.clear();
  options.select(selected);
  options.button(kAbsolute)->hide();
}

void ControlFocusDriveCtl::LoadPositions() {
  const bool simulated = drive_.parent.lConnectDevice == kSimulator;
  FrameNosepiece->Load(drive_.NoseCount, simulated ? kNoSettingOfSimulator : kNoSetting);
}

void ControlFocusDriveCtl::LoadLowerLimit() {
  const std::int32_t limit = drive_.curLowerLimit;
  const bool hasCondenser = drive_.parent.IsMounted(accessory::kCondenser) != kNotMounted;
  const bool known = !hasCondenser && limit != kUnknown;
  FrameDownLimitation->setEnabled(known);
  for (int i = 0; i < optDownLimitation->count(); ++i) {
    optDownLimitation->button(i)->setEnabled(known);
  }
  if (!known) return;
  FrameDownLimitation->show();
  if (optDownLimitation->button(limit) == nullptr) optDownLimitation->clear();
  optDownLimitation->select(limit);
}

void ControlFocusDriveCtl::LoadEscape() {
  const EscapeFirmware firmware = drive_.BodyFirmware();
  const bool known = firmware == EscapeFirmware::With;
  const bool hasStage = drive_.parent.IsMounted(accessory::kXYStage) != kNotMounted;
  frmEscapeSetting->setEnabled(known);
  EnableEscape(kFocusAxis, known);
  EnableEscape(kStageAxis, known && hasStage);
  if (firmware == EscapeFirmware::Without) {
    chkEscape[kFocusAxis]->setChecked(true);
    StoreEscape(kFocusAxis);  // also when it was on before
    return;
  }
  ShowEscape(kFocusAxis);
  frmEscapeSetting->show();
  if (hasStage) ShowEscape(kStageAxis);
}

void ControlFocusDriveCtl::EnableEscape(int axis, bool enabled) {
  chkEscape[static_cast<std::size_t>(axis)]->setEnabled(enabled);
  lblEscape[static_cast<std::size_t>(axis)]->setEnabled(enabled);
}

void ControlFocusDriveCtl::ShowEscape(int axis) {
  CheckToggle& box = *chkEscape[static_cast<std::size_t>(axis)];
  const std::int16_t flag = drive_.SetEscape(axis);
  if (flag == kUnknownEscape) {
    box.SetUnknown();
  } else {
    box.setChecked(flag != 0);
  }
}

void ControlFocusDriveCtl::StoreEscape(int axis) {
  const CheckToggle& box = *chkEscape[static_cast<std::size_t>(axis)];
  const std::int16_t shown = box.isChecked() ? 1 : 0;
  drive_.SetEscape(axis, box.isUnknown() ? kUnknownEscape : shown);
}

void ControlFocusDriveCtl::SaveData() {
  FrameNosepiece->Save();
}

void ControlFocusDriveCtl::SetNosePosition() {
  const std::int32_t address = drive_.NosePosition();
  if (address > 0) optNosepiece->select(address - 1);
}

void ControlFocusDriveCtl::OnRealMove(bool real) {
  if (real) {
    drive_.MoveStart();
  } else {
    selectedRow_ = -1;
  }
}

// A section that is hidden asks nothing: nobody would know what is meant.
void ControlFocusDriveCtl::OnRow(int row) {
  Prompts& prompts = drive_.parent.prompts();
  {
    // The pointer is set and restored before the row is stored.
    const HourglassScope hourglass(prompts);
  }
  selectedRow_ = row;
  if (!optNosepiece->button(row)->isVisibleTo(FrameBase)) return;
  const MoveScope scope(moving_, drive_.parent);
  const Answer answer = prompts.MsgBox(
      "Please move Focus Position with Handle.\r\nIf Focus Position is OK, Click OK Button",
      box::kOkCancel, "Move Focus Postion");
  if (answer == Answer::Ok && !scope.IsLost()) Teach(scope);
}

// Clicks made while the move blocked would each move the drive again.
void ControlFocusDriveCtl::Step(std::int32_t steps) {
  if (*moving_) return;
  Prompts& prompts = drive_.parent.prompts();
  if (CheckRealMove->isChecked()) {
    const MoveScope scope(moving_, drive_.parent);
    drive_.Move(steps);
    if (!scope.IsLost()) Teach(scope);
  }
  prompts.FlushInput();
}

// Shows the drive's position in the selected row and stores it; 0 is shown only.
void ControlFocusDriveCtl::Teach(const MoveScope& scope) {
  const int row = selectedRow_;
  if (row >= 0 && ShowPosition(scope, row) != 0) FrameNosepiece->Store(row);
}

// Answers the position; 0 when the scope was lost meanwhile.
std::int32_t ControlFocusDriveCtl::ShowPosition(const MoveScope& scope, int row) {
  const std::int32_t position = drive_.CurPosition();
  if (scope.IsLost()) return 0;
  FrameNosepiece->Show(row, position);
  return position;
}

// A row that the nosepiece does not have is hidden and empty, which would mean 0.
void ControlFocusDriveCtl::Start() {
  if (*moving_ || selectedRow_ < 0 || !CheckRealMove->isChecked()) return;
  if (optNosepiece->button(selectedRow_)->isHidden()) return;
  const std::optional<std::int32_t> target = FrameNosepiece->Steps(selectedRow_);
  if (!target) return;
  Prompts& prompts = drive_.parent.prompts();
  MoveToRow(selectedRow_, *target);
  prompts.FlushInput();
}

// The row keeps its stored position; leaving its field, or saving, takes what is shown.
void ControlFocusDriveCtl::MoveToRow(int row, std::int32_t target) {
  const clsControlZDrive& drive = drive_;
  const MoveScope scope(moving_, drive.parent);
  const std::int64_t distance = std::abs(std::int64_t{drive.CurPosition()} - target);
  if (scope.IsLost()) return;
  drive.MoveAsyncStart(target);
  WatchMove(scope, drive.parent.prompts(),
            {distance, [&] { return drive.CurPosition() == target; },
             [&] { return drive.IsMoveAsyncEnd(); }, [&] { drive.MoveStop(); }});
  if (!scope.IsLost()) ShowPosition(scope, row);
}

}  // namespace mortane

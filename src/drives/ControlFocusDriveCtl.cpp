#include "drives/ControlFocusDriveCtl.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSignalBlocker>
#include <utility>

#include "drives/CaptionedFrame.h"
#include "drives/clsControlZDrive.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/OptionGroup.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kAbsolute = 0;
constexpr int kRelative = 1;
constexpr int kFocusAxis = clsControlZDrive::kFocusAxis;
constexpr int kStageAxis = clsControlZDrive::kStageAxis;
constexpr std::int16_t kUnknownEscape = clsControlZDrive::kUnknownEscape;

// The position that means that none is set.
constexpr std::int32_t kNoSettingOfSimulator = 20000;
constexpr std::int32_t kNoSetting = -900000;

bool HasStage(const clsControlZDrive& drive) {
  return drive.parent.IsMounted(accessory::kXYStage) != kNotMounted;
}

bool CanMove(const clsControlZDrive& drive) {
  return drive.parent.IsControllable(accessory::kNosepiece) &&
         drive.parent.IsMounted(accessory::kZFocusDrive) != kNotMounted;
}

}  // namespace

ControlFocusDriveCtl::ControlFocusDriveCtl(clsControlZDrive& drive, FollowNosepiece follow,
                                           QWidget* parent)
    : DrivePageCtl(u"Focus Drive Setting"_s, drive.parent, parent),
      drive_(drive),
      follow_(std::move(follow)) {
  Build();
  StoreEdits();
}

void ControlFocusDriveCtl::StoreEdits() {
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
}

void ControlFocusDriveCtl::LoadData() {
  LoadCompensation(drive_.curFocusCompensation);
  LoadPositions();
  if (CanMove(drive_) && !PrepareMoves()) return;
  LoadRest(drive_.BodyFirmware());
}

void ControlFocusDriveCtl::LoadRest(EscapeFirmware bodyFirmware) {
  FrameZNose->hide();
  FrameUpperLimitation->setVisible(drive_.parent.IsControllable(accessory::kNosepiece));
  LoadLowerLimit();
  LoadEscape(bodyFirmware);
}

// The handlers of the controls that LoadData changes store what the unit holds already. Only the
// choice of a compensation and the escape of a body without it change anything.
void ControlFocusDriveCtl::Load(Loading& loading, clsControlZDrive& drive,
                                const FollowNosepiece& follow) {
  loading.compensation = drive.curFocusCompensation;
  const int option = CompensationIndex(loading.compensation);
  if (option >= 0 && option != loading.option) follow(option == kRelative);
  loading.option = option;
  if (CanMove(drive) && !loading.PrepareMoves(drive)) return;
  loading.firmware = drive.BodyFirmware();
  if (loading.firmware == EscapeFirmware::Without) drive.SetEscape(kFocusAxis, 1);
}

void ControlFocusDriveCtl::Fill(const Loading& loading) {
  const QSignalBlocker quietCompensation(optFocusCompensation);
  const QSignalBlocker quietLimit(optDownLimitation);
  const QSignalBlocker quietFocus(chkEscape[kFocusAxis]);
  const QSignalBlocker quietStage(chkEscape[kStageAxis]);
  LoadCompensation(loading.compensation);
  LoadPositions();
  LoadRest(loading.firmware);
}

// Kept: options after the one that is selected keep their visibility.
void ControlFocusDriveCtl::LoadCompensation(std::int32_t code) {
  OptionGroup& options = *optFocusCompensation;
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

void ControlFocusDriveCtl::LoadEscape(EscapeFirmware firmware) {
  const bool known = firmware == EscapeFirmware::With;
  const bool hasStage = HasStage(drive_);
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

void ControlFocusDriveCtl::MoveStart() const {
  drive_.MoveStart();
}

std::int32_t ControlFocusDriveCtl::NosePosition() const {
  return drive_.NosePosition();
}

std::int32_t ControlFocusDriveCtl::CurPosition(std::size_t /*axis*/) const {
  return drive_.CurPosition();
}

void ControlFocusDriveCtl::Move(std::size_t /*axis*/, std::int32_t delta) const {
  drive_.Move(delta);
}

void ControlFocusDriveCtl::MoveAsyncStart(const std::vector<std::int32_t>& targets) const {
  drive_.MoveAsyncStart(targets.front());
}

bool ControlFocusDriveCtl::IsMoveAsyncEnd() const {
  return drive_.IsMoveAsyncEnd();
}

void ControlFocusDriveCtl::MoveStop() const {
  drive_.MoveStop();
}

// No prompt while the section is hidden: its rows cannot be seen.
void ControlFocusDriveCtl::RowSelected(int row) {
  if (!optNosepiece->button(row)->isVisibleTo(FrameBase)) return;
  const MoveScope scope = BeginMove();
  const Answer answer = drive_.parent.prompts().MsgBox(
      "Please move Focus Position with Handle.\r\nIf Focus Position is OK, Click OK Button",
      box::kOkCancel, "Move Focus Postion");
  if (answer == Answer::Ok && !scope.IsLost()) ShowInSelectedRow(scope);
}

// Kept: a position of 0 is not stored, and the table keeps its entry.
void ControlFocusDriveCtl::PositionShown(int row, std::int32_t position) {
  if (position != 0) FrameNosepiece->Store(row);
}

}  // namespace mortane

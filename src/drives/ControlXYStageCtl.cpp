#include "drives/ControlXYStageCtl.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QVBoxLayout>
#include <cstdlib>
#include <optional>

#include "drives/CaptionedFrame.h"
#include "drives/PositionTableCtl.h"
#include "drives/TeachingSectionCtl.h"
#include "drives/clsControlXYDrive.h"
#include "widgets/Card.h"
#include "widgets/OptionGroup.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr double kFarthestMicrometres = 50000;  // either way

constexpr std::int32_t kLargeStep = 50;
constexpr std::int32_t kSmallStep = 1;

constexpr std::size_t kX = 0;
constexpr std::size_t kY = 1;

}  // namespace

struct ControlXYStageCtl::Axis {
  std::int32_t (clsControlXYDrive::*position)() const;
  void (clsControlXYDrive::*move)(std::int32_t delta) const;
};

const std::array<ControlXYStageCtl::Axis, 2> ControlXYStageCtl::kAxes{{
    {&clsControlXYDrive::CurPositionX, &clsControlXYDrive::MoveX},
    {&clsControlXYDrive::CurPositionY, &clsControlXYDrive::MoveY},
}};

struct ControlXYStageCtl::StepButton {
  MoveDirection direction;
  MoveSize size;
  MoveButton* ControlXYStageCtl::*button;
  std::size_t axis;
  std::int32_t steps;
};

// Up is the negative direction of Y.
const std::array<ControlXYStageCtl::StepButton, 8> ControlXYStageCtl::kStepButtons{{
    {MoveDirection::Left, MoveSize::Large, &ControlXYStageCtl::ButtonLeftLarge, kX, -kLargeStep},
    {MoveDirection::Left, MoveSize::Small, &ControlXYStageCtl::ButtonLeftSmall, kX, -kSmallStep},
    {MoveDirection::Right, MoveSize::Large, &ControlXYStageCtl::ButtonRightLarge, kX, kLargeStep},
    {MoveDirection::Right, MoveSize::Small, &ControlXYStageCtl::ButtonRightSmall, kX, kSmallStep},
    {MoveDirection::Up, MoveSize::Large, &ControlXYStageCtl::ButtonUpLarge, kY, -kLargeStep},
    {MoveDirection::Up, MoveSize::Small, &ControlXYStageCtl::ButtonUpSmall, kY, -kSmallStep},
    {MoveDirection::Down, MoveSize::Large, &ControlXYStageCtl::ButtonDownLarge, kY, kLargeStep},
    {MoveDirection::Down, MoveSize::Small, &ControlXYStageCtl::ButtonDownSmall, kY, kSmallStep},
}};

ControlXYStageCtl::ControlXYStageCtl(clsControlXYDrive& stage, QWidget* parent)
    : CardPage(u"XY Stage Setting"_s, parent), stage_(stage) {
  Build();
  Connect();
}

void ControlXYStageCtl::Build() {
  const TeachingSection section = MakeTeachingSection(
      {"Frame1",
       "Pitch adjustment to Magnification",
       {"Absolute", "ON", "OFF"},
       "FrameXYControl",
       "XY Control"},
      stage_.parent.prompts(),
      {{"TextNosepieceX", "X", -kFarthestMicrometres, kFarthestMicrometres,
        [this](std::int32_t address) { return stage_.PositionX(address); },
        [this](std::int32_t address, std::int32_t steps) { stage_.PositionX(address, steps); }},
       {"TextNosepieceY", "Y", -kFarthestMicrometres, kFarthestMicrometres,
        [this](std::int32_t address) { return stage_.PositionY(address); },
        [this](std::int32_t address, std::int32_t steps) { stage_.PositionY(address, steps); }}},
      MoveCross::Axes::Both, FrameBase);
  FrameBase->body()->addWidget(section.frame);
  FrameBase->body()->addStretch(1);
  Frame1 = section.frame;
  optFocusCompensation = section.compensation;
  FrameNosepiece = section.positions;
  optNosepiece = FrameNosepiece->options();
  TextNosepieceX = FrameNosepiece->fields(kX);
  TextNosepieceY = FrameNosepiece->fields(kY);
  FrameXYControl = section.control;
  CheckRealMove = section.realMove;
  ButtonStart = section.cross->middle();
  for (const StepButton& row : kStepButtons)
    this->*row.button = section.cross->button(row.direction, row.size);
}

void ControlXYStageCtl::Connect() {
  connect(optFocusCompensation, &OptionGroup::selectionChanged, this, [this](int index) {
    stage_.curFocusCompensation = kCompensationCodes[static_cast<std::size_t>(index)];
  });
  connect(CheckRealMove, &QCheckBox::toggled, this, &ControlXYStageCtl::OnRealMove);
  connect(optNosepiece, &OptionGroup::selectionChanged, this, &ControlXYStageCtl::OnRow);
  for (const StepButton& row : kStepButtons)
    connect(this->*row.button, &QAbstractButton::clicked, this, [this, &row] { Step(row); });
  connect(ButtonStart, &QAbstractButton::clicked, this, &ControlXYStageCtl::Start);
}

// Without any stage its controls are shown, and preparing it fails with a box.
void ControlXYStageCtl::LoadData() {
  LoadCompensation();
  FrameNosepiece->Load(stage_.NoseCount);
  const ConnectedMicroscope& microscope = stage_.parent;
  const bool hasStage = microscope.IsMounted(accessory::kXYStage) != kNotMounted;
  const bool turns = microscope.IsControllable(accessory::kNosepiece);
  FrameXYControl->setVisible(turns || !hasStage);
  if (hasStage && !turns) return;
  CheckRealMove->setChecked(true);  // prepares the stage by itself when it was not ticked
  stage_.MoveStart();
}

void ControlXYStageCtl::showEvent(QShowEvent* event) {
  CardPage::showEvent(event);
  LoadCompensation();
}

void ControlXYStageCtl::LoadCompensation() {
  OptionGroup& options = *optFocusCompensation;
  const std::int32_t code = stage_.curFocusCompensation;
  const int selected = CompensationIndex(code);
  for (int i = 0; i < options.count(); ++i) options.button(i)->setVisible(code != kUnknown);
  if (code != kUnknown && selected < 0) options.clear();
  options.select(selected);
}

void ControlXYStageCtl::SaveData() {
  FrameNosepiece->Save();
}

void ControlXYStageCtl::SetNosePosition() {
  const std::int32_t address = stage_.NosePosition();
  if (address > 0) optNosepiece->select(address - 1);
}

void ControlXYStageCtl::OnRealMove(bool real) {
  if (real) {
    stage_.MoveStart();
  } else {
    selectedRow_ = -1;
  }
}

void ControlXYStageCtl::OnRow(int row) {
  {
    // The pointer is set and restored before the row is stored.
    const HourglassScope hourglass(stage_.parent.prompts());
  }
  selectedRow_ = row;
}

// Clicks made while the move blocked would each move the stage again.
void ControlXYStageCtl::Step(const StepButton& button) {
  if (*moving_) return;
  Prompts& prompts = stage_.parent.prompts();
  if (CheckRealMove->isChecked()) MoveAndShow(button);
  prompts.FlushInput();
}

void ControlXYStageCtl::MoveAndShow(const StepButton& button) {
  const MoveScope scope(moving_, stage_.parent);
  (stage_.*kAxes[button.axis].move)(button.steps);
  if (!scope.IsLost() && selectedRow_ >= 0) ShowPosition(scope, selectedRow_, button.axis);
}

// False when the scope was lost meanwhile.
bool ControlXYStageCtl::ShowPosition(const MoveScope& scope, int row, std::size_t axis) {
  const std::int32_t position = (stage_.*kAxes[axis].position)();
  if (scope.IsLost()) return false;
  FrameNosepiece->Show(row, position, axis);
  return true;
}

// A row that the nosepiece does not have is hidden and empty, which would mean 0.
void ControlXYStageCtl::Start() {
  if (*moving_ || selectedRow_ < 0 || !CheckRealMove->isChecked()) return;
  if (optNosepiece->button(selectedRow_)->isHidden()) return;
  const std::optional<std::int32_t> x = FrameNosepiece->Steps(selectedRow_, kX);
  const std::optional<std::int32_t> y = FrameNosepiece->Steps(selectedRow_, kY);
  if (!x || !y) return;
  Prompts& prompts = stage_.parent.prompts();
  MoveToRow(selectedRow_, *x, *y);
  prompts.FlushInput();
}

void ControlXYStageCtl::MoveToRow(int row, std::int32_t x, std::int32_t y) {
  const clsControlXYDrive& stage = stage_;
  const MoveScope scope(moving_, stage.parent);
  const std::int64_t distanceX = std::abs(std::int64_t{stage.CurPositionX()} - x);
  if (scope.IsLost()) return;
  const std::int64_t distanceY = std::abs(std::int64_t{stage.CurPositionY()} - y);
  if (scope.IsLost()) return;
  stage.MoveAsyncStart(x, y);
  const auto isAtTarget = [&] {
    const std::int32_t nowX = stage.CurPositionX();
    return !scope.IsLost() && stage.CurPositionY() == y && nowX == x;
  };
  WatchMove(scope, stage.parent.prompts(),
            {distanceX + distanceY, isAtTarget, [&] { return stage.IsMoveAsyncEnd(); },
             [&] { stage.MoveStop(); }});
  if (!scope.IsLost() && ShowPosition(scope, row, kX)) ShowPosition(scope, row, kY);
}

}  // namespace mortane

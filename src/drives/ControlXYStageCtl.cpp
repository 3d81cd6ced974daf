#include "drives/ControlXYStageCtl.h"

#include <QAbstractButton>

#include "drives/CaptionedFrame.h"
#include "drives/clsControlXYDrive.h"
#include "widgets/Card.h"
#include "widgets/OptionGroup.h"
#include "widgets/TextField.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr double kFarthestMicrometres = 50000;  // either way

constexpr std::size_t kX = 0;
constexpr std::size_t kY = 1;

// Kept: without any stage its controls are shown, and preparing it fails with a box.
bool CanMove(const clsControlXYDrive& stage) {
  return stage.parent.IsControllable(accessory::kNosepiece) ||
         stage.parent.IsMounted(accessory::kXYStage) == kNotMounted;
}

}  // namespace

struct ControlXYStageCtl::StepButton {
  Control<MoveButton> ControlXYStageCtl::*button;
  MoveDirection direction;
  MoveSize size;
  std::size_t axis;
  std::int32_t steps;
};

// Up is the negative direction of Y.
constexpr std::array<ControlXYStageCtl::StepButton, 8> ControlXYStageCtl::kStepButtons{{
    {&ControlXYStageCtl::ButtonLeftLarge, MoveDirection::Left, MoveSize::Large, kX, -kLargeStep},
    {&ControlXYStageCtl::ButtonLeftSmall, MoveDirection::Left, MoveSize::Small, kX, -kSmallStep},
    {&ControlXYStageCtl::ButtonRightLarge, MoveDirection::Right, MoveSize::Large, kX, kLargeStep},
    {&ControlXYStageCtl::ButtonRightSmall, MoveDirection::Right, MoveSize::Small, kX, kSmallStep},
    {&ControlXYStageCtl::ButtonUpLarge, MoveDirection::Up, MoveSize::Large, kY, -kLargeStep},
    {&ControlXYStageCtl::ButtonUpSmall, MoveDirection::Up, MoveSize::Small, kY, -kSmallStep},
    {&ControlXYStageCtl::ButtonDownLarge, MoveDirection::Down, MoveSize::Large, kY, kLargeStep},
    {&ControlXYStageCtl::ButtonDownSmall, MoveDirection::Down, MoveSize::Small, kY, kSmallStep},
}};

ControlXYStageCtl::ControlXYStageCtl(clsControlXYDrive& stage, QWidget* parent)
    : DrivePageCtl(u"XY Stage Setting"_s, stage.parent, parent), stage_(stage) {
  Build();
  connect(optFocusCompensation, &OptionGroup::selectionChanged, this, [this](int index) {
    stage_.curFocusCompensation = kCompensationCodes[static_cast<std::size_t>(index)];
  });
}

void ControlXYStageCtl::Build() {
  const TeachingParts parts = AddTeaching(
      {"Pitch adjustment to Magnification", {"Absolute", "ON", "OFF"}, "XY Control"},
      {{"X", -kFarthestMicrometres, kFarthestMicrometres,
        [this](std::int32_t address) { return stage_.PositionX(address); },
        [this](std::int32_t address, std::int32_t steps) { stage_.PositionX(address, steps); }},
       {"Y", -kFarthestMicrometres, kFarthestMicrometres,
        [this](std::int32_t address) { return stage_.PositionY(address); },
        [this](std::int32_t address, std::int32_t steps) { stage_.PositionY(address, steps); }}},
      MoveCross::Axes::Both);
  Frame1 = parts.frame;
  FrameXYControl = parts.control;
  for (std::size_t row = 0; row < TextNosepieceX.size(); ++row) {
    TextNosepieceX.Set(row, FrameNosepiece->field(row, kX));
    TextNosepieceY.Set(row, FrameNosepiece->field(row, kY));
  }
  for (const StepButton& row : kStepButtons) {
    this->*row.button = parts.cross->button(row.direction, row.size);
    ConnectStep(*(this->*row.button), row.steps, row.axis);
  }
}

void ControlXYStageCtl::LoadData() {
  Fill();
  if (CanMove(stage_)) PrepareMoves();
}

void ControlXYStageCtl::Load(DriveLoading& loading, const clsControlXYDrive& stage) {
  if (CanMove(stage)) loading.PrepareMoves(stage);
}

void ControlXYStageCtl::Fill() {
  LoadCompensation();
  LoadPositions();
  FrameXYControl->setVisible(CanMove(stage_));
}

void ControlXYStageCtl::LoadPositions() {
  FrameNosepiece->Load(stage_.NoseCount);
}

void ControlXYStageCtl::showEvent(QShowEvent* event) {
  DrivePageCtl::showEvent(event);
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

void ControlXYStageCtl::MoveStart() const {
  stage_.MoveStart();
}

std::int32_t ControlXYStageCtl::NosePosition() const {
  return stage_.NosePosition();
}

std::int32_t ControlXYStageCtl::CurPosition(std::size_t axis) const {
  return axis == kX ? stage_.CurPositionX() : stage_.CurPositionY();
}

void ControlXYStageCtl::Move(std::size_t axis, std::int32_t delta) const {
  if (axis == kX) {
    stage_.MoveX(delta);
  } else {
    stage_.MoveY(delta);
  }
}

void ControlXYStageCtl::MoveAsyncStart(const std::vector<std::int32_t>& targets) const {
  stage_.MoveAsyncStart(targets[kX], targets[kY]);
}

bool ControlXYStageCtl::IsMoveAsyncEnd() const {
  return stage_.IsMoveAsyncEnd();
}

void ControlXYStageCtl::MoveStop() const {
  stage_.MoveStop();
}

}  // namespace mortane

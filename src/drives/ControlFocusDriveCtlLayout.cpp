// Where the controls of the focus drive page stand.
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

#include "drives/CaptionedFrame.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/clsControlZDrive.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/OptionGroup.h"
#include "widgets/ReflowGrid.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr double kLowestMicrometres = -100000;
constexpr double kHighestMicrometres = 50000;

// The trailing blanks belong to the captions.
constexpr std::array kEscapeLabels{"Focus Drive  ", "XY Stage"};

}  // namespace

struct ControlFocusDriveCtl::Limit {
  const char* caption;
  std::array<const char*, 2> options;
  Control<InnerFrame> ControlFocusDriveCtl::*frame;
  Control<OptionGroup> ControlFocusDriveCtl::*group;
};

constexpr std::array<ControlFocusDriveCtl::Limit, 2> ControlFocusDriveCtl::kLimits{{
    {"Upper Limit",
     {"ON", "OFF ( default )"},
     &ControlFocusDriveCtl::FrameUpperLimitation,
     &ControlFocusDriveCtl::optUpperLimitation},
    {"Lower Limit",
     {"-15mm ( default )", "-25mm  "},
     &ControlFocusDriveCtl::FrameDownLimitation,
     &ControlFocusDriveCtl::optDownLimitation},
}};

struct ControlFocusDriveCtl::StepButton {
  Control<MoveButton> ControlFocusDriveCtl::*button;
  MoveDirection direction;
  MoveSize size;
  std::int32_t steps;
};

constexpr std::array<ControlFocusDriveCtl::StepButton, 4> ControlFocusDriveCtl::kStepButtons{{
    {&ControlFocusDriveCtl::ButtonUpLarge, MoveDirection::Up, MoveSize::Large, kLargeStep},
    {&ControlFocusDriveCtl::ButtonUpSmall, MoveDirection::Up, MoveSize::Small, kSmallStep},
    {&ControlFocusDriveCtl::ButtonDownLarge, MoveDirection::Down, MoveSize::Large, -kLargeStep},
    {&ControlFocusDriveCtl::ButtonDownSmall, MoveDirection::Down, MoveSize::Small, -kSmallStep},
}};

void ControlFocusDriveCtl::Build() {
  auto* frames = new ReflowGrid(ReflowGrid::Order::RowByRow, 1 + static_cast<int>(kLimits.size()),
                                grid::kBetweenGroups, grid::kBetweenGroups);
  FrameBase->body()->addLayout(frames);
  frames->addWidget(BuildEscape());
  for (const Limit& limit : kLimits) frames->addWidget(BuildLimit(limit));
  AlignRows();
  BuildTeaching();
}

InnerFrame* ControlFocusDriveCtl::BuildEscape() {
  auto* frame = new InnerFrame(u"Escape"_s, FrameBase);
  frmEscapeSetting = frame;
  auto* cells = new QGridLayout;
  cells->setHorizontalSpacing(grid::kBetweenGroups);
  cells->setVerticalSpacing(grid::kBetweenControls);
  for (std::size_t axis = 0; axis < chkEscape.size(); ++axis) {
    const auto row = static_cast<int>(axis);
    const QString text = QLatin1String(kEscapeLabels[axis]);
    lblEscape.Set(axis, new QLabel(text, frame));
    chkEscape.Set(axis, new CheckToggle(frame));
    chkEscape[axis]->setAccessibleName(text.trimmed());
    lblEscape[axis]->setBuddy(chkEscape[axis]);
    cells->addWidget(lblEscape[axis], row, 0);
    cells->addWidget(chkEscape[axis], row, 1);
  }
  cells->setColumnStretch(2, 1);
  frame->body()->addLayout(cells);
  frame->body()->addStretch();
  return frame;
}

InnerFrame* ControlFocusDriveCtl::BuildLimit(const Limit& limit) {
  auto* frame = new InnerFrame(QLatin1String(limit.caption), FrameBase);
  auto* options = new OptionGroup(this);
  this->*limit.frame = frame;
  this->*limit.group = options;
  for (const char* caption : limit.options) {
    frame->body()->addWidget(options->addOption(QLatin1String(caption), frame));
  }
  frame->body()->addStretch();
  return frame;
}

// The rows of the three frames stand on one line.
void ControlFocusDriveCtl::AlignRows() {
  for (std::size_t row = 0; row < chkEscape.size(); ++row) {
    QAbstractButton* upper = optUpperLimitation->button(static_cast<int>(row));
    QAbstractButton* lower = optDownLimitation->button(static_cast<int>(row));
    const int height = std::max(chkEscape[row]->sizeHint().height(), upper->sizeHint().height());
    for (QAbstractButton* button : {static_cast<QAbstractButton*>(chkEscape[row]), upper, lower}) {
      button->setMinimumHeight(height);
    }
  }
}

void ControlFocusDriveCtl::BuildTeaching() {
  const TeachingParts parts = AddTeaching(
      {"Z Focus Correction for Pafocality", {"Absolute", "ON ( default )", "OFF"}, "Z Control"},
      {{nullptr, kLowestMicrometres, kHighestMicrometres,
        [this](std::int32_t address) { return drive_.Position(address); },
        [this](std::int32_t address, std::int32_t steps) { drive_.Position(address, steps); }}},
      MoveCross::Axes::Vertical);
  FrameZNose = parts.frame;
  FrameZControl = parts.control;
  for (std::size_t row = 0; row < TextNosepiece.size(); ++row) {
    TextNosepiece.Set(row, FrameNosepiece->field(row));
  }
  for (const StepButton& row : kStepButtons) {
    this->*row.button = parts.cross->button(row.direction, row.size);
    ConnectStep(*(this->*row.button), row.steps);
  }
}

}  // namespace mortane

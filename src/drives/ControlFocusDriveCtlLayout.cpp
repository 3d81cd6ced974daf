// Where the controls of the focus drive page stand.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "drives/CaptionedFrame.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/PositionTableCtl.h"
#include "drives/TeachingSectionCtl.h"
#include "drives/clsControlZDrive.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/Named.h"
#include "widgets/OptionGroup.h"
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
  const char* frameName;
  const char* caption;
  const char* arrayName;
  std::array<const char*, 2> options;
  OptionGroup* ControlFocusDriveCtl::*group;
};

void ControlFocusDriveCtl::Build() {
  auto* row = new QHBoxLayout;
  row->setSpacing(grid::kBetweenGroups);
  FrameBase->body()->addLayout(row);
  frmEscapeSetting = BuildEscape();
  FrameUpperLimitation = BuildLimit({"FrameUpperLimitation",
                                     "Upper Limit",
                                     "optUpperLimitation",
                                     {"ON", "OFF ( default )"},
                                     &ControlFocusDriveCtl::optUpperLimitation});
  FrameDownLimitation = BuildLimit({"FrameDownLimitation",
                                    "Lower Limit",
                                    "optDownLimitation",
                                    {"-15mm ( default )", "-25mm  "},
                                    &ControlFocusDriveCtl::optDownLimitation});
  for (InnerFrame* frame : {frmEscapeSetting, FrameUpperLimitation, FrameDownLimitation})
    row->addWidget(frame, 1);
  BuildTeaching();
  FrameBase->body()->addStretch(1);
}

InnerFrame* ControlFocusDriveCtl::BuildEscape() {
  auto* frame = Named(new InnerFrame(u"Escape"_s, FrameBase), "frmEscapeSetting");
  auto* cells = new QGridLayout;
  cells->setHorizontalSpacing(grid::kBetweenGroups);
  cells->setVerticalSpacing(grid::kUnit);
  for (std::size_t axis = 0; axis < chkEscape.size(); ++axis) {
    const auto row = static_cast<int>(axis);
    const QString text = QLatin1String(kEscapeLabels[axis]);
    lblEscape[axis] = Named(new QLabel(text, frame), "lblEscape", row);
    chkEscape[axis] = Named(new CheckToggle(frame), "chkEscape", row);
    chkEscape[axis]->setAccessibleName(text.trimmed());
    lblEscape[axis]->setBuddy(chkEscape[axis]);
    cells->addWidget(lblEscape[axis], row, 0);
    cells->addWidget(chkEscape[axis], row, 1);
  }
  cells->setColumnStretch(2, 1);
  frame->body()->addLayout(cells);
  return frame;
}

InnerFrame* ControlFocusDriveCtl::BuildLimit(const Limit& limit) {
  auto* frame = Named(new InnerFrame(QLatin1String(limit.caption), FrameBase), limit.frameName);
  auto* options = this->*limit.group = new OptionGroup(this);
  for (const char* caption : limit.options) {
    frame->body()->addWidget(options->addOption(QLatin1String(caption), limit.arrayName, frame));
  }
  frame->body()->addStretch();
  return frame;
}

void ControlFocusDriveCtl::BuildTeaching() {
  const TeachingSection section = MakeTeachingSection(
      {"FrameZNose",
       "Z Focus Correction for Pafocality",
       {"Absolute", "ON ( default )", "OFF"},
       "FrameZControl",
       "Z Control"},
      drive_.parent.prompts(),
      {{"TextNosepiece", nullptr, kLowestMicrometres, kHighestMicrometres,
        [this](std::int32_t address) { return drive_.Position(address); },
        [this](std::int32_t address, std::int32_t steps) { drive_.Position(address, steps); }}},
      MoveCross::Axes::Vertical, FrameBase);
  FrameBase->body()->addWidget(section.frame);
  FrameZNose = section.frame;
  optFocusCompensation = section.compensation;
  FrameNosepiece = section.positions;
  optNosepiece = FrameNosepiece->options();
  TextNosepiece = FrameNosepiece->fields();
  FrameZControl = section.control;
  CheckRealMove = section.realMove;
  ButtonStart = section.cross->middle();
  ButtonUpLarge = section.cross->button(MoveDirection::Up, MoveSize::Large);
  ButtonUpSmall = section.cross->button(MoveDirection::Up, MoveSize::Small);
  ButtonDownLarge = section.cross->button(MoveDirection::Down, MoveSize::Large);
  ButtonDownSmall = section.cross->button(MoveDirection::Down, MoveSize::Small);
}

}  // namespace mortane

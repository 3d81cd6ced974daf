// Where the controls stand that the drive pages have in common.
#include <QCheckBox>
#include <QRadioButton>
#include <QVBoxLayout>
#include <cstdlib>
#include <utility>

#include "drives/CaptionedFrame.h"
#include "drives/DrivePageCtl.h"
#include "drives/DrivePosition.h"
#include "widgets/Card.h"
#include "widgets/ClickFocus.h"
#include "widgets/FlowRow.h"
#include "widgets/OptionGroup.h"
#include "widgets/PairPanel.h"
#include "widgets/QtText.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kWidestCharacters = 190;  // of the card

}  // namespace

DrivePageCtl::TeachingParts DrivePageCtl::AddTeaching(const TeachingTexts& texts,
                                                      std::vector<PositionColumn> columns,
                                                      MoveCross::Axes axes) {
  auto* frame = new CaptionedFrame(QLatin1String(texts.caption), FrameBase);

  auto* compensation = new FlowRow(grid::kBetweenColumns, 0);
  optFocusCompensation = new OptionGroup(this);
  for (const char* caption : texts.compensations) {
    compensation->addWidget(optFocusCompensation->addOption(QLatin1String(caption), frame));
  }

  auto* parts = new PairPanel(frame);
  optNosepiece = new OptionGroup(this);
  FrameNosepiece =
      new PositionTableCtl(microscope_.prompts(), std::move(columns), *optNosepiece, parts);

  auto* control = new InnerFrame(QLatin1String(texts.controlCaption), parts);
  CheckRealMove = new QCheckBox(u"Is Real Move ?"_s, control);
  TakeFocusByClicks(*CheckRealMove);
  auto* cross = new MoveCross(axes, u"Start"_s, control);
  ButtonStart = cross->middle();
  control->body()->addWidget(CheckRealMove);
  control->body()->addSpacing(grid::kUnit);
  control->body()->addWidget(cross, 0, Qt::AlignHCenter);
  control->body()->addStretch();

  parts->SetParts(FrameNosepiece, 1, control, 1, PairPanel::Upper::Left);
  frame->body()->addLayout(compensation);
  frame->body()->addWidget(parts);
  FrameBase->body()->addWidget(frame);
  KeepCardToContents();

  connect(CheckRealMove, &QCheckBox::toggled, this, &DrivePageCtl::OnRealMove);
  connect(optNosepiece, &OptionGroup::selectionChanged, this, &DrivePageCtl::OnRow);
  connect(ButtonStart, &QAbstractButton::clicked, this, &DrivePageCtl::Start);
  return {frame, control, cross};
}

// On a large page the card is as tall as what it holds, and not much wider.
void DrivePageCtl::KeepCardToContents() {
  constexpr int kMuch = 100000;
  FrameBase->setMaximumWidth(FrameBase->fontMetrics().averageCharWidth() * kWidestCharacters);
  layout()->removeWidget(FrameBase);
  auto* row = new QHBoxLayout;
  row->addWidget(FrameBase, kMuch, Qt::AlignTop);
  row->addStretch(1);
  static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void DrivePageCtl::ConnectStep(MoveButton& button, std::int32_t steps, std::size_t axis) {
  button.setToolTip(
      u"%1: %2 µm"_s.arg(button.accessibleName(), ToQString(TextOfSteps(std::abs(steps)))));
  connect(&button, &QAbstractButton::clicked, this, [this, axis, steps] { Step(axis, steps); });
}

}  // namespace mortane

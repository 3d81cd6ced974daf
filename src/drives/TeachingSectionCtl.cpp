#include "drives/TeachingSectionCtl.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "drives/CaptionedFrame.h"
#include "drives/PositionTableCtl.h"
#include "widgets/Card.h"
#include "widgets/ClickFocus.h"
#include "widgets/Named.h"
#include "widgets/OptionGroup.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

QWidget* MakeCompensation(const TeachingTexts& texts, TeachingSection& section) {
  auto* row = new QWidget(section.frame);
  auto* cells = new QHBoxLayout(row);
  cells->setContentsMargins({});
  cells->setSpacing(grid::kBetweenColumns);
  section.compensation = new OptionGroup(section.frame);
  for (const char* caption : texts.compensations) {
    cells->addWidget(
        section.compensation->addOption(QLatin1String(caption), "optFocusCompensation", row));
  }
  cells->addStretch();
  return row;
}

void MakeControl(const TeachingTexts& texts, MoveCross::Axes axes, TeachingSection& section) {
  section.control =
      Named(new InnerFrame(QLatin1String(texts.controlCaption), section.frame), texts.controlName);
  section.realMove = Named(new QCheckBox(u"Is Real Move ?"_s, section.control), "CheckRealMove");
  TakeFocusByClicks(*section.realMove);
  section.cross = new MoveCross(axes, u"Start"_s, section.control);
  Named(section.cross->middle(), "ButtonStart");
  QVBoxLayout* body = section.control->body();
  body->addWidget(section.realMove);
  body->addSpacing(grid::kUnit);
  body->addWidget(section.cross, 0, Qt::AlignHCenter);
  body->addStretch();
}

}  // namespace

int CompensationIndex(std::int32_t code) {
  const auto* const found = std::find(kCompensationCodes.begin(), kCompensationCodes.end(), code);
  return found == kCompensationCodes.end() ? -1
                                           : static_cast<int>(found - kCompensationCodes.begin());
}

TeachingSection MakeTeachingSection(const TeachingTexts& texts, Prompts& prompts,
                                    std::vector<PositionColumn> columns, MoveCross::Axes axes,
                                    QWidget* parent) {
  TeachingSection section{};
  section.frame = Named(new CaptionedFrame(QLatin1String(texts.caption), parent), texts.frameName);
  QWidget* compensation = MakeCompensation(texts, section);
  section.positions =
      Named(new PositionTableCtl(prompts, std::move(columns), section.frame), "FrameNosepiece");
  MakeControl(texts, axes, section);

  auto* columnsRow = new QHBoxLayout;
  columnsRow->setSpacing(grid::kBetweenGroups);
  columnsRow->addWidget(section.positions, 1);
  columnsRow->addWidget(section.control, 1);
  QVBoxLayout* body = section.frame->body();
  body->addWidget(compensation);
  body->addLayout(columnsRow);
  return section;
}

}  // namespace mortane

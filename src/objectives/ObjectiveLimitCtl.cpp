#include "objectives/ObjectiveLimitCtl.h"

#include <QAbstractButton>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "objectives/clsLimitation.h"
#include "widgets/Card.h"
#include "widgets/FlowRow.h"
#include "widgets/OptionGroup.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kStageDown = 2;
constexpr std::int32_t kControllerWithoutStageDown = 5;
constexpr int kOptionColumn = 170;

// Kept: one of the texts begins with a blank. The others begin as much further right, so that the
// captions are in line.
QLabel* WrappedCaption(const char* text, QWidget* parent) {
  QLabel* label = CaptionLabel(QLatin1String(text), parent);
  label->setWordWrap(true);
  if (text[0] != ' ')
    label->setContentsMargins(label->fontMetrics().horizontalAdvance(u' '), 0, 0, 0);
  return label;
}

}  // namespace

struct ObjectiveLimitCtl::Rule {
  const char* caption;
  const char* explanation;
  std::array<const char*, 3> options;
  bool stageDownIsOptional;
  Control<QFrame> ObjectiveLimitCtl::*frame;
  Control<OptionGroup> ObjectiveLimitCtl::*group;
  Control<QLabel> ObjectiveLimitCtl::*label;
  std::int16_t clsLimitation::*value;
};

const ObjectiveLimitCtl::Rule ObjectiveLimitCtl::kRules[3]{
    {"",
     " Safety Setting (Change from 2.0x / Lower Obj. to 1 mm / Less W.D. Obj. )",
     {"Free (default)", "No Rotation", "Rotate After Stage going down"},
     true,
     &ObjectiveLimitCtl::frmIncrease,
     &ObjectiveLimitCtl::optPreventIncrease,
     &ObjectiveLimitCtl::Label8,
     &clsLimitation::curIncrease},
    {"Empty Position",
     "Rotate With Skipping empty data position",
     {"Use (default)", "Skip", nullptr},
     false,
     &ObjectiveLimitCtl::frmSkip,
     &ObjectiveLimitCtl::optSkipEmpty,
     &ObjectiveLimitCtl::Label9,
     &clsLimitation::curSkip},
    {"Immersion Objective IN/OUT Control",
     "Rotate Immersion Type",
     {"Free (default)", "No Rotation", "Rotate After Stage going down"},
     true,
     &ObjectiveLimitCtl::frmImmersion,
     &ObjectiveLimitCtl::optPreventImmersion,
     &ObjectiveLimitCtl::Label10,
     &clsLimitation::curImmersion},
};

ObjectiveLimitCtl::ObjectiveLimitCtl(clsLimitation& limits, QWidget* parent)
    : CardPage(u"Limitation Controls"_s, parent), limits_(limits) {
  for (const Rule& rule : kRules) AddRule(rule);
  AlignOptions();
  Label2 = WrappedCaption(
      "Limitation Controls are effective after rotating the nosepiece with interlock mode.",
      FrameBase);
  Label1 = WrappedCaption(
      "These functions are effective for rotating the nosepiece by buttons on the microscope",
      FrameBase);
  FrameBase->body()->addStretch();
  auto* notes = new QVBoxLayout;
  notes->setSpacing(grid::kUnit);
  notes->addWidget(Label2);
  notes->addWidget(Label1);
  FrameBase->body()->addLayout(notes);
}

void ObjectiveLimitCtl::AddRule(const Rule& rule) {
  auto* frame = new InnerFrame(QLatin1String(rule.caption), FrameBase);
  this->*rule.frame = frame;
  const QString explanation = QString::fromLatin1(rule.explanation).trimmed();
  // Without a caption the explanation tells its options from those of the others.
  if (frame->caption().isEmpty()) frame->setAccessibleName(explanation);
  frame->setAccessibleDescription(explanation);
  auto* group = new OptionGroup(this);
  this->*rule.group = group;
  auto* row = new FlowRow(grid::kBetweenColumns, 0);
  for (const char* text : rule.options) {
    if (text == nullptr) continue;
    row->addWidget(group->addOption(QLatin1String(text), frame));
  }
  frame->body()->addLayout(row);
  QLabel* label = WrappedCaption(rule.explanation, frame);
  this->*rule.label = label;
  frame->body()->addWidget(label);
  FrameBase->body()->addWidget(frame);
  connect(group, &OptionGroup::selectionChanged, this,
          [this, &rule](int index) { limits_.*rule.value = static_cast<std::int16_t>(index); });
}

// Options stand below those of the other rules.
void ObjectiveLimitCtl::AlignOptions() {
  for (int column = 0; column <= kStageDown; ++column) {
    int width = kOptionColumn;
    const auto forEach = [&](auto act) {
      for (const Rule& rule : kRules) {
        if (QAbstractButton* option = (this->*rule.group)->button(column)) act(*option);
      }
    };
    forEach(
        [&](const QAbstractButton& option) { width = std::max(width, option.sizeHint().width()); });
    forEach([&](QAbstractButton& option) { option.setMinimumWidth(width); });
  }
}

void ObjectiveLimitCtl::LoadData() {
  for (const Rule& rule : kRules) LoadRule(rule);
}

void ObjectiveLimitCtl::LoadRule(const Rule& rule) {
  const std::int16_t value = limits_.*rule.value;
  OptionGroup* group = this->*rule.group;
  (this->*rule.frame)->setEnabled(value >= 0);
  // A settings file may give a number that no option stands for.
  if (group->button(value) == nullptr) group->clear();
  if (value >= 0) group->select(value);
  if (!rule.stageDownIsOptional) return;
  group->button(kStageDown)->setEnabled(!limits_.parent.Controller(kControllerWithoutStageDown));
}

}  // namespace mortane

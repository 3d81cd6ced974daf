// Where the controls of the panel of knobs, buzzers, switches and remotes stand.
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <span>

#include "drives/ControlOtherCtl.h"
#include "widgets/Card.h"
#include "widgets/ClickFocus.h"
#include "widgets/ComboBox.h"
#include "widgets/Named.h"
#include "widgets/OptionGroup.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

using Page = ControlOtherCtl;

constexpr int kLabelColumn = 104;

// The buzzer's option without a caption, for a screen reader.
constexpr const char* kNamelessOption = "The two controllers differ";
constexpr std::array kShares{3, 2};

// Behind a knob's options: whether it is automatic, and how sensitive it is.
struct KnobControls {
  const char* checkName;
  QCheckBox* Page::*check;
  const char* comboName;
  ComboBox* Page::*combo;
};

constexpr KnobControls kFocusKnob{"CheckFocusAuto", &Page::CheckFocusAuto, "ComboFocus",
                                  &Page::ComboFocus};
constexpr KnobControls kStageKnob{"CheckStageAuto", &Page::CheckStageAuto, "ComboStage",
                                  &Page::ComboStage};

// A label and the options behind it, as far as the row has them. A named row is a frame.
struct OptionRow {
  const char* rowName;
  QFrame* Page::*row;
  const char* labelName;
  QLabel* Page::*label;
  const char* caption;
  const char* arrayName;
  OptionGroup* Page::*group;
  std::array<const char*, 3> options;
  const KnobControls* knob = nullptr;
};

constexpr std::array kKnobRows{
    OptionRow{"",
              nullptr,
              "lblFocusDrive",
              &Page::lblFocusDrive,
              "Focus Knob",
              "optAuto",
              &Page::optAuto,
              {"Auto", "Manual ( default )"},
              &kFocusKnob},
    OptionRow{"Frame1",
              &Page::Frame1,
              "lblXYStage",
              &Page::lblXYStage,
              "Stage Knob",
              "optXYAuto",
              &Page::optXYAuto,
              {"Auto", "Manual ( default )"},
              &kStageKnob},
};
constexpr std::array kRemoteRows{
    OptionRow{"Frame2",
              &Page::Frame2,
              "lblR_TLPOLED",
              &Page::lblR_TLPOLED,
              "LED Setting",
              "optR_TLPO_LED",
              &Page::optR_TLPO_LED,
              {"OFF", "Dark", "Bright ( default )"}},
    OptionRow{"",
              nullptr,
              "lblRTlpoRemote",
              &Page::lblRTlpoRemote,
              "Switch Setting",
              "optR_TLPO_Switch",
              &Page::optR_TLPO_Switch,
              {"ON ( default )", "OFF"}},
};
constexpr std::array kFiberRows{
    OptionRow{"Frame4",
              &Page::Frame4,
              "Label2",
              &Page::Label2,
              "LED Setting",
              "optFiber_LED",
              &Page::optFiber_LED,
              {"OFF", "Dark", "Bright ( default )"}},
    OptionRow{"",
              nullptr,
              "Label3",
              &Page::Label3,
              "Switch Setting",
              "optFiber_Switch",
              &Page::optFiber_Switch,
              {"OFF", "ON ( default )"}},
};
constexpr std::array kBuzzerRows{OptionRow{
    "", nullptr, "", nullptr, "", "optBuzzer", &Page::optBuzzer, {"ON ( default )", "OFF", ""}}};
constexpr std::array kSwitchRows{OptionRow{
    "", nullptr, "", nullptr, "", "optSwitch", &Page::optSwitch, {"ON ( default )", "OFF"}}};
constexpr std::array kTactorRows{OptionRow{"",
                                           nullptr,
                                           "",
                                           nullptr,
                                           "",
                                           "optTactorSwitch",
                                           &Page::optTactorSwitch,
                                           {"ON ( default )", "OFF"}}};

struct FrameRow {
  const char* name;
  const char* caption;
  InnerFrame* Page::*frame;
  int column;
  std::span<const OptionRow> rows;
};

// In the order of the Tab key.
constexpr std::array<FrameRow, 6> kFrames{{
    {"FrameManualHandle", "Knob Setting", &Page::FrameManualHandle, 0, kKnobRows},
    {"FrameR_TLPORemote", "B-KM-R Remote Controler Settings", &Page::FrameR_TLPORemote, 0,
     kRemoteRows},
    {"FrameFiberRemote", "Fiber Remote Controler Settings", &Page::FrameFiberRemote, 0, kFiberRows},
    {"FrameBuzzer", "Buzzer", &Page::FrameBuzzer, 1, kBuzzerRows},
    {"FrameSwitch", "K70 Switch", &Page::FrameSwitch, 1, kSwitchRows},
    {"FrameTactorSwich", "Tactor Switch", &Page::FrameTactorSwich, 1, kTactorRows},
}};

// Options begin at one place in all frames of a column.
int LabelWidth(const QWidget& widget) {
  int width = kLabelColumn;
  for (const FrameRow& frame : kFrames) {
    for (const OptionRow& row : frame.rows) {
      width = std::max(width, widget.fontMetrics().horizontalAdvance(QLatin1String(row.caption)));
    }
  }
  return width;
}

QLabel* AddLabel(const OptionRow& row, QFrame* panel) {
  auto* label = Named(new QLabel(QLatin1String(row.caption), panel), row.labelName);
  label->setMinimumWidth(LabelWidth(*label));
  QSizePolicy policy = label->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  label->setSizePolicy(policy);
  panel->layout()->addWidget(label);
  return label;
}

void AddKnobControls(Page& page, const KnobControls& knob, const QString& caption, QFrame* panel) {
  auto* check = Named(new QCheckBox(u"Auto"_s, panel), knob.checkName);
  check->setAccessibleDescription(caption);
  TakeFocusByClicks(*check);
  auto* combo = Named(new ComboBox(panel), knob.comboName);
  combo->setAccessibleName(caption);
  for (const char* sensitivity : {"Coarse", "Medium", "Fine"}) {
    combo->addRow(QLatin1String(sensitivity));
  }
  panel->layout()->addWidget(check);
  panel->layout()->addWidget(combo);
  page.*knob.check = check;
  page.*knob.combo = combo;
}

void AddRow(Page& page, const OptionRow& row, InnerFrame* frame) {
  auto* panel = Named(new QFrame(frame), row.rowName);
  auto* line = new QHBoxLayout(panel);
  line->setContentsMargins({});
  line->setSpacing(grid::kBetweenGroups);
  if (row.row != nullptr) page.*row.row = panel;
  if (row.label != nullptr) page.*row.label = AddLabel(row, panel);
  const QString subject =
      row.label != nullptr ? QString(QLatin1String(row.caption)) : frame->caption();
  auto* group = new OptionGroup(&page);
  page.*row.group = group;
  for (const char* text : row.options) {
    if (text == nullptr) continue;
    QRadioButton* option = group->addOption(QLatin1String(text), row.arrayName, panel);
    option->setAccessibleDescription(subject);
    if (*text == '\0') option->setAccessibleName(QLatin1String(kNamelessOption));
    line->addWidget(option);
  }
  if (row.knob != nullptr) AddKnobControls(page, *row.knob, subject, panel);
  line->addStretch();
  frame->body()->addWidget(panel);
}

void AddFrame(Page& page, const FrameRow& row, QBoxLayout* column) {
  auto* frame = Named(new InnerFrame(QLatin1String(row.caption), column->parentWidget()), row.name);
  page.*row.frame = frame;
  frame->body()->setSpacing(grid::kUnit);
  frame->show();  // whether it is shown must not depend on the page's being on show
  for (const OptionRow& options : row.rows) AddRow(page, options, frame);
  column->addWidget(frame);
}

}  // namespace

// Each column is a widget, which keeps its width when all its frames are hidden.
void ControlOtherCtl::Build() {
  columns_ = new QHBoxLayout;
  columns_->setSpacing(grid::kBetweenGroups);
  std::array<QVBoxLayout*, 2> stacks{};
  for (std::size_t i = 0; i < stacks.size(); ++i) {
    auto* column = new QWidget(FrameBase);
    stacks[i] = new QVBoxLayout(column);
    stacks[i]->setContentsMargins({});
    stacks[i]->setSpacing(grid::kBetweenGroups);
    columns_->addWidget(column, kShares[i]);
  }
  for (const FrameRow& frame : kFrames) {
    AddFrame(*this, frame, stacks[static_cast<std::size_t>(frame.column)]);
  }
  for (QVBoxLayout* stack : stacks) stack->addStretch();
  Label1 = Named(
      CaptionLabel(u"Select Auto is effective after rotating the nosepiece with interlock mode."_s,
                   FrameManualHandle),
      "Label1");
  Label1->setWordWrap(true);
  FrameManualHandle->body()->addWidget(Label1);
  FrameBase->body()->addLayout(columns_, 1);
}

// The frames of the right column take the place of the left one where that has none.
void ControlOtherCtl::ArrangeColumns() {
  const bool leftIsEmpty = FrameManualHandle->isHidden() && FrameR_TLPORemote->isHidden() &&
                           FrameFiberRemote->isHidden();
  columns_->setDirection(leftIsEmpty ? QBoxLayout::RightToLeft : QBoxLayout::LeftToRight);
}

}  // namespace mortane

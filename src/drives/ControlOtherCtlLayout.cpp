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
#include "widgets/FlowRow.h"
#include "widgets/OptionGroup.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

using Page = ControlOtherCtl;

constexpr int kLabelColumn = 104;

// What the buzzer's option without a caption stands for.
constexpr const char* kNamelessOption = "The two controllers differ";

// Behind a knob's options: whether it is automatic, and how sensitive it is.
struct KnobControls {
  Control<QCheckBox> Page::*check;
  Control<ComboBox> Page::*combo;
};

constexpr KnobControls kFocusKnob{&Page::CheckFocusAuto, &Page::ComboFocus};
constexpr KnobControls kStageKnob{&Page::CheckStageAuto, &Page::ComboStage};

// A label and the options behind it, as far as the row has them. Some rows are given frames.
struct OptionRow {
  Control<QLabel> Page::*label;
  const char* caption;
  Control<OptionGroup> Page::*group;
  std::array<const char*, 3> options;
  Control<QFrame> Page::*row = nullptr;
  const KnobControls* knob = nullptr;
};

constexpr std::array kKnobRows{
    OptionRow{&Page::lblFocusDrive,
              "Focus Knob",
              &Page::optAuto,
              {"Auto", "Manual ( default )"},
              nullptr,
              &kFocusKnob},
    OptionRow{&Page::lblXYStage,
              "Stage Knob",
              &Page::optXYAuto,
              {"Auto", "Manual ( default )"},
              &Page::Frame1,
              &kStageKnob},
};
constexpr std::array kRemoteRows{
    OptionRow{&Page::lblR_TLPOLED,
              "LED Setting",
              &Page::optR_TLPO_LED,
              {"OFF", "Dark", "Bright ( default )"},
              &Page::Frame2},
    OptionRow{&Page::lblRTlpoRemote,
              "Switch Setting",
              &Page::optR_TLPO_Switch,
              {"ON ( default )", "OFF"}},
};
constexpr std::array kFiberRows{
    OptionRow{&Page::Label2,
              "LED Setting",
              &Page::optFiber_LED,
              {"OFF", "Dark", "Bright ( default )"},
              &Page::Frame4},
    OptionRow{&Page::Label3, "Switch Setting", &Page::optFiber_Switch, {"OFF", "ON ( default )"}},
};
constexpr std::array kBuzzerRows{
    OptionRow{nullptr, "", &Page::optBuzzer, {"ON ( default )", "OFF", ""}}};
constexpr std::array kSwitchRows{
    OptionRow{nullptr, "", &Page::optSwitch, {"ON ( default )", "OFF"}}};
constexpr std::array kTactorRows{
    OptionRow{nullptr, "", &Page::optTactorSwitch, {"ON ( default )", "OFF"}}};

struct FrameRow {
  const char* caption;
  Control<InnerFrame> Page::*frame;
  int column;
  std::span<const OptionRow> rows;
};

// In the order of the Tab key.
constexpr std::array<FrameRow, 6> kFrames{{
    {"Knob Setting", &Page::FrameManualHandle, 0, kKnobRows},
    {"B-KM-R Remote Controler Settings", &Page::FrameR_TLPORemote, 0, kRemoteRows},
    {"Fiber Remote Controler Settings", &Page::FrameFiberRemote, 0, kFiberRows},
    {"Buzzer", &Page::FrameBuzzer, 1, kBuzzerRows},
    {"K70 Switch", &Page::FrameSwitch, 1, kSwitchRows},
    {"Tactor Switch", &Page::FrameTactorSwich, 1, kTactorRows},
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
  auto* label = new QLabel(QLatin1String(row.caption), panel);
  label->setMinimumWidth(LabelWidth(*label));
  QSizePolicy policy = label->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  label->setSizePolicy(policy);
  panel->layout()->addWidget(label);
  return label;
}

void AddKnobControls(Page& page, const KnobControls& knob, const QString& caption, QFrame* panel) {
  auto* check = new QCheckBox(u"Auto"_s, panel);
  check->setAccessibleDescription(caption);
  TakeFocusByClicks(*check);
  auto* combo = new ComboBox(panel);
  combo->setAccessibleName(caption);
  for (const char* sensitivity : {"Coarse", "Medium", "Fine"}) {
    combo->addRow(QLatin1String(sensitivity));
  }
  panel->layout()->addWidget(check);
  panel->layout()->addWidget(combo);
  page.*knob.check = check;
  page.*knob.combo = combo;
}

// A knob's options may stand there while its label is hidden.
void NameWithoutLabel(QRadioButton& option, const QString& subject) {
  option.setAccessibleName(subject + u' ' + option.text());
  option.setToolTip(subject);
}

void AddRow(Page& page, const OptionRow& row, InnerFrame* frame) {
  auto* panel = new RowGroup(frame);
  if (row.label != nullptr) panel->setAccessibleName(QLatin1String(row.caption));
  panel->setLayout(new FlowRow(grid::kBetweenGroups, 0));
  if (row.row != nullptr) page.*row.row = panel;
  if (row.label != nullptr) page.*row.label = AddLabel(row, panel);
  const QString subject =
      row.label != nullptr ? QString(QLatin1String(row.caption)) : frame->caption();
  auto* group = new OptionGroup(&page);
  page.*row.group = group;
  for (const char* text : row.options) {
    if (text == nullptr) continue;
    QRadioButton* option = group->addOption(QLatin1String(text), panel);
    option->setAccessibleDescription(subject);
    if (*text == '\0') {
      option->setAccessibleName(QLatin1String(kNamelessOption));
      option->setToolTip(option->accessibleName());
    }
    if (row.knob != nullptr) NameWithoutLabel(*option, subject);
    panel->layout()->addWidget(option);
  }
  if (row.knob != nullptr) AddKnobControls(page, *row.knob, subject, panel);
  frame->body()->addWidget(panel);
}

void AddFrame(Page& page, const FrameRow& row, QBoxLayout* column) {
  auto* frame = new InnerFrame(QLatin1String(row.caption), column->parentWidget());
  page.*row.frame = frame;
  frame->body()->setSpacing(grid::kUnit);
  frame->show();  // whether it is shown must not depend on the page's being on show
  for (const OptionRow& options : row.rows) AddRow(page, options, frame);
  column->addWidget(frame);
}

}  // namespace

// Two columns, one below the other where the width is short.
class ControlOtherCtl::Columns : public QBoxLayout {
 public:
  Columns() : QBoxLayout(LeftToRight) { setSpacing(grid::kBetweenGroups); }

  // The second column takes the place of the first one, which is empty.
  void SetSecondFirst(bool secondFirst) {
    secondFirst_ = secondFirst;
    invalidate();
  }

  [[nodiscard]] QSize minimumSize() const override {
    const int widest = std::max(itemAt(0)->minimumSize().width(), itemAt(1)->minimumSize().width());
    return {widest, QBoxLayout::minimumSize().height()};
  }
  void setGeometry(const QRect& area) override {
    const int left = secondFirst_ ? 0 : itemAt(0)->sizeHint().width();
    const int right = itemAt(1)->sizeHint().width();
    const int both = area.width() - spacing();
    if (both < left + right) {
      // The lower one takes the height that is left.
      setDirection(secondFirst_ ? BottomToTop : TopToBottom);
      setStretch(0, secondFirst_ ? 1 : 0);
      setStretch(1, secondFirst_ ? 0 : 1);
    } else {
      // By their shares, and each as wide as its rows.
      const int share = both * kRightShare / (kLeftShare + kRightShare);
      const int width = std::clamp(share, right, both - left);
      setDirection(secondFirst_ ? RightToLeft : LeftToRight);
      setStretch(0, both - width);
      setStretch(1, width);
    }
    QBoxLayout::setGeometry(area);
  }

 private:
  static constexpr int kLeftShare = 3;
  static constexpr int kRightShare = 2;

  bool secondFirst_ = false;
};

// Each column is a widget, which keeps its width when all its frames are hidden.
void ControlOtherCtl::Build() {
  columns_ = new Columns;
  std::array<QVBoxLayout*, 2> stacks{};
  for (QVBoxLayout*& stack : stacks) {
    auto* column = new QWidget(FrameBase);
    stack = new QVBoxLayout(column);
    stack->setContentsMargins({});
    stack->setSpacing(grid::kBetweenGroups);
    columns_->addWidget(column);
  }
  for (const FrameRow& frame : kFrames) {
    AddFrame(*this, frame, stacks[static_cast<std::size_t>(frame.column)]);
  }
  for (QVBoxLayout* stack : stacks) stack->addStretch();
  Label1 =
      CaptionLabel(u"Select Auto is effective after rotating the nosepiece with interlock mode."_s,
                   FrameManualHandle);
  Label1->setWordWrap(true);
  // It takes the width that the rows make.
  QSizePolicy policy = Label1->sizePolicy();
  policy.setHorizontalPolicy(QSizePolicy::Ignored);
  Label1->setSizePolicy(policy);
  FrameManualHandle->body()->addWidget(Label1);
  FrameBase->body()->addLayout(columns_, 1);
  layout()->setAlignment(FrameBase, Qt::AlignTop);  // as tall as what it holds
}

// The frames of the right column take the place of the left one where that has none.
void ControlOtherCtl::ArrangeColumns() {
  const bool leftIsEmpty = FrameManualHandle->isHidden() && FrameR_TLPORemote->isHidden() &&
                           FrameFiberRemote->isHidden();
  columns_->SetSecondFirst(leftIsEmpty);
}

}  // namespace mortane

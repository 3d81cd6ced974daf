#include "widgets/SectionBar.h"

#include <QHBoxLayout>
#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>

#include "widgets/ElidedTip.h"
#include "widgets/Named.h"
#include "widgets/NotSent.h"
#include "widgets/OptionGroup.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kSidePadding = 18;
constexpr int kLeastPadding = 8;
constexpr int kLeastCharacters = 5;

// Rounded only where the bar begins or ends.
QPainterPath OptionShape(const QRectF& area, bool first, bool last) {
  const double corner = grid::kInnerCorner;
  QPainterPath shape;
  shape.setFillRule(Qt::WindingFill);
  shape.addRoundedRect(area, corner, corner);
  if (!first) shape.addRect(area.adjusted(0, 0, -area.width() / 2, 0));
  if (!last) shape.addRect(area.adjusted(area.width() / 2, 0, 0, 0));
  return shape.simplified();
}

}  // namespace

SectionOption::SectionOption(const QString& text, QWidget* parent, ChosenLook look)
    : QAbstractButton(parent), look_(look) {
  setText(text);
  setCheckable(true);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void SectionOption::SetEnds(bool first, bool last) {
  first_ = first;
  last_ = last;
  update();
}

void SectionOption::SetPending(bool pending) {
  if (pending_ == pending) return;
  pending_ = pending;
  setAccessibleDescription(pending ? SomethingNotSent() : QString());
  update();
}

QSize SectionOption::sizeHint() const {
  const QFontMetrics bold(BoldFont());
  // A blue one stands in a line with buttons.
  const int height = look_ == ChosenLook::Amber ? grid::kSectionHeight : grid::kFieldHeight;
  return {bold.horizontalAdvance(text()) + 2 * kSidePadding, GridHeight(height, *this)};
}

// In a narrow window its text is elided.
QSize SectionOption::minimumSizeHint() const {
  const int least = QFontMetrics(BoldFont()).averageCharWidth() * kLeastCharacters;
  return {qMin(least + 2 * kLeastPadding, sizeHint().width()), sizeHint().height()};
}

bool SectionOption::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QAbstractButton::event(event);
  const int needed = QFontMetrics(BoldFont()).horizontalAdvance(text());
  const bool fits = needed <= width() - 2 * kLeastPadding;
  const QString pending = pending_ ? u'\n' + SomethingNotSent() : QString();
  ShowWholeText(*static_cast<QHelpEvent*>(event), *this, text() + pending,
                fits && !pending_ ? Fits::Yes : Fits::No);
  return true;
}

void SectionOption::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool chosen = isChecked();
  // A window that is busy is disabled as a whole, and still shows which section is chosen.
  const bool marked = chosen && isEnabledTo(window());
  const bool amber = look_ == ChosenLook::Amber;
  const QColor mark =
      amber ? ToneColor(Tone::Amber) : palette().color(QPalette::Active, QPalette::Highlight);
  const QColor onMark = amber ? ToneColor(Tone::OnAmber)
                              : palette().color(QPalette::Active, QPalette::HighlightedText);
  // Neighbours share their line: each but the first begins on the last pixel of the one before.
  const QRectF area = QRectF(rect()).adjusted(first_ ? 0.5 : -0.5, 0.5, -0.5, -0.5);
  QColor fill = palette().color(QPalette::Button);
  if (isEnabled() && underMouse()) fill = palette().color(QPalette::Midlight);
  if (marked) fill = mark;
  painter.setPen(marked ? mark.darker(118) : palette().color(QPalette::Mid));
  painter.setBrush(fill);
  painter.drawPath(OptionShape(area, first_, last_));
  if (hasFocus()) {
    // A line in Highlight would not show on blue.
    painter.setPen(QPen(marked && !amber ? onMark : palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 4, 4);
  }
  painter.setFont(chosen ? BoldFont() : font());
  painter.setPen(marked ? onMark : palette().color(QPalette::ButtonText));
  const int room = width() - 2 * kLeastPadding - (pending_ ? kPendingRoom - kLeastPadding : 0);
  const QString shown = painter.fontMetrics().elidedText(text(), Qt::ElideRight, room);
  painter.drawText(rect(), Qt::AlignCenter, shown);
  if (!pending_) return;
  const double textEnd = (width() + painter.fontMetrics().horizontalAdvance(shown)) / 2.0;
  DrawPendingDot(painter, {textEnd + kPendingRoom / 2.0 + 1, height() / 2.0},
                 palette().color(QPalette::Link), fill);
}

SectionBar::SectionBar(const char* arrayName, QWidget* parent)
    : QWidget(parent), arrayName_(arrayName), group_(new OptionGroup(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  connect(group_, &OptionGroup::selectionChanged, this, &SectionBar::selectionChanged);
}

int SectionBar::AddOption(const QString& text) {
  const int index = count();
  auto* option = Named(new SectionOption(text, this), arrayName_, index);
  option->setAccessibleName(text);
  options_.append(option);
  group_->add(option, index);
  layout()->addWidget(option);
  MarkEnds();
  return index;
}

QAbstractButton* SectionBar::option(int index) const {
  return group_->button(index);
}

int SectionBar::count() const {
  return static_cast<int>(options_.size());
}

int SectionBar::selected() const {
  return group_->selected();
}

void SectionBar::select(int index) {
  group_->select(index);
}

void SectionBar::SetOptionEnabled(int index, bool enabled, const QString& whyDisabled) {
  options_[index]->setEnabled(enabled);
  options_[index]->setToolTip(enabled ? QString() : whyDisabled);
}

void SectionBar::SetOptionVisible(int index, bool visible) {
  options_[index]->setVisible(visible);
  MarkEnds();
}

void SectionBar::SetOptionPending(int index, bool pending) {
  options_[index]->SetPending(pending);
}

void SectionBar::MarkEnds() {
  QVector<SectionOption*> shown;
  for (SectionOption* option : options_) {
    const bool hidden = option->isHidden() && option->testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (!hidden) shown.append(option);
  }
  for (qsizetype i = 0; i < shown.size(); ++i) shown[i]->SetEnds(i == 0, i + 1 == shown.size());
}

}  // namespace mortane

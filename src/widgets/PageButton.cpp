#include "widgets/PageButton.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "widgets/AccessibleChange.h"
#include "widgets/NotSent.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kIconSize = 32;
constexpr int kIconTop = 12;

}  // namespace

PageButton::PageButton(IconName icon, const QString& text, QWidget* parent)
    : RailButton(icon, text, parent) {}

void PageButton::SetSelected(bool selected) {
  if (selected_ == selected) return;
  selected_ = selected;
  update();
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(this, changed);
  TellChange(event);
}

void PageButton::SetPending(bool pending) {
  if (pending_ == pending) return;
  pending_ = pending;
  setAccessibleDescription(pending ? SomethingNotSent() : QString());
  update();
}

bool PageButton::event(QEvent* event) {
  const bool tells = event->type() == QEvent::ToolTip && pending_ && isEnabled();
  if (!tells) return RailButton::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), SomethingNotSent(), this);
  return true;
}

QSize PageButton::sizeHint() const {
  const int text = fontMetrics().height();
  return {qMax(grid::kRailWidth, fontMetrics().horizontalAdvance(this->text()) + 16),
          qMax(grid::kRailButtonHeight, kIconTop + kIconSize + 2 * grid::kUnit + text + 10)};
}

QSize PageButton::minimumSizeHint() const {
  return {sizeHint().width(), kIconSize + fontMetrics().height() + 3 * grid::kUnit};
}

// What a low button lacks goes off above and below alike.
int PageButton::IconTop() const {
  return qMax(grid::kUnit, kIconTop - (sizeHint().height() - height()) / 2);
}

void PageButton::mousePressEvent(QMouseEvent* event) {
  event->accept();
  ChooseBy(*event);
}

void PageButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawGround(painter);
  const QColor foreground = Foreground();
  const int iconTop = IconTop();
  const QRectF iconArea((width() - kIconSize) / 2.0, iconTop, kIconSize, kIconSize);
  DrawIcon(painter, icon(), iconArea,
           {foreground, selected_ && isEnabled() ? ToneColor(Tone::Amber) : foreground});
  const int textTop = iconTop + kIconSize + grid::kUnit;
  painter.setPen(foreground);
  painter.drawText(QRect(0, textTop, width(), height() - textTop - grid::kUnit),
                   Qt::AlignHCenter | Qt::AlignVCenter, text());
  if (pending_ && isEnabled())
    DrawPendingDot(painter, {iconArea.right() + 4, iconArea.top() + 3},
                   ToneColor(Tone::RailPending), Background());
  DrawFocus(painter);
}

}  // namespace mortane

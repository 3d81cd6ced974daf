#include "widgets/PageButton.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "widgets/AccessibleChange.h"
#include "widgets/ClickFocus.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kIconSize = 32;
constexpr int kIconTop = 12;
constexpr int kBarWidth = 4;

}  // namespace

PageButton::PageButton(IconName icon, const QString& text, QWidget* parent)
    : QAbstractButton(parent), icon_(icon) {
  setText(text);
  setFont(RailFont());
  setAccessibleName(text);
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
}

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
  update();
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
  if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier && TakeFocus(*this))
    emit chosen();
  event->accept();
}

void PageButton::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
}

void PageButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
    emit chosen();
    return;
  }
  event->ignore();
}

void PageButton::keyReleaseEvent(QKeyEvent* event) {
  event->ignore();
}

QColor PageButton::Background() const {
  if (selected_) return ToneColor(Tone::RailSelected);
  return ToneColor(isEnabled() && underMouse() ? Tone::RailHover : Tone::Rail);
}

QColor PageButton::Foreground() const {
  if (!isEnabled()) return ToneColor(Tone::RailDisabled);
  return ToneColor(selected_ || underMouse() ? Tone::RailText : Tone::RailResting);
}

void PageButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Background());
  if (selected_) painter.fillRect(0, 0, kBarWidth, height(), ToneColor(Tone::Amber));
  const QColor foreground = Foreground();
  const int iconTop = IconTop();
  const QRectF iconArea((width() - kIconSize) / 2.0, iconTop, kIconSize, kIconSize);
  DrawIcon(painter, icon_, iconArea,
           {foreground, selected_ && isEnabled() ? ToneColor(Tone::Amber) : foreground});
  const int textTop = iconTop + kIconSize + grid::kUnit;
  painter.setPen(foreground);
  painter.drawText(QRect(0, textTop, width(), height() - textTop - grid::kUnit),
                   Qt::AlignHCenter | Qt::AlignVCenter, text());
  if (pending_ && isEnabled())
    DrawPendingDot(painter, {iconArea.right() + 4, iconArea.top() + 3},
                   ToneColor(Tone::RailPending), Background());
  if (hasFocus())
    DrawBox(painter, QRectF(rect()).adjusted(3, 3, -3, -3), {},
            {palette().color(QPalette::BrightText), 2, grid::kFieldCorner});
}

}  // namespace mortane

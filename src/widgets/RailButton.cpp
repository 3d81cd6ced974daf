#include "widgets/RailButton.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "widgets/ClickFocus.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kBarWidth = 4;
constexpr int kFocusInset = 3;

}  // namespace

RailButton::RailButton(IconName icon, const QString& text, QWidget* parent)
    : QAbstractButton(parent), icon_(icon) {
  setText(text);
  setFont(RailFont());
  setAccessibleName(text);
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
}

void RailButton::ChooseBy(const QMouseEvent& event) {
  if (event.button() == Qt::LeftButton && event.modifiers() == Qt::NoModifier && TakeFocus(*this))
    Q_EMIT chosen();
}

QColor RailButton::Background() const {
  if (IsCurrent()) return ToneColor(Tone::RailSelected);
  return ToneColor(isEnabled() && underMouse() ? Tone::RailHover : Tone::Rail);
}

QColor RailButton::Foreground() const {
  if (!isEnabled()) return ToneColor(Tone::RailDisabled);
  return ToneColor(IsCurrent() || underMouse() ? Tone::RailText : Tone::RailResting);
}

void RailButton::DrawGround(QPainter& painter) const {
  painter.fillRect(rect(), Background());
  if (IsCurrent()) painter.fillRect(0, 0, kBarWidth, height(), ToneColor(Tone::Amber));
}

void RailButton::DrawFocus(QPainter& painter) const {
  if (!hasFocus()) return;
  const QRectF inner =
      QRectF(rect()).adjusted(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset);
  DrawBox(painter, inner, {}, {palette().color(QPalette::BrightText), 2, grid::kFieldCorner});
}

void RailButton::mousePressEvent(QMouseEvent* event) {
  event->accept();
}

void RailButton::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
}

void RailButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
    Q_EMIT chosen();
    return;
  }
  event->ignore();
}

void RailButton::keyReleaseEvent(QKeyEvent* event) {
  event->ignore();
}

}  // namespace mortane

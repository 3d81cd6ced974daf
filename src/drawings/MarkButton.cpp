#include "drawings/MarkButton.h"

#include <QKeyEvent>
#include <QPainter>

#include "drawings/ArrowSteps.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr double kLeastSide = 24;
constexpr double kFocusOutside = 2.2;
constexpr double kFocusRoom = 3.4;

}  // namespace

MarkButton::MarkButton(SwitchMark mark, QWidget* parent)
    : QAbstractButton(parent), mark_(std::move(mark)) {
  setText(mark_.text);
  setCheckable(true);
  setAttribute(Qt::WA_Hover);
}

void MarkButton::Place(const QRectF& area) {
  area_ = area;
  QRectF hit(QPointF(), area.size().expandedTo({kLeastSide, kLeastSide}));
  hit.moveCenter(area.center());
  const QRect inner = hit.toAlignedRect();
  const QRect outer =
      hit.united(area.adjusted(-kFocusRoom, -kFocusRoom, kFocusRoom, kFocusRoom)).toAlignedRect();
  setGeometry(outer);
  setContentsMargins(inner.left() - outer.left(), inner.top() - outer.top(),
                     outer.right() - inner.right(), outer.bottom() - inner.bottom());
  if (IsDial(mark_.kind)) setMask(QRegion(rect(), QRegion::Ellipse));
  update();
}

void MarkButton::keyPressEvent(QKeyEvent* event) {
  const int steps = ArrowSteps(event->key());
  if (steps == 0) return QAbstractButton::keyPressEvent(event);
  Q_EMIT stepped(steps);
}

// The corners around a large dial belong to the keys beside it.
bool MarkButton::hitButton(const QPoint& at) const {
  if (!IsDial(mark_.kind)) return rect().contains(at);
  const QPointF distance = QPointF(at) - QRectF(rect()).center();
  const double reach = qMax(area_.width(), kLeastSide) / 2;
  return QPointF::dotProduct(distance, distance) <= reach * reach;
}

void MarkButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRectF mark = area_.translated(-pos());
  // While the window as a whole is disabled the marks stay as they are.
  const MarkState state{isChecked(), isEnabledTo(window()), isEnabled() && underMouse()};
  DrawMark(painter, mark_, mark, state);
  if (!hasFocus()) return;
  painter.setPen(QPen(ToneColor(Tone::RailText), 2));
  painter.setBrush(Qt::NoBrush);
  DrawMarkShape(painter, mark_.kind, mark, kFocusOutside);
}

}  // namespace mortane

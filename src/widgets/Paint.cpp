#include "widgets/Paint.h"

#include <QPainter>
#include <QPen>
#include <QPolygonF>

namespace mortane {
namespace {

constexpr double kPendingDiameter = 9;

QPen RoundPen(const QColor& line, double width) {
  return {line, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

void DrawBox(QPainter& painter, const QRectF& area, const QColor& fill, const Outline& outline) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
  if (outline.width > 0 && outline.line.isValid()) {
    QPen pen(outline.line, outline.width);
    if (outline.dashed) pen.setDashPattern({3 / outline.width, 3 / outline.width});
    painter.setPen(pen);
  } else {
    painter.setPen(Qt::NoPen);
  }
  const double half = outline.line.isValid() ? outline.width / 2 : 0;
  const QRectF inside = area.adjusted(half, half, -half, -half);
  const double corner = qMax(0.0, outline.corner - half);
  painter.drawRoundedRect(inside, corner, corner);
  painter.restore();
}

void DrawChevronDown(QPainter& painter, const QRectF& area, const QColor& line) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(RoundPen(line, 1.7));
  const QPointF middle = area.center();
  painter.drawPolyline(QPolygonF{{middle.x() - 4, middle.y() - 2},
                                 {middle.x(), middle.y() + 2},
                                 {middle.x() + 4, middle.y() - 2}});
  painter.restore();
}

void DrawTick(QPainter& painter, const QRectF& area, const QColor& line) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(RoundPen(line, area.width() / 8));
  const auto at = [&area](double x, double y) {
    return QPointF(area.left() + area.width() * x, area.top() + area.height() * y);
  };
  painter.drawPolyline(QPolygonF{at(0.24, 0.54), at(0.43, 0.72), at(0.77, 0.30)});
  painter.restore();
}

void DrawPendingDot(QPainter& painter, QPointF center, const QColor& fill,
                    const QColor& background) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(background);
  painter.drawEllipse(center, kPendingDiameter / 2 + 1.5, kPendingDiameter / 2 + 1.5);
  painter.setBrush(fill);
  painter.drawEllipse(center, kPendingDiameter / 2, kPendingDiameter / 2);
  painter.restore();
}

}  // namespace mortane

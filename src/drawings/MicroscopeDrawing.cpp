#include "drawings/MicroscopeDrawing.h"

#include <QHelpEvent>
#include <QPainter>
#include <QtMath>
#include <array>

#include "drawings/InkedDrawing.h"
#include "widgets/ElidedTip.h"
#include "widgets/VectorDrawing.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr double kDotRadius = 5;
constexpr double kDisabledOpacity = 0.4;  // of the body; labels and dots have the disabled colours

void DrawDot(QPainter& painter, QPointF at, int mounted, const QPalette& palette, bool enabled) {
  const QColor background = palette.color(QPalette::Base);
  const QColor mark = enabled ? palette.color(QPalette::Active, QPalette::Highlight)
                              : palette.color(QPalette::Disabled, QPalette::Text);
  painter.setPen(Qt::NoPen);
  painter.setBrush(background);
  painter.drawEllipse(at, kDotRadius + 1.6, kDotRadius + 1.6);
  if (mounted == 0) {
    QPen dashed(palette.color(QPalette::Disabled, QPalette::Text), 1.1);
    dashed.setDashPattern({2.2, 2.0});
    painter.setPen(dashed);
    painter.drawEllipse(at, kDotRadius - 0.4, kDotRadius - 0.4);
  } else if (mounted == 1) {
    painter.setPen(QPen(mark, 2));
    painter.drawEllipse(at, kDotRadius - 1, kDotRadius - 1);
  } else {
    painter.setBrush(mark);
    painter.drawEllipse(at, kDotRadius, kDotRadius);
  }
}

}  // namespace

MicroscopeDrawing::MicroscopeDrawing(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::NoFocus);
  setAccessibleName(u"Microscope"_s);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MicroscopeDrawing::SetAccessories(const QVector<DrawnAccessory>& accessories) {
  accessories_ = accessories;
  QStringList described;
  for (const DrawnAccessory& accessory : accessories) {
    const char* state = accessory.mounted == 0   ? "not mounted"
                        : accessory.mounted == 1 ? "sensed only"
                                                 : "controllable";
    described.append(accessory.label + u": "_s + QLatin1String(state));
  }
  setAccessibleDescription(described.join(u", "_s));
  update();
}

MicroscopeLayout MicroscopeDrawing::Layout() const {
  return LayOutMicroscope(accessories_, size(), fontMetrics());
}

double MicroscopeDrawing::drawingScale() const {
  return Layout().scale;
}

int MicroscopeDrawing::widthOfLabels() const {
  return qCeil(LeastMicroscopeWidth(accessories_, fontMetrics()));
}

QSize MicroscopeDrawing::sizeHint() const {
  return MicroscopeDesignSize().toSize();
}

QSize MicroscopeDrawing::minimumSizeHint() const {
  return (MicroscopeDesignSize() * LeastMicroscopeScale()).toSize();
}

bool MicroscopeDrawing::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = *static_cast<QHelpEvent*>(event);
  for (const DrawnLabel& label : Layout().labels) {
    if (!label.area.contains(help.pos())) continue;
    const bool fits = label.shown == label.accessory.label;
    ShowWholeText(help, *this, label.accessory.label, fits ? Fits::Yes : Fits::No,
                  label.area.toAlignedRect());
    return true;
  }
  ShowWholeText(help, *this, {}, Fits::Yes);
  return true;
}

void MicroscopeDrawing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const MicroscopeLayout layout = Layout();
  const VectorDrawing body(InkedDrawing(u"microscope"_s, palette()));
  if (!isEnabled()) painter.setOpacity(kDisabledOpacity);
  body.Paint(painter, layout.body);
  painter.setOpacity(1);
  for (const DrawnLabel& label : layout.labels) PaintLabel(painter, label);
}

void MicroscopeDrawing::PaintLabel(QPainter& painter, const DrawnLabel& label) const {
  const bool live = label.accessory.mounted != 0 && isEnabled();
  const QPalette::ColorGroup group = live ? QPalette::Active : QPalette::Disabled;
  QPen line(palette().color(group, live ? QPalette::Dark : QPalette::Text), 1);
  if (label.accessory.mounted == 0) line.setDashPattern({4, 3});
  painter.setPen(line);
  painter.drawPolyline(QPolygonF{{label.lineStart, label.elbow, label.dot}});
  painter.setPen(palette().color(group, QPalette::WindowText));
  // The width of a text is rounded; one that fits must not be cut.
  painter.drawText(label.area.adjusted(-1, 0, 1, 0), Qt::AlignCenter, label.shown);
  DrawDot(painter, label.dot, label.accessory.mounted, palette(), isEnabled());
}

}  // namespace mortane

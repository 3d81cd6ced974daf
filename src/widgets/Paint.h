// Small strokes that the painted widgets and the style share.
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace mortane {

struct Outline {
  QColor line;
  double width = 1;
  double corner = 0;
  bool dashed = false;
};

// A filled rounded rectangle whose line lies wholly inside it, sharp at every scale.
void DrawBox(QPainter& painter, const QRectF& area, const QColor& fill, const Outline& outline);

// The downward chevron of a combo, standing in the middle of the area.
void DrawChevronDown(QPainter& painter, const QRectF& area, const QColor& line);

// The tick of a check box or a passed step.
void DrawTick(QPainter& painter, const QRectF& area, const QColor& line);

// The round dot of a pending change, and the room beside a text in which it stands.
inline constexpr int kPendingRoom = 12;
void DrawPendingDot(QPainter& painter, QPointF center, const QColor& fill,
                    const QColor& background);

}  // namespace mortane

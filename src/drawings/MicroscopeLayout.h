// Where the drawing of the microscope and the labels of its accessories stand.
#pragma once

#include <QFontMetrics>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QVector>

namespace mortane {

// One accessory as the drawing shows it: not mounted (0, dashed and grey), sensed only (1, a ring)
// or controllable (2, a full dot).
struct DrawnAccessory {
  int number = 0;
  QString label;
  int mounted = 0;
};

// A label at the side, and the line from it by an elbow to the dot on the drawing.
struct DrawnLabel {
  DrawnAccessory accessory;
  QString shown;  // elided where there is no room for the whole
  QRectF area;
  QPointF lineStart;
  QPointF elbow;
  QPointF dot;
};

struct MicroscopeLayout {
  double scale = 1;  // from 0.8 to 1.5; text does not scale
  QRectF body;
  QVector<DrawnLabel> labels;
};

// The size of the drawing at scale 1, with room for labels of the usual length.
QSizeF MicroscopeDesignSize();
double LeastMicroscopeScale();

// The least width in which no label is elided.
double LeastMicroscopeWidth(const QVector<DrawnAccessory>& accessories,
                            const QFontMetrics& metrics);

// As large as the room allows, smaller where labels need more room. Labels at one side keep a
// line's height from each other. Accessories without a place on the drawing are left out.
MicroscopeLayout LayOutMicroscope(const QVector<DrawnAccessory>& accessories, const QSizeF& room,
                                  const QFontMetrics& metrics);

}  // namespace mortane

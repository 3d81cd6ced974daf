// A drawing of the program's resources, ready to be painted at any size.
#pragma once

#include <QBrush>
#include <QByteArray>
#include <QHash>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <QStringList>
#include <QTransform>
#include <vector>

class QPainter;
class QXmlStreamReader;

namespace mortane {

// The part of SVG that the drawings use: svg with its viewBox, g, use, path, rect, circle and
// ellipse; fill and stroke with their opacities, width, cap and join; translate, rotate and scale.
// The toolkit's own module for SVG does far more, but cannot be built from source where the
// programs for Windows are made.
class VectorDrawing {
 public:
  explicit VectorDrawing(const QByteArray& svg);

  // In the drawing's own units.
  QSizeF Size() const { return viewBox_.size(); }

  // Every other colour for one that stands in the file; how far it covers stays.
  void SetColors(const QHash<QRgb, QColor>& others);

  // Stretches the drawing over the area.
  void Paint(QPainter& painter, const QRectF& area) const;

  // Elements, attributes and values that were passed over; empty for a drawing of the program.
  const QStringList& NotUnderstood() const { return notUnderstood_; }

 private:
  // What elements inherit.
  struct Style {
    QTransform transform;
    QColor fill = Qt::black;
    double fillOpacity = 1;
    QColor stroke;  // invalid: none
    double strokeOpacity = 1;
    double strokeWidth = 1;
    Qt::PenCapStyle cap = Qt::FlatCap;
    Qt::PenJoinStyle join = Qt::SvgMiterJoin;
  };
  struct Shape {
    QPainterPath path;
    QTransform transform;
    QBrush fill;
    QPen stroke;
  };
  struct Range {
    std::size_t first;
    std::size_t last;
  };

  void ReadElement(QXmlStreamReader& reader, Style style);
  void ReadAttributes(const QXmlStreamReader& reader, Style& style);
  bool ReadStyle(QStringView name, QStringView value, Style& style) const;
  bool ReadTransform(QStringView text, QTransform& transform) const;
  bool AddShape(const QXmlStreamReader& reader, const Style& style);
  bool Repeat(const QXmlStreamReader& reader, const Style& style);

  QRectF viewBox_;
  std::vector<Shape> shapes_;
  QHash<QString, Range> named_;
  QStringList notUnderstood_;
};

}  // namespace mortane

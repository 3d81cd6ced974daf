#include "widgets/VectorDrawing.h"

#include <QPainter>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>

#include "widgets/PathData.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr std::array<QStringView, 3> kFrames{u"svg", u"g", u"use"};
// Read with the element that they shape; a namespace declaration is no attribute.
constexpr std::array<QStringView, 12> kShapeAttributes{
    u"d", u"x", u"y", u"width", u"height", u"rx", u"ry", u"cx", u"cy", u"r", u"id", u"href"};

template <std::size_t Count>
bool IsOneOf(const std::array<QStringView, Count>& names, QStringView name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

double NumberOf(const QXmlStreamReader& reader, const char* name, double otherwise = 0) {
  const auto value = reader.attributes().value(QLatin1String(name));
  return value.isEmpty() ? otherwise : value.toDouble();
}

std::vector<double> NumbersIn(QStringView text) {
  std::vector<double> numbers;
  for (const QStringView part : text.split(u' ', Qt::SkipEmptyParts)) {
    numbers.push_back(part.toDouble());
  }
  return numbers;
}

QPainterPath RectPath(const QXmlStreamReader& reader) {
  const QRectF area(NumberOf(reader, "x"), NumberOf(reader, "y"), NumberOf(reader, "width"),
                    NumberOf(reader, "height"));
  const double rx = NumberOf(reader, "rx");
  QPainterPath path;
  path.addRoundedRect(area, rx, NumberOf(reader, "ry", rx));
  return path;
}

QPainterPath EllipsePath(const QXmlStreamReader& reader) {
  const double radius = NumberOf(reader, "r");
  QPainterPath path;
  path.addEllipse(QPointF(NumberOf(reader, "cx"), NumberOf(reader, "cy")),
                  NumberOf(reader, "rx", radius), NumberOf(reader, "ry", radius));
  return path;
}

std::optional<QPainterPath> PathOf(const QXmlStreamReader& reader) {
  if (reader.name() == u"path") return ParsePathData(reader.attributes().value("d"_L1));
  if (reader.name() == u"rect") return RectPath(reader);
  if (reader.name() == u"circle" || reader.name() == u"ellipse") return EllipsePath(reader);
  return std::nullopt;
}

bool ReadColor(QStringView value, QColor& color) {
  color = value == u"none" ? QColor() : QColor(value);
  return color.isValid() || value == u"none";
}

bool ReadNumber(QStringView value, double& number) {
  bool valid = false;
  number = value.toDouble(&valid);
  return valid;
}

QColor Faded(QColor color, double opacity) {
  color.setAlphaF(static_cast<float>(opacity));
  return color;
}

}  // namespace

VectorDrawing::VectorDrawing(const QByteArray& svg) {
  QXmlStreamReader reader(svg);
  if (reader.readNextStartElement()) ReadElement(reader, {});
  if (reader.hasError()) notUnderstood_.append(reader.errorString());
}

void VectorDrawing::ReadElement(QXmlStreamReader& reader, Style style) {
  const QString name = reader.name().toString();
  const QString id = reader.attributes().value("id"_L1).toString();
  const std::size_t first = shapes_.size();
  ReadAttributes(reader, style);
  const bool frame = IsOneOf(kFrames, name);
  const bool understood = frame ? name != u"use" || Repeat(reader, style) : AddShape(reader, style);
  if (!understood) notUnderstood_.append(name);
  while (reader.readNextStartElement()) ReadElement(reader, style);
  if (!id.isEmpty()) named_.insert(id, {first, shapes_.size()});
}

void VectorDrawing::ReadAttributes(const QXmlStreamReader& reader, Style& style) {
  for (const QXmlStreamAttribute& attribute : reader.attributes()) {
    const auto name = attribute.name();
    if (name == u"viewBox") {
      const std::vector<double> box = NumbersIn(attribute.value());
      if (box.size() == 4) viewBox_ = {box[0], box[1], box[2], box[3]};
    } else if (!IsOneOf(kShapeAttributes, name) && !ReadStyle(name, attribute.value(), style)) {
      notUnderstood_.append(name.toString() + u'=' + attribute.value().toString());
    }
  }
}

bool VectorDrawing::ReadStyle(QStringView name, QStringView value, Style& style) const {
  if (name == u"fill") return ReadColor(value, style.fill);
  if (name == u"stroke") return ReadColor(value, style.stroke);
  if (name == u"fill-opacity") return ReadNumber(value, style.fillOpacity);
  if (name == u"stroke-opacity") return ReadNumber(value, style.strokeOpacity);
  if (name == u"stroke-width") return ReadNumber(value, style.strokeWidth);
  if (name == u"transform") return ReadTransform(value, style.transform);
  if (name == u"stroke-linecap") {
    style.cap = value == u"round" ? Qt::RoundCap : Qt::FlatCap;
    return value == u"round" || value == u"butt";
  }
  if (name == u"stroke-linejoin") {
    style.join = Qt::RoundJoin;
    return value == u"round";
  }
  return false;
}

// "translate(604 0) scale(-1 1)": the last one is nearest to the shape.
bool VectorDrawing::ReadTransform(QStringView text, QTransform& transform) const {
  for (const QStringView step : text.split(u')', Qt::SkipEmptyParts)) {
    const qsizetype bracket = step.indexOf(u'(');
    if (bracket < 0) return false;
    const QStringView name = step.left(bracket).trimmed();
    const std::vector<double> numbers = NumbersIn(step.mid(bracket + 1));
    if (name == u"translate" && numbers.size() == 2) {
      transform.translate(numbers[0], numbers[1]);
    } else if (name == u"scale" && numbers.size() == 2) {
      transform.scale(numbers[0], numbers[1]);
    } else if (name == u"rotate" && numbers.size() == 1) {
      transform.rotate(numbers[0]);
    } else {
      return false;
    }
  }
  return true;
}

bool VectorDrawing::AddShape(const QXmlStreamReader& reader, const Style& style) {
  const std::optional<QPainterPath> path = PathOf(reader);
  if (!path) return false;
  Shape shape{*path, style.transform, Qt::NoBrush, Qt::NoPen};
  if (style.fill.isValid()) shape.fill = Faded(style.fill, style.fillOpacity);
  if (style.stroke.isValid()) {
    shape.stroke = QPen(Faded(style.stroke, style.strokeOpacity), style.strokeWidth, Qt::SolidLine,
                        style.cap, style.join);
  }
  shapes_.push_back(shape);
  return true;
}

// The shapes of a part that stands further up, once more. Its own frame is theirs already.
bool VectorDrawing::Repeat(const QXmlStreamReader& reader, const Style& style) {
  const QString name = reader.attributes().value("xlink:href"_L1).toString();
  const auto part = named_.constFind(name.mid(1));
  if (part == named_.cend()) return false;
  for (std::size_t i = part->first; i < part->last; ++i) {
    Shape shape = shapes_[i];
    shape.transform *= style.transform;
    shapes_.push_back(shape);
  }
  return true;
}

void VectorDrawing::SetColors(const QHash<QRgb, QColor>& others) {
  const auto other = [&others](QColor color) {
    const auto found = others.constFind(color.rgb());
    return found == others.cend() ? color : Faded(*found, color.alphaF());
  };
  for (Shape& shape : shapes_) {
    if (shape.fill.style() != Qt::NoBrush) shape.fill.setColor(other(shape.fill.color()));
    if (shape.stroke.style() != Qt::NoPen) shape.stroke.setColor(other(shape.stroke.color()));
  }
}

void VectorDrawing::Paint(QPainter& painter, const QRectF& area) const {
  if (viewBox_.isEmpty()) return;
  painter.save();
  painter.translate(area.topLeft());
  painter.scale(area.width() / viewBox_.width(), area.height() / viewBox_.height());
  painter.translate(-viewBox_.topLeft());
  const QTransform frame = painter.transform();
  for (const Shape& shape : shapes_) {
    painter.setTransform(shape.transform * frame);
    painter.fillPath(shape.path, shape.fill);
    if (shape.stroke.style() != Qt::NoPen) painter.strokePath(shape.path, shape.stroke);
  }
  painter.restore();
}

}  // namespace mortane

#include "widgets/TurretButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <array>

#include "widgets/Icons.h"
#include "widgets/Paint.h"

namespace mortane {
namespace {

constexpr double kHaloRoom = 8;
constexpr double kHaloOutside = 5.5;
constexpr double kFocusOutside = 7;
constexpr double kTileCorner = 4;
constexpr double kTextMargin = 4;
constexpr double kGlyphMargin = 3;
constexpr double kLargestGlyph = 34;
constexpr double kShareOfGlyph = 0.5;  // of the height of a tile
constexpr double kShareOfRing = 0.18;
constexpr double kLeastRing = 3;
constexpr double kMostRing = 5;
const QLatin1String kFree("----");

struct RingRow {
  double magnification;
  Tone tone;
};

constexpr std::array kRings{
    RingRow{1, Tone::RingBlack},     RingRow{2, Tone::RingGrey},  RingRow{2.5, Tone::RingBrown},
    RingRow{4, Tone::RingRed},       RingRow{5, Tone::RingRed},   RingRow{10, Tone::RingYellow},
    RingRow{20, Tone::RingGreen},    RingRow{40, Tone::RingBlue}, RingRow{50, Tone::RingBlue},
    RingRow{60, Tone::RingDarkBlue},
};
constexpr double kLeastWhite = 100;

QPen LinePen(const QColor& line, double width = 1.2) {
  return {line, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QPen DashedPen(const QColor& line) {
  QPen pen(line, 1.2);
  pen.setDashPattern({3, 2.4});
  return pen;
}

// The largest of the allowed fonts in which the text fits.
QFont FontThatFits(const QString& text, double width) {
  QFont larger = FrameCaptionFont();
  return QFontMetricsF(larger).horizontalAdvance(text) <= width ? larger : MarkFont();
}

}  // namespace

Tone RingTone(double magnification) {
  if (magnification >= kLeastWhite) return Tone::RingWhite;
  for (const RingRow& row : kRings) {
    if (row.magnification == magnification) return row.tone;
  }
  return Tone::DrawingLine;
}

TurretButton::TurretButton(PlaceKind kind, int address, QWidget* parent)
    : QAbstractButton(parent), kind_(kind), address_(address) {
  setCheckable(true);
  setAttribute(Qt::WA_Hover);
}

void TurretButton::SetItem(const TurretItem& item) {
  item_ = item;
  const QString details = item.mark.isEmpty() ? QString(kFree) : item.details;
  setAccessibleName(QStringLiteral("Address %1, %2").arg(address_).arg(details));
  setToolTip(item.mark.isEmpty() ? QString() : item.details);
  update();
}

void TurretButton::SetPlaceSize(const QSizeF& size) {
  placeSize_ = size;
  update();
}

double TurretButton::HaloRoom() {
  return kHaloRoom;
}

void TurretButton::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
      emit stepped(1);
      return;
    case Qt::Key_Left:
    case Qt::Key_Up:
      emit stepped(-1);
      return;
    default:
      QAbstractButton::keyPressEvent(event);
  }
}

bool TurretButton::hitButton(const QPoint& at) const {
  const QPointF distance = QPointF(at) - QRectF(rect()).center();
  if (kind_ == PlaceKind::Cubes) {
    return qAbs(distance.x()) <= placeSize_.width() / 2 &&
           qAbs(distance.y()) <= placeSize_.height() / 2;
  }
  return QPointF::dotProduct(distance, distance) <= placeSize_.width() * placeSize_.width() / 4;
}

void TurretButton::PaintShape(QPainter& painter, const QRectF& area) const {
  if (kind_ == PlaceKind::Objectives) {
    painter.drawEllipse(area);
    return;
  }
  const double corner = kTileCorner + (area.width() - placeSize_.width()) / 2;
  painter.drawRoundedRect(area, corner, corner);
}

void TurretButton::PaintFree(QPainter& painter, const QRectF& place) const {
  painter.setPen(DashedPen(palette().color(QPalette::Dark)));
  painter.setBrush(ToneColor(Tone::DrawingShade));
  PaintShape(painter, place);
  painter.setFont(CaptionFont());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(place, Qt::AlignCenter, kFree);
}

void TurretButton::PaintObjective(QPainter& painter, const QRectF& place) const {
  const QColor line = ToneColor(Tone::DrawingLine);
  const double ring = qBound(kLeastRing, place.width() / 2 * kShareOfRing, kMostRing);
  const QColor hovered = palette().color(QPalette::Midlight);
  painter.setPen(LinePen(line));
  painter.setBrush(ToneColor(RingTone(item_.magnification.value_or(0))));
  painter.drawEllipse(place.adjusted(1.5, 1.5, -1.5, -1.5));
  const double inset = 1.5 + ring;
  const QRectF face = place.adjusted(inset, inset, -inset, -inset);
  painter.setBrush(underMouse() ? hovered : palette().color(QPalette::Active, QPalette::Base));
  painter.drawEllipse(face);
  painter.setFont(FontThatFits(item_.mark, face.width() - kTextMargin));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(face, Qt::AlignCenter, item_.mark);
}

void TurretButton::PaintCube(QPainter& painter, const QRectF& place) const {
  painter.setPen(LinePen(ToneColor(Tone::DrawingLine)));
  painter.setBrush(palette().color(underMouse() ? QPalette::Midlight : QPalette::Base));
  PaintShape(painter, place);
  const QFont font = FontThatFits(item_.mark, place.width() - 2 * kTextMargin);
  painter.setFont(font);
  painter.setPen(palette().color(QPalette::WindowText));
  const double side = qMin(kLargestGlyph, place.height() * kShareOfGlyph);
  const QRectF upper = place.adjusted(kTextMargin, 1, -kTextMargin, -side - kGlyphMargin);
  painter.drawText(upper, Qt::AlignCenter,
                   QFontMetricsF(font).elidedText(item_.mark, Qt::ElideRight, upper.width()));
  DrawIcon(painter, IconName::Cube,
           QRectF(place.center().x() - side / 2, place.bottom() - side - kGlyphMargin, side, side),
           {palette().color(QPalette::WindowText), ToneColor(Tone::IconAccent)});
}

void TurretButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QRectF place(QPointF(), placeSize_);
  place.moveCenter(QRectF(rect()).center());
  const auto around = [&place](double by) { return place.adjusted(-by, -by, by, by); };
  if (isChecked()) {
    painter.setPen(LinePen(ToneColor(Tone::DrawingLine), 1));
    painter.setBrush(ToneColor(Tone::Amber));
    PaintShape(painter, around(kHaloOutside - 0.5));
  }
  if (item_.mark.isEmpty()) {
    PaintFree(painter, place);
  } else if (kind_ == PlaceKind::Objectives) {
    PaintObjective(painter, place);
  } else {
    PaintCube(painter, place);
  }
  if (hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    PaintShape(painter, around(kFocusOutside - 0.2));
  }
  if (item_.pending) {
    const double reach = kind_ == PlaceKind::Objectives ? 0.36 : 0.5;
    DrawPendingDot(painter,
                   place.center() + QPointF(placeSize_.width(), -placeSize_.height()) * reach,
                   palette().color(QPalette::Link), palette().color(QPalette::Base));
  }
}

}  // namespace mortane

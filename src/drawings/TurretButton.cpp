#include "drawings/TurretButton.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <array>
#include <cmath>

#include "drawings/ArrowSteps.h"
#include "widgets/Icons.h"
#include "widgets/NotSent.h"
#include "widgets/Paint.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr double kHaloRoom = 8;
constexpr double kHaloOutside = 5.5;
constexpr double kFocusOutside = 7;
constexpr double kTileCorner = 4;
constexpr double kTileHeightShare = 0.8;
constexpr double kTextMargin = 4;
constexpr int kLeastCharacters = 8;  // of a name that is elided
// Shares of a tile's height.
constexpr double kTextMiddle = 0.3;
constexpr double kGlyphMiddle = 0.7;
constexpr double kGlyphHeight = 0.4;
constexpr double kMostGlyph = 60;
constexpr double kRimInset = 1.5;
constexpr double kShareOfRing = 0.18;
constexpr double kLeastRing = 3;
constexpr double kMostRing = 5;  // of a place up to 100 wide
constexpr double kLargeRing = kMostRing / 100;
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

double RingWidth(double placeWidth) {
  return qBound(kLeastRing, placeWidth / 2 * kShareOfRing,
                qMax(kMostRing, placeWidth * kLargeRing));
}

double FaceWidth(double placeWidth) {
  return placeWidth - 2 * (kRimInset + RingWidth(placeWidth));
}

// How wide a round face must be for a text whose corners keep clear of its edge.
double FaceWidthFor(const QString& text, const QFont& font) {
  const QFontMetricsF metrics(font);
  return std::hypot(metrics.horizontalAdvance(text), metrics.capHeight()) + 2 * kTextMargin;
}

}  // namespace

Tone RingTone(double magnification) {
  if (magnification >= kLeastWhite) return Tone::RingWhite;
  for (const RingRow& row : kRings) {
    if (row.magnification == magnification) return row.tone;
  }
  return Tone::DrawingLine;
}

TurretButton::TurretButton(PlaceKind kind, int number, QWidget* parent)
    : QAbstractButton(parent), kind_(kind), number_(number), labelFont_(MarkFont()) {
  setCheckable(true);
  setAttribute(Qt::WA_Hover);
  constexpr int kRoom = static_cast<int>(kHaloRoom);
  setContentsMargins(kRoom, kRoom, kRoom, kRoom);
}

void TurretButton::SetItem(const TurretItem& item) {
  item_ = item;
  Tell();
}

void TurretButton::SetPending(const std::optional<QString>& was) {
  if (was_ == was) return;
  was_ = was;
  Tell();
}

void TurretButton::Tell() {
  const QString details = item_.label.isEmpty() ? QString(kFree) : item_.details;
  setAccessibleName(u"Address %1, %2"_s.arg(address()).arg(details));
  const QString note = NotSent(was_);
  setAccessibleDescription(note);
  QStringList tip;
  if (!item_.label.isEmpty()) tip.append(item_.details);
  if (!note.isEmpty()) tip.append(note);
  setToolTip(tip.join(u'\n'));
  update();
}

int TurretButton::address() const {
  return item_.address > 0 ? item_.address : number_;
}

QSizeF TurretButton::PlaceSizeFor(double width) const {
  return {width, kind_ == PlaceKind::Objectives ? width : width * kTileHeightShare};
}

double TurretButton::TileShape() {
  return kTileHeightShare;
}

double TurretButton::LeastPlaceWidth() const {
  if (item_.label.isEmpty()) return 0;
  if (kind_ == PlaceKind::Objectives) {
    return FaceWidthFor(item_.label, MarkFont()) + 2 * (kRimInset + kMostRing);
  }
  const QFontMetricsF metrics(MarkFont());
  return qMin(metrics.horizontalAdvance(item_.label),
              metrics.averageCharWidth() * kLeastCharacters) +
         2 * kTextMargin;
}

bool TurretButton::HasRoomForLabel(const QFont& font) const {
  if (kind_ == PlaceKind::Objectives) {
    return FaceWidthFor(item_.label, font) <= FaceWidth(placeSize_.width());
  }
  return QFontMetricsF(font).horizontalAdvance(item_.label) <= placeSize_.width() - 2 * kTextMargin;
}

void TurretButton::SetLabelFont(const QFont& font) {
  labelFont_ = font;
  update();
}

double TurretButton::ReachTowards(QPointF direction) const {
  const QSizeF half = placeSize_ / 2;
  if (kind_ == PlaceKind::Objectives) return half.width() + kHaloRoom;
  // To the edge of the tile that the direction meets first.
  constexpr double kParallel = 1e-6;
  const double across = half.width() / qMax(kParallel, qAbs(direction.x()));
  const double along = half.height() / qMax(kParallel, qAbs(direction.y()));
  return qMin(across, along) + kHaloRoom;
}

void TurretButton::SetPlaceSize(const QSizeF& size) {
  placeSize_ = size;
  update();
}

double TurretButton::HaloRoom() {
  return kHaloRoom;
}

void TurretButton::keyPressEvent(QKeyEvent* event) {
  const int steps = ArrowSteps(event->key());
  if (steps == 0) return QAbstractButton::keyPressEvent(event);
  Q_EMIT stepped(steps);
}

void TurretButton::keyReleaseEvent(QKeyEvent* event) {
  const QScopedValueRollback<bool> pressed(pressed_, true);
  QAbstractButton::keyReleaseEvent(event);
}

void TurretButton::mouseReleaseEvent(QMouseEvent* event) {
  const QScopedValueRollback<bool> pressed(pressed_, true);
  QAbstractButton::mouseReleaseEvent(event);
}

bool TurretButton::hitButton(const QPoint& at) const {
  const QPointF distance = QPointF(at) - QRectF(rect()).center();
  if (kind_ != PlaceKind::Objectives) {
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
  const QColor hovered = palette().color(QPalette::Midlight);
  painter.setPen(LinePen(line));
  painter.setBrush(ToneColor(RingTone(item_.magnification.value_or(0))));
  painter.drawEllipse(place.adjusted(kRimInset, kRimInset, -kRimInset, -kRimInset));
  QRectF face(0, 0, FaceWidth(place.width()), FaceWidth(place.width()));
  face.moveCenter(place.center());
  painter.setBrush(underMouse() ? hovered : palette().color(QPalette::Active, QPalette::Base));
  painter.drawEllipse(face);
  painter.setFont(labelFont_);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(face, Qt::AlignCenter, item_.label);
}

void TurretButton::PaintTile(QPainter& painter, const QRectF& place) const {
  painter.setPen(LinePen(ToneColor(Tone::DrawingLine)));
  painter.setBrush(palette().color(underMouse() ? QPalette::Midlight : QPalette::Base));
  PaintShape(painter, place);
  const double room = place.width() - 2 * kTextMargin;
  painter.setFont(labelFont_);
  painter.setPen(palette().color(QPalette::WindowText));
  const QFontMetricsF metrics(labelFont_);
  QRectF text(0, 0, room, metrics.height());
  text.moveCenter({place.center().x(), place.top() + place.height() * kTextMiddle});
  painter.drawText(text, Qt::AlignCenter, metrics.elidedText(item_.label, Qt::ElideRight, room));
  const double side = qMin(kMostGlyph, place.height() * kGlyphHeight);
  QRectF glyph(0, 0, side, side);
  glyph.moveCenter({place.center().x(), place.top() + place.height() * kGlyphMiddle});
  PaintGlyph(painter, glyph);
}

void TurretButton::PaintGlyph(QPainter& painter, const QRectF& area) const {
  const QColor line = ToneColor(Tone::DrawingLine);
  const QColor accent = ToneColor(Tone::IconAccent);
  if (kind_ == PlaceKind::Condensers) {
    // The icon has a margin of its own.
    const double margin = area.width() * 0.2;
    DrawIcon(painter, IconName::Condenser, area.adjusted(-margin, -margin, margin, margin),
             {line, accent});
    return;
  }
  // From the side: the mirror in its cube, the exciter before it and the barrier behind it.
  const double bar = area.width() * 0.12;
  painter.setPen(LinePen(line));
  painter.setBrush(ToneColor(Tone::DrawingFill));
  painter.drawRect(area);
  painter.setPen(LinePen(accent, bar));
  painter.drawLine(area.bottomLeft(), area.topRight());
  const double away = area.width() * 0.34;
  const double inset = area.height() * 0.16;
  painter.drawLine(
      QLineF(area.left() - away, area.top() + inset, area.left() - away, area.bottom() - inset));
  painter.setPen(LinePen(line, bar));
  painter.drawLine(
      QLineF(area.right() + away, area.top() + inset, area.right() + away, area.bottom() - inset));
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
  if (item_.label.isEmpty()) {
    PaintFree(painter, place);
  } else if (kind_ == PlaceKind::Objectives) {
    PaintObjective(painter, place);
  } else {
    PaintTile(painter, place);
  }
  if (hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    PaintShape(painter, around(kFocusOutside - 0.2));
  }
  if (isPending()) {
    const double reach = kind_ == PlaceKind::Objectives ? 0.36 : 0.5;
    DrawPendingDot(painter,
                   place.center() + QPointF(placeSize_.width(), -placeSize_.height()) * reach,
                   palette().color(QPalette::Link), palette().color(QPalette::Base));
  }
}

}  // namespace mortane

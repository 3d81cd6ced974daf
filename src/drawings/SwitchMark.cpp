#include "drawings/SwitchMark.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QtMath>

#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kMarkIconSide = 20;
constexpr double kSwitchCorner = 5;
constexpr double kKeyCorner = 9;
constexpr double kLine = 1.4;
constexpr double kKeyLine = 1.6;
constexpr double kChosenKeyLine = 2.6;

// Of the radius of a dial.
constexpr double kChevronAt = 0.6;
constexpr double kChevronSide = 0.17;
constexpr double kTickFrom = 0.80;
constexpr double kTickTo = 0.89;
constexpr double kInnerRing = 0.76;
constexpr double kArrowRing = 0.56;
constexpr int kTicks = 48;
constexpr double kArrowHalfAngle = 62;  // degrees to both sides of the top
constexpr double kArrowHead = 5;

// Room between a text and what stands around it.
constexpr double kClearOfChevron = 1.2;
constexpr double kClearOfEdge = 3;

// Heights of texts as shares of the mark's height, from which they grow with a drawing.
constexpr double kTextShare = 0.45;
constexpr double kDialTextShare = 0.4;
constexpr double kHandDialTextShare = 0.11;

struct MarkColors {
  QColor line;
  QColor fill;
  QColor text;
};

QPen RoundPen(const QColor& color, double width) {
  return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

bool IsOnBody(MarkKind kind) {
  return kind == MarkKind::BodyDial || kind == MarkKind::BodySwitch;
}

MarkColors ColorsOnPlate(MarkKind kind, const MarkState& state) {
  if (!state.enabled) return {ToneColor(Tone::RailDisabled), {}, ToneColor(Tone::RailDisabled)};
  const QColor light = ToneColor(Tone::RailText);
  const QColor amber = ToneColor(Tone::Amber);
  if (IsOnBody(kind)) {
    if (state.chosen) return {amber, amber, ToneColor(Tone::OnAmber)};
    return {light, ToneColor(state.hovered ? Tone::RailSelected : Tone::RailHover), light};
  }
  const QColor ground = ToneColor(state.hovered ? Tone::RailHover : Tone::SwitchPlate);
  return state.chosen ? MarkColors{amber, ground, amber} : MarkColors{light, ground, light};
}

QPen LineOf(MarkKind kind, const MarkColors& colors, const MarkState& state) {
  if (!state.enabled) {
    QPen dashed(colors.line, kLine);
    dashed.setDashPattern({2.6, 2.2});
    return dashed;
  }
  if (kind != MarkKind::HandKey) return RoundPen(colors.line, kLine);
  return RoundPen(colors.line, state.chosen ? kChosenKeyLine : kKeyLine);
}

void DrawChevrons(QPainter& painter, const QRectF& circle, const QColor& color, double width,
                  double at) {
  const double radius = circle.width() / 2;
  const double side = radius * kChevronSide;
  painter.setPen(RoundPen(color, width));
  painter.setBrush(Qt::NoBrush);
  for (const int direction : {-1, 1}) {
    const QPointF tip = circle.center() + QPointF(direction * (at * radius + side), 0);
    painter.drawPolyline(QPolygonF{tip + QPointF(-direction * side, -side), tip,
                                   tip + QPointF(-direction * side, side)});
  }
}

QPointF OnCircle(QPointF center, double radius, double degreesFromTop) {
  const double angle = qDegreesToRadians(degreesFromTop);
  return center + QPointF(std::sin(angle), -std::cos(angle)) * radius;
}

// Scale ring and the arrow in both directions over the text.
void DrawDialFace(QPainter& painter, const QRectF& circle, const QColor& color) {
  const QPointF center = circle.center();
  const double radius = circle.width() / 2;
  QColor faint = color;
  faint.setAlpha(115);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(RoundPen(faint, 1));
  painter.drawEllipse(center, radius * kInnerRing, radius * kInnerRing);
  for (int i = 0; i < kTicks; ++i) {
    const double angle = 360.0 * i / kTicks;
    painter.drawLine(OnCircle(center, radius * kTickFrom, angle),
                     OnCircle(center, radius * kTickTo, angle));
  }
  painter.setPen(RoundPen(color, 2));
  const double arrow = radius * kArrowRing;
  const QRectF ring(center - QPointF(arrow, arrow), center + QPointF(arrow, arrow));
  painter.drawArc(ring, qRound((90 - kArrowHalfAngle) * 16), qRound(2 * kArrowHalfAngle * 16));
  for (const int direction : {-1, 1}) {
    const QPointF tip = OnCircle(center, arrow, direction * kArrowHalfAngle);
    // Along the arc at its end, and half a right angle to both sides of it.
    for (const double turn : {-45.0, 45.0}) {
      const double back = direction * kArrowHalfAngle + direction * -90 + turn;
      painter.drawLine(tip, OnCircle(tip, kArrowHead, back));
    }
  }
}

QFont OwnFont(MarkKind kind) {
  return kind == MarkKind::HandKey ? TitleFont() : MarkFont();
}

double TextShare(MarkKind kind) {
  if (kind == MarkKind::HandDial) return kHandDialTextShare;
  return kind == MarkKind::BodyDial ? kDialTextShare : kTextShare;
}

// What a text may take of the width of a mark, as a share and less that many pixels.
struct TextRoom {
  double share;
  double less;
};

TextRoom RoomOf(MarkKind kind) {
  if (kind == MarkKind::BodyDial) return {kChevronAt, 2 * kClearOfChevron};
  return {kind == MarkKind::HandDial ? kInnerRing : 1, 2 * kClearOfEdge};
}

// In its own size or in one that grows with the mark, and never wider than its room.
QFont TextFont(const SwitchMark& mark, const QRectF& area) {
  QFont font = OwnFont(mark.kind);
  const int own = QFontInfo(font).pixelSize();
  const double size = qMax<double>(own, area.height() * TextShare(mark.kind));
  font.setPixelSize(qRound(size));
  const TextRoom room = RoomOf(mark.kind);
  const double most = area.width() * room.share - room.less;
  const double needed = QFontMetricsF(font).horizontalAdvance(mark.text);
  if (needed > most) font.setPixelSize(qMax(1, qFloor(size * most / needed)));
  return font;
}

void DrawMarkText(QPainter& painter, const SwitchMark& mark, const QRectF& area,
                  const QColor& color) {
  painter.setFont(TextFont(mark, area));
  painter.setPen(color);
  painter.drawText(area, Qt::AlignCenter, mark.text);
}

// On the ground of a list the marks of the body are light, those of the hand controller dark.
MarkColors ColorsInRow(MarkKind kind, bool chosen) {
  if (!IsOnBody(kind)) {
    const QColor plate = ToneColor(Tone::SwitchPlate);
    return {plate, plate, ToneColor(chosen ? Tone::Amber : Tone::RailText)};
  }
  if (chosen) return {ToneColor(Tone::OnAmber), ToneColor(Tone::Amber), ToneColor(Tone::OnAmber)};
  return {ToneColor(Tone::DrawingLine), ToneColor(Tone::DrawingFill),
          QApplication::palette().color(QPalette::WindowText)};
}

void DrawMarkInRow(QPainter& painter, const SwitchMark& mark, const QRectF& area, bool chosen) {
  const MarkColors colors = ColorsInRow(mark.kind, chosen);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(RoundPen(colors.line, kLine));
  painter.setBrush(colors.fill);
  const QRectF shape = area.adjusted(1, 1, -1, -1);
  if (IsDial(mark.kind)) {
    painter.drawEllipse(shape);
  } else {
    painter.drawRoundedRect(shape, kSwitchCorner, kSwitchCorner);
  }
  if (mark.kind == MarkKind::HandDial) {
    DrawChevrons(painter, shape, colors.text, 1.6, 0.2);
    return;
  }
  if (mark.kind == MarkKind::BodyDial) DrawChevrons(painter, shape, colors.text, 1.3, kChevronAt);
  DrawMarkText(painter, mark, shape, colors.text);
}

class MarkIconEngine : public QIconEngine {
 public:
  explicit MarkIconEngine(SwitchMark mark) : mark_(std::move(mark)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    DrawMarkInRow(*painter, mark_, rect, mode == QIcon::Selected);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new MarkIconEngine(mark_); }

 private:
  SwitchMark mark_;
};

}  // namespace

double LeastMarkScale(const SwitchMark& mark, const QSizeF& size) {
  const QFontMetricsF metrics(OwnFont(mark.kind));
  const TextRoom room = RoomOf(mark.kind);
  const double across =
      (metrics.horizontalAdvance(mark.text) + room.less) / (size.width() * room.share);
  return qMax(across, (metrics.capHeight() + 2 * kClearOfEdge) / size.height());
}

int MarkIconSide() {
  return qMax(kMarkIconSide, QFontMetrics(QApplication::font()).height());
}

void DrawMarkShape(QPainter& painter, MarkKind kind, const QRectF& area, double outside) {
  const QRectF shape = area.adjusted(-outside, -outside, outside, outside);
  if (IsDial(kind)) {
    painter.drawEllipse(shape);
    return;
  }
  const double corner = (kind == MarkKind::HandKey ? kKeyCorner : kSwitchCorner) + outside;
  painter.drawRoundedRect(shape, corner, corner);
}

void DrawMark(QPainter& painter, const SwitchMark& mark, const QRectF& area,
              const MarkState& state) {
  const MarkColors colors = ColorsOnPlate(mark.kind, state);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(LineOf(mark.kind, colors, state));
  painter.setBrush(colors.fill.isValid() ? QBrush(colors.fill) : QBrush(Qt::NoBrush));
  DrawMarkShape(painter, mark.kind, area);
  if (mark.kind == MarkKind::HandDial) DrawDialFace(painter, area, colors.text);
  if (mark.kind == MarkKind::BodyDial) DrawChevrons(painter, area, colors.text, kLine, kChevronAt);
  DrawMarkText(painter, mark, area, colors.text);
}

QIcon MarkIcon(const SwitchMark& mark) {
  return QIcon(new MarkIconEngine(mark));
}

}  // namespace mortane

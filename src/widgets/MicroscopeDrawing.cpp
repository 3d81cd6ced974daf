#include "widgets/MicroscopeDrawing.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <array>

#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr QSizeF kDesign{606, 370};
constexpr double kLeastScale = 0.8;
constexpr double kMostScale = 1.5;
constexpr double kTextGap = 7;
constexpr double kElbow = 26;
constexpr double kDotRadius = 5;
constexpr double kDisabledOpacity = 0.4;  // of the body; labels and dots have the disabled colours

enum class Side { Left, Right };

// Where an accessory sits on the drawing, and the height of its label, in design pixels.
struct Anchor {
  int number;
  Side side;
  double x;
  double y;
  double labelY;
};

constexpr std::array kAnchors{
    Anchor{1, Side::Right, 392, 60, 65},       Anchor{2, Side::Left, 327.5, 92.5, 92.5},
    Anchor{3, Side::Right, 355, 153.5, 153.5}, Anchor{4, Side::Right, 442, 43, 38},
    Anchor{5, Side::Left, 314, 132, 132},      Anchor{6, Side::Right, 368, 258, 249},
    Anchor{7, Side::Right, 428, 300, 303},     Anchor{8, Side::Left, 282, 262, 259},
    Anchor{9, Side::Left, 318, 233, 232},      Anchor{10, Side::Right, 375, 288, 276},
    Anchor{11, Side::Left, 267, 283, 286},     Anchor{12, Side::Left, 296, 314, 314},
    Anchor{13, Side::Right, 447, 314, 330},    Anchor{14, Side::Left, 289, 188.5, 188.5},
};

const Anchor* AnchorOf(int number) {
  const auto* found = std::find_if(kAnchors.begin(), kAnchors.end(),
                                   [number](const Anchor& a) { return a.number == number; });
  return found == kAnchors.end() ? nullptr : found;
}

struct Ink {
  const char* inFile;
  Tone tone;
};

constexpr std::array kInks{
    Ink{"#33415c", Tone::DrawingLine},  Ink{"#e9edf3", Tone::DrawingFill},
    Ink{"#d5dce6", Tone::DrawingShade}, Ink{"#bfc9d6", Tone::DrawingDeep},
    Ink{"#2e9a57", Tone::RingGreen},    Ink{"#f0c419", Tone::RingYellow},
    Ink{"#5db1e6", Tone::RingBlue},     Ink{"#ffdf66", Tone::LightCone},
};

// The drawing in the colours of the scheme. White and the dark parts come from the palette.
QByteArray InkedDrawing(const QPalette& palette) {
  QFile source(QStringLiteral(":/mortane/microscope.svg"));
  if (!source.open(QIODevice::ReadOnly)) return {};
  QByteArray drawing = source.readAll();
  for (const Ink& ink : kInks) drawing.replace(ink.inFile, ToneColor(ink.tone).name().toLatin1());
  drawing.replace("#ffffff", palette.color(QPalette::Active, QPalette::Base).name().toLatin1());
  drawing.replace("#3c475c", palette.color(QPalette::Active, QPalette::Shadow).name().toLatin1());
  return drawing;
}

// Room that the labels need beyond the design, since text does not shrink with the drawing.
double ExtraOnSide(const QVector<DrawnAccessory>& accessories, Side side, double scale,
                   const QFontMetrics& metrics) {
  double extra = 0;
  for (const DrawnAccessory& accessory : accessories) {
    const Anchor* anchor = AnchorOf(accessory.number);
    if (anchor == nullptr || anchor->side != side) continue;
    const double room = (side == Side::Left ? anchor->x : kDesign.width() - anchor->x) - kElbow;
    const double needed = (metrics.horizontalAdvance(accessory.label) + 2 * kTextGap) / scale;
    extra = std::max(extra, needed - room);
  }
  return extra;
}

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
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MicroscopeDrawing::SetAccessories(const QVector<DrawnAccessory>& accessories) {
  accessories_ = accessories;
  QStringList described;
  for (const DrawnAccessory& accessory : accessories) {
    const char* state = accessory.mounted == 0   ? "not mounted"
                        : accessory.mounted == 1 ? "sensed only"
                                                 : "controllable";
    described.append(accessory.label + QStringLiteral(": ") + QLatin1String(state));
  }
  setAccessibleDescription(described.join(QStringLiteral(", ")));
  update();
}

double MicroscopeDrawing::drawingScale() const {
  double scale = std::min(width() / kDesign.width(), height() / kDesign.height());
  scale = std::clamp(scale, kLeastScale, kMostScale);
  const double extra = ExtraOnSide(accessories_, Side::Left, scale, fontMetrics()) +
                       ExtraOnSide(accessories_, Side::Right, scale, fontMetrics());
  return std::clamp(std::min(scale, width() / (kDesign.width() + extra)), kLeastScale, kMostScale);
}

QSize MicroscopeDrawing::sizeHint() const {
  return kDesign.toSize();
}

QSize MicroscopeDrawing::minimumSizeHint() const {
  return (kDesign * kLeastScale).toSize();
}

void MicroscopeDrawing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double scale = drawingScale();
  const double left = ExtraOnSide(accessories_, Side::Left, scale, fontMetrics());
  const double right = ExtraOnSide(accessories_, Side::Right, scale, fontMetrics());
  const double whole = (left + kDesign.width() + right) * scale;
  const QPointF origin((width() - whole) / 2 + left * scale,
                       (height() - kDesign.height() * scale) / 2);
  QSvgRenderer body(InkedDrawing(palette()));
  if (!isEnabled()) painter.setOpacity(kDisabledOpacity);
  body.render(&painter, QRectF(origin, kDesign * scale));
  painter.setOpacity(1);

  const auto place = [&](double x, double y) { return origin + QPointF(x, y) * scale; };
  const double labelLeft = (width() - whole) / 2;
  const double labelRight = (width() + whole) / 2;
  for (const DrawnAccessory& accessory : accessories_) {
    const Anchor* anchor = AnchorOf(accessory.number);
    if (anchor == nullptr) continue;
    const bool onLeft = anchor->side == Side::Left;
    const QPointF dot = place(anchor->x, anchor->y);
    const double y = place(0, anchor->labelY).y();
    const double advance = fontMetrics().horizontalAdvance(accessory.label);
    const double textLeft = onLeft ? labelLeft : labelRight - advance;
    const bool live = accessory.mounted != 0 && isEnabled();
    const QPalette::ColorGroup group = live ? QPalette::Active : QPalette::Disabled;
    QPen pen(palette().color(group, live ? QPalette::Dark : QPalette::Text), 1);
    if (accessory.mounted == 0) pen.setDashPattern({4, 3});
    painter.setPen(pen);
    const double from = onLeft ? textLeft + advance + kTextGap : textLeft - kTextGap;
    const double elbow = dot.x() + (onLeft ? -kElbow : kElbow) * scale;
    painter.drawPolyline(QPolygonF{{from, y}, {elbow, y}, dot});
    painter.setPen(palette().color(group, QPalette::WindowText));
    painter.drawText(QRectF(textLeft, y - 20, advance + 2, 40), Qt::AlignLeft | Qt::AlignVCenter,
                     accessory.label);
    DrawDot(painter, dot, accessory.mounted, palette(), isEnabled());
  }
}

}  // namespace mortane

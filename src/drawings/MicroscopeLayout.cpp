#include "drawings/MicroscopeLayout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace mortane {
namespace {

constexpr QSizeF kDesign{606, 370};
constexpr double kLeastScale = 0.8;
constexpr double kMostScale = 2.5;
constexpr double kTextGap = 7;
constexpr double kElbow = 26;
constexpr double kRounding = 0.5;

enum class Side { Left, Right };

// Where an accessory sits on the drawing, the height of its label, and how far the label may reach
// towards the drawing before it covers it; in design pixels.
struct Anchor {
  int number;
  Side side;
  double x;
  double y;
  double labelY;
  double reach;
};

constexpr std::array kAnchors{
    Anchor{1, Side::Right, 392, 60, 65, 462},       Anchor{2, Side::Left, 327.5, 92.5, 92.5, 301},
    Anchor{3, Side::Right, 355, 153.5, 153.5, 438}, Anchor{4, Side::Right, 442, 43, 38, 468},
    Anchor{5, Side::Left, 314, 132, 132, 288},      Anchor{6, Side::Right, 368, 258, 249, 449},
    Anchor{7, Side::Right, 428, 300, 303, 462},     Anchor{8, Side::Left, 282, 262, 259, 218},
    Anchor{9, Side::Left, 318, 233, 232, 218},      Anchor{10, Side::Right, 375, 288, 276, 462},
    Anchor{11, Side::Left, 267, 283, 286, 218},     Anchor{12, Side::Left, 296, 314, 314, 218},
    Anchor{13, Side::Right, 447, 314, 330, 473},    Anchor{14, Side::Left, 289, 188.5, 188.5, 192},
};

// A label to be placed; its width does not scale, the room that the design has for it does.
struct Wish {
  const DrawnAccessory* accessory;
  const Anchor* anchor;
  double width;

  [[nodiscard]] double RoomAt(double scale) const {
    const bool left = anchor->side == Side::Left;
    return (left ? anchor->reach : kDesign.width() - anchor->reach) * scale - kTextGap;
  }
};

QVector<Wish> WishesOf(const QVector<DrawnAccessory>& accessories, const QFontMetrics& metrics) {
  QVector<Wish> wishes;
  for (const DrawnAccessory& accessory : accessories) {
    const auto* anchor = std::find_if(kAnchors.begin(), kAnchors.end(), [&](const Anchor& row) {
      return row.number == accessory.number;
    });
    if (anchor == kAnchors.end()) continue;
    wishes.append({&accessory, anchor, double(metrics.horizontalAdvance(accessory.label))});
  }
  return wishes;
}

// What the labels of the two sides need beyond the design, in pixels of the screen.
struct Extras {
  double left = 0;
  double right = 0;
};

Extras ExtrasAt(const QVector<Wish>& wishes, double scale) {
  Extras extras;
  for (const Wish& wish : wishes) {
    double& extra = wish.anchor->side == Side::Left ? extras.left : extras.right;
    extra = std::max(extra, wish.width - wish.RoomAt(scale));
  }
  return extras;
}

// The largest scale at which the drawing and its labels fit in the width, if there is one.
double ScaleFor(const QVector<Wish>& wishes, const QSizeF& room) {
  constexpr double kStep = 0.01;
  const double largest = std::min(room.width() / kDesign.width(), room.height() / kDesign.height());
  const double first = std::clamp(largest, kLeastScale, kMostScale);
  const int steps = static_cast<int>(std::ceil((first - kLeastScale) / kStep));
  for (int step = 0; step < steps; ++step) {
    const double scale = first - step * kStep;
    const Extras extras = ExtrasAt(wishes, scale);
    if (kDesign.width() * scale + extras.left + extras.right <= room.width()) return scale;
  }
  return kLeastScale;
}

// Moves labels apart, downwards first and back up from the lower end.
void KeepApart(std::vector<DrawnLabel*> labels, double bottom) {
  std::sort(labels.begin(), labels.end(), [](const DrawnLabel* one, const DrawnLabel* other) {
    return one->area.top() < other->area.top();
  });
  double next = labels.empty() ? 0 : labels.front()->area.top();
  for (DrawnLabel* label : labels) {
    label->area.moveTop(std::max(label->area.top(), next));
    next = label->area.bottom();
  }
  std::for_each(labels.rbegin(), labels.rend(), [&bottom](DrawnLabel* label) {
    label->area.moveBottom(std::min(label->area.bottom(), bottom));
    bottom = label->area.top();
  });
}

void DrawLine(DrawnLabel& label, Side side, double scale) {
  const double towards = side == Side::Left ? 1 : -1;
  const double end = side == Side::Left ? label.area.right() : label.area.left();
  const double y = label.area.center().y();
  label.lineStart = {end + towards * kTextGap, y};
  label.elbow = {label.dot.x() - towards * kElbow * scale, y};
}

// The drawing, and around it the room of the labels.
struct Frame {
  double scale;
  Extras extras;
  QRectF body;
  QRectF outside;
};

Frame FrameIn(const QSizeF& room, const QVector<Wish>& wishes) {
  Frame frame;
  frame.scale = ScaleFor(wishes, room);
  Extras& extras = frame.extras = ExtrasAt(wishes, frame.scale);
  const double needed = extras.left + extras.right;
  const double spare = std::max(0.0, room.width() - kDesign.width() * frame.scale);
  // Where not all of it is to be had, both sides give way alike.
  if (needed > spare) extras = {extras.left * spare / needed, extras.right * spare / needed};
  frame.body.setSize(kDesign * frame.scale);
  frame.outside.setSize({frame.body.width() + extras.left + extras.right, room.height()});
  frame.outside.moveLeft((room.width() - frame.outside.width()) / 2);
  frame.body.moveCenter(frame.outside.center());
  frame.body.moveLeft(frame.outside.left() + extras.left);
  return frame;
}

DrawnLabel PlaceLabel(const Wish& wish, const Frame& frame, const QFontMetrics& metrics) {
  const bool onLeft = wish.anchor->side == Side::Left;
  const Extras& extras = frame.extras;
  const double most = wish.RoomAt(frame.scale) + (onLeft ? extras.left : extras.right);
  DrawnLabel label;
  label.accessory = *wish.accessory;
  label.shown = wish.accessory->label;
  if (wish.width > most + kRounding) {
    label.shown = metrics.elidedText(label.shown, Qt::ElideRight, static_cast<int>(most));
  }
  label.area.setSize({double(metrics.horizontalAdvance(label.shown)), double(metrics.height())});
  label.area.moveCenter({0, frame.body.top() + wish.anchor->labelY * frame.scale});
  if (onLeft) {
    label.area.moveLeft(frame.outside.left());
  } else {
    label.area.moveRight(frame.outside.right());
  }
  label.dot = frame.body.topLeft() + QPointF(wish.anchor->x, wish.anchor->y) * frame.scale;
  return label;
}

}  // namespace

QSizeF MicroscopeDesignSize() {
  return kDesign;
}

double LeastMicroscopeScale() {
  return kLeastScale;
}

double LeastMicroscopeWidth(const QVector<DrawnAccessory>& accessories,
                            const QFontMetrics& metrics) {
  const Extras extras = ExtrasAt(WishesOf(accessories, metrics), kLeastScale);
  return kDesign.width() * kLeastScale + extras.left + extras.right;
}

MicroscopeLayout LayOutMicroscope(const QVector<DrawnAccessory>& accessories, const QSizeF& room,
                                  const QFontMetrics& metrics) {
  const QVector<Wish> wishes = WishesOf(accessories, metrics);
  const Frame frame = FrameIn(room, wishes);
  MicroscopeLayout layout{frame.scale, frame.body, {}};
  for (const Wish& wish : wishes) layout.labels.append(PlaceLabel(wish, frame, metrics));
  for (const Side side : {Side::Left, Side::Right}) {
    std::vector<DrawnLabel*> labels;
    for (qsizetype i = 0; i < wishes.size(); ++i) {
      if (wishes[i].anchor->side == side) labels.push_back(&layout.labels[i]);
    }
    KeepApart(labels, room.height());
    for (DrawnLabel* label : labels) DrawLine(*label, side, frame.scale);
  }
  return layout;
}

}  // namespace mortane

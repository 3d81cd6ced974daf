#include "switches/SwitchCtlPlans.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr double kBodyDial = 25;
constexpr double kBodySwitch = 23;
constexpr double kHandDial = 100;
constexpr QSizeF kHandKey{62, 44};

// From the middle of the mark.
PlacedMark OnBody(int index, MarkKind kind, const char* number, double x, double y) {
  const double side = kind == MarkKind::BodyDial ? kBodyDial : kBodySwitch;
  return {index, {kind, QLatin1String(number)}, {x - side / 2, y - side / 2, side, side}};
}

PlacedMark OnHand(int index, const char* glyph, double x, double y) {
  const QPointF corner(x - kHandKey.width() / 2, y - kHandKey.height() / 2);
  return {index, {MarkKind::HandKey, QLatin1String(glyph)}, {corner, kHandKey}};
}

}  // namespace

SwitchPlan BodyPlan() {
  using enum MarkKind;
  return {u"body"_s,
          {604, 302},
          {
              OnBody(6, BodySwitch, "3", 34, 216.5),
              OnBody(7, BodySwitch, "4", 34, 248.5),
              OnBody(2, BodyDial, "3", 68, 232.5),
              OnBody(0, BodyDial, "1", 253, 233),
              OnBody(4, BodySwitch, "1", 286, 233),
              OnBody(5, BodySwitch, "2", 318, 233),
              OnBody(1, BodyDial, "2", 351, 233),
              OnBody(3, BodyDial, "4", 536, 232.5),
              OnBody(8, BodySwitch, "5", 570, 216.5),
              OnBody(9, BodySwitch, "6", 570, 248.5),
          },
          {{u"Left"_s, {103, 290}}, {u"Front"_s, {302, 290}}, {u"Right"_s, {501, 290}}}};
}

SwitchPlan HandControllerPlan() {
  const QRectF dial(200 - kHandDial / 2, 32, kHandDial, kHandDial);
  return {u"handcontroller"_s,
          {400, 294},
          {
              {0, {MarkKind::HandDial, u"CW/CCW"_s}, dial},
              OnHand(1, "L", 128, 147),
              OnHand(2, "R", 272, 147),
              OnHand(3, "1", 128, 219),
              OnHand(4, "2", 200, 219),
              OnHand(5, "3", 272, 219),
          },
          {}};
}

}  // namespace mortane

// The disc of a turret behind its places, and the numbers on it.
#include <QPainter>
#include <QtMath>
#include <cmath>

#include "drawings/TurretDrawing.h"
#include "gui/support/Face.h"
#include "gui/support/TestWindow.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

using test::Use;

TEST(TurretDisc, TheDiscHasARimAndAHub) {
  TurretDrawing turret(PlaceKind::Objectives);
  const QImage picture = test::PictureOf(turret, {280, 280}, Use::Rest);
  EXPECT_EQ(test::RowOf(picture, 140),
            "Window 1, ~ 31, DrawingFill 94, ~ 2, DrawingShade 7, ~ 2, DrawingFill 6, ~ 2, "
            "DrawingShade 7, ~ 2, DrawingFill 94, ~ 31, Window 1");
  EXPECT_EQ(test::ColumnOf(picture, 140),
            "Window 1, ~ 31, DrawingFill 94, ~ 2, DrawingShade 7, ~ 2, DrawingFill 6, ~ 2, "
            "DrawingShade 7, ~ 2, DrawingFill 94, ~ 31, Window 1");
  // About half of each of two pixels is the hub's edge.
  const int line = ToneColor(Tone::DrawingLine).lightness();
  const int most = line + (ToneColor(Tone::DrawingShade).lightness() - line) * 11 / 20;
  for (const int x : {126, 127, 152, 153}) {
    EXPECT_LT(picture.pixelColor(x, 140).lightness(), most) << x;
  }
}

TEST(TurretDisc, NothingOfTheDiscIsDarkerThanItsLines) {
  TurretDrawing turret(PlaceKind::Objectives);
  const QImage disc = test::PictureOf(turret, {280, 280}, Use::Rest);
  const int line = ToneColor(Tone::DrawingLine).lightness();
  int darkest = 255;
  for (int x = 0; x < disc.width(); ++x)
    darkest = qMin(darkest, disc.pixelColor(x, 140).lightness());
  EXPECT_GE(darkest, line);
  // A line of the rim covers less than half of each of two pixels.
  const int rim = disc.pixelColor(146, 4).lightness();
  for (const int x : {139, 140})
    EXPECT_GT(disc.pixelColor(x, 4).lightness(), (line + rim) / 2) << x;
}

// How much of that part of a picture is ink, by its difference from the ground.
int InkIn(const QImage& picture, const QRect& part) {
  const int ground = picture.pixelColor(part.topLeft()).lightness();
  int ink = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x)
      ink += qAbs(picture.pixelColor(x, y).lightness() - ground);
  }
  return ink;
}

// The number of the only place stands 42 pixels above the middle.
TEST(TurretDisc, TheNumberOfTheChosenPlaceIsBoldAndDark) {
  for (const bool chosen : {false, true}) {
    TurretDrawing turret(PlaceKind::Objectives);
    TurretItem item;
    item.address = 88;
    turret.SetItems({item});
    if (chosen) turret.setIndex(0);
    const QImage picture = test::PictureOf(turret, {280, 280}, Use::Rest);
    const QRect part(124, 90, 32, 16);
    const QPalette palette = test::TellablePalette();
    QImage wanted(picture.size(), picture.format());
    wanted.fill(picture.pixelColor(part.topLeft()));
    QPainter painter(&wanted);
    painter.setFont(chosen ? BoldFont() : CaptionFont());
    painter.setPen(palette.color(chosen ? QPalette::WindowText : QPalette::PlaceholderText));
    QRectF area(0, 0, 60, QFontMetricsF(BoldFont()).height());
    area.moveCenter({140, 98});
    painter.drawText(area, Qt::AlignCenter, "88");
    painter.end();
    const int ink = InkIn(wanted, part);
    EXPECT_GT(ink, 0);
    EXPECT_NEAR(InkIn(picture, part), ink, ink / 20.0) << chosen;
  }
}

TEST(TurretDisc, SixtyLinesStandRoundTheRimOfTheDisc) {
  TurretDrawing turret(PlaceKind::Objectives);
  const QImage disc = test::PictureOf(turret, {280, 280}, Use::Rest);
  const auto lightnessAt = [&disc](double degrees) {
    const double angle = qDegreesToRadians(degrees);
    const QPointF at(140 + 135.5 * std::sin(angle), 140 - 135.5 * std::cos(angle));
    return disc.pixelColor(qFloor(at.x()), qFloor(at.y())).lightness();
  };
  for (int line = 0; line < 60; ++line) {
    EXPECT_LT(lightnessAt(6 * line), lightnessAt(6 * line + 3)) << line;
  }
}

}  // namespace
}  // namespace mortane

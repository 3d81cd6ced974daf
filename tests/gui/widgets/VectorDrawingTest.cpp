// The program's drawings, painted.
#include "widgets/VectorDrawing.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPainter>
#include "gui/support/Scanline.h"

namespace mortane::test {
namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kBlue = 0xFF0000FF;
constexpr QRgb kNothing = 0;

QByteArray Svg(const char* inside) {
  return QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 20 10\">") + inside +
         "</svg>";
}

QImage Painted(const VectorDrawing& drawing, const QRectF& area = {0, 0, 20, 10}) {
  QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  drawing.Paint(painter, area);
  return image;
}

TEST(VectorDrawing, IsStretchedOverItsArea) {
  const VectorDrawing drawing(Svg("<rect x='10' y='0' width='10' height='10' fill='#ff0000'/>"));
  const QImage image = Painted(drawing, {10, 20, 20, 20});
  EXPECT_EQ(image.pixel(19, 30), kNothing);
  EXPECT_EQ(image.pixel(20, 20), kRed);
  EXPECT_EQ(image.pixel(29, 39), kRed);
  EXPECT_EQ(image.pixel(30, 30), kNothing);
}

TEST(VectorDrawing, PartsInheritAndMayDiffer) {
  const VectorDrawing drawing(
      Svg("<g fill='#ff0000'><rect width='5' height='10'/>"
          "<rect x='5' width='5' height='10' fill='#0000ff'/></g>"
          "<rect x='10' width='5' height='10'/>"));
  const QImage image = Painted(drawing);
  EXPECT_EQ(image.pixel(2, 5), kRed);
  EXPECT_EQ(image.pixel(7, 5), kBlue);
  EXPECT_EQ(image.pixel(12, 5), 0xFF000000);
}

TEST(VectorDrawing, TransformsApplyFromTheShapeOutwards) {
  const VectorDrawing drawing(
      Svg("<g transform='translate(10 0) scale(2 1)'><rect width='1' height='10'/></g>"));
  const QImage image = Painted(drawing);
  EXPECT_EQ(image.pixel(9, 5), kNothing);
  EXPECT_EQ(image.pixel(11, 5), 0xFF000000);
  EXPECT_EQ(image.pixel(12, 5), kNothing);
}

TEST(VectorDrawing, RepeatsAPartByItsName) {
  const VectorDrawing drawing(
      "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
      "viewBox='0 0 20 10'><g id='part' fill='#ff0000'><rect width='2' height='10'/></g>"
      "<use xlink:href='#part' transform='translate(20 0) scale(-1 1)'/></svg>");
  EXPECT_EQ(drawing.NotUnderstood(), QStringList());
  const QImage image = Painted(drawing);
  EXPECT_EQ(image.pixel(0, 5), kRed);
  EXPECT_EQ(image.pixel(10, 5), kNothing);
  EXPECT_EQ(image.pixel(19, 5), kRed);
}

TEST(VectorDrawing, StrokesWithWidthAndOpacity) {
  const VectorDrawing drawing(
      Svg("<path d='M0 5H20' fill='none' stroke='#ff0000' stroke-width='4'/>"
          "<path d='M0 0H20V2H0z' fill='#0000ff' fill-opacity='.5'/>"));
  const QImage image = Painted(drawing);
  EXPECT_EQ(image.pixel(10, 3), kRed);
  EXPECT_EQ(image.pixel(10, 6), kRed);
  EXPECT_EQ(image.pixel(10, 7), kNothing);
  EXPECT_NEAR(qAlpha(image.pixel(10, 1)), 128, 1);
}

TEST(VectorDrawing, TellsWhatItDoesNotUnderstandAndPaintsTheRest) {
  const VectorDrawing drawing(
      Svg("<text>x</text><rect width='5' height='5' filter='blur'/><path d='Q1 2 3 4'/>"
          "<g transform='skewX(3)'/><use href='#nobody'/><g fill='nocolour'/>"
          "<g stroke-linecap='square'/><g stroke-width='wide'/>"));
  EXPECT_EQ(drawing.NotUnderstood(),
            (QStringList{"text", "filter=blur", "path", "transform=skewX(3)", "use",
                         "fill=nocolour", "stroke-linecap=square", "stroke-width=wide"}));
  EXPECT_EQ(Painted(drawing).pixel(2, 2), 0xFF000000);
  EXPECT_FALSE(VectorDrawing("<svg").NotUnderstood().isEmpty());
}

TEST(VectorDrawing, WithoutAViewBoxPaintsNothing) {
  const VectorDrawing drawing(
      "<svg xmlns='http://www.w3.org/2000/svg'><rect width='9' height='9'/></svg>");
  EXPECT_EQ(Painted(drawing).pixel(2, 2), kNothing);
}

struct ShapeRow {
  const char* shape;  // in red
  QRect area;         // of its pixels
};

TEST(VectorDrawing, DrawsEachShapeWhereItsAttributesPlaceIt) {
  for (const ShapeRow& row : {
           ShapeRow{"<rect x='2' y='1' width='6' height='4'/>", {2, 1, 6, 4}},
           ShapeRow{"<circle cx='10' cy='5' r='4'/>", {6, 1, 8, 8}},
           ShapeRow{"<ellipse cx='10' cy='5' rx='6' ry='3'/>", {4, 2, 12, 6}},
           ShapeRow{"<path d='M3 2H9V7H3z'/>", {3, 2, 6, 5}},
           ShapeRow{"<path d='M3 2H9V7H3z' transform='translate(4 1)'/>", {7, 3, 6, 5}},
           ShapeRow{"<path d='M0 -3H5V-1H0z' transform='rotate(90)'/>", {1, 0, 2, 5}},
           ShapeRow{"<path d='M4 5H8' stroke='#ff0000' stroke-width='2' fill='none' "
                    "stroke-linecap='butt' stroke-linejoin='round'/>",
                    {4, 4, 4, 2}},
           ShapeRow{"<path d='M4 5H8' stroke='#ff0000' stroke-width='4' fill='none' "
                    "stroke-linecap='round'/>",
                    {2, 3, 8, 4}},
       }) {
    const QByteArray red = QByteArray("<g fill='#ff0000'>") + row.shape + "</g>";
    const VectorDrawing drawing(Svg(red.constData()));
    EXPECT_EQ(drawing.NotUnderstood(), QStringList()) << row.shape;
    EXPECT_EQ(AreaOf(Painted(drawing), QColor(Qt::red)), row.area) << row.shape;
  }
}

TEST(VectorDrawing, ARectangleMayHaveRoundCorners) {
  const auto corner = [](const char* shape) {
    return Painted(VectorDrawing(Svg(shape))).pixel(0, 0) != kNothing;
  };
  EXPECT_TRUE(corner("<rect width='10' height='10'/>"));
  EXPECT_FALSE(corner("<rect width='10' height='10' rx='4'/>"));
  EXPECT_FALSE(corner("<rect width='10' height='10' rx='4' ry='4'/>"));
}

TEST(VectorDrawing, ALineMayBeFaint) {
  const VectorDrawing drawing(
      Svg("<path d='M0 5H20' stroke='#ff0000' stroke-width='4' stroke-opacity='.25'/>"));
  EXPECT_NEAR(qAlpha(Painted(drawing).pixel(10, 5)), 64, 1);
}

}  // namespace
}  // namespace mortane::test

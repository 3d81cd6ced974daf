// All drawings among the resources, beside what the toolkit's own module for SVG makes of them.
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include "widgets/VectorDrawing.h"

namespace mortane::test {
namespace {

constexpr int kLongSide = 400;
constexpr double kLargestMeanDifference = 0.35;  // of 255 levels

QByteArray Content(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

template <typename Paint>
QImage Picture(const QSize& size, Paint&& paint) {
  QImage picture(size, QImage::Format_ARGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  paint(painter, QRectF(QPointF(), size));
  return picture;
}

double MeanDifference(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb one = a.pixel(x, y);
      const QRgb other = b.pixel(x, y);
      sum += std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
             std::abs(qBlue(one) - qBlue(other));
    }
  }
  return sum / (3.0 * a.width() * a.height());
}

TEST(Drawings, AreAllUnderstoodAndLookAsTheToolkitPaintsThem) {
  QDirIterator files(":/mortane", {"*.svg"}, QDir::Files, QDirIterator::Subdirectories);
  int count = 0;
  for (; files.hasNext(); ++count) {
    const QString path = files.next();
    const QByteArray svg = Content(path);
    const VectorDrawing drawing(svg);
    EXPECT_EQ(drawing.NotUnderstood(), QStringList()) << path.toStdString();
    QSvgRenderer renderer(svg);
    const QSize size = renderer.defaultSize().scaled(kLongSide, kLongSide, Qt::KeepAspectRatio);
    const QImage ours =
        Picture(size, [&](QPainter& painter, const QRectF& area) { drawing.Paint(painter, area); });
    const QImage theirs = Picture(
        size, [&](QPainter& painter, const QRectF& area) { renderer.render(&painter, area); });
    EXPECT_LT(MeanDifference(ours, theirs), kLargestMeanDifference) << path.toStdString();
  }
  EXPECT_GE(count, 36);
}

}  // namespace
}  // namespace mortane::test

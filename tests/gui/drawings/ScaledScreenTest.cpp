// Drawings that keep a picture of themselves, on a screen with more pixels.
#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>

#include "drawings/SwitchDrawing.h"
#include "drawings/TurretDrawing.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// A drawing on a screen with that many pixels to each of the others.
template <class Drawing>
class Scaled : public Drawing {
 public:
  using Drawing::Drawing;
  int ratio = 1;

 protected:
  int metric(QPaintDevice::PaintDeviceMetric which) const override {
    if (which == QPaintDevice::PdmDevicePixelRatio) return ratio;
    if (which == QPaintDevice::PdmDevicePixelRatioScaled)
      return qRound(ratio * QPaintDevice::devicePixelRatioFScale());
    return Drawing::metric(which);
  }
};

template <class Drawing>
void ExpectSameOnScaledScreen(Scaled<Drawing>& drawing) {
  drawing.resize(300, 300);
  const QImage usual = drawing.grab().toImage();
  drawing.ratio = 2;
  const QImage doubled = drawing.grab().toImage();
  ASSERT_EQ(doubled.size(), 2 * usual.size());
  const QImage back = doubled.scaled(usual.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  double sum = 0;
  for (int y = 0; y < usual.height(); ++y) {
    for (int x = 0; x < usual.width(); ++x)
      sum += std::abs(qGray(back.pixel(x, y)) - qGray(usual.pixel(x, y)));
  }
  EXPECT_LT(sum / (usual.width() * usual.height()), 3);
  const QImage coarse = usual.scaled(doubled.size());
  EXPECT_NE(coarse.convertToFormat(QImage::Format_RGB32),
            doubled.convertToFormat(QImage::Format_RGB32))
      << "it has all its pixels";
  drawing.ratio = 1;
  EXPECT_EQ(drawing.grab().toImage(), usual);
}

TEST(ScaledScreen, ShowsADrawingInTheSameSizeAndFiner) {
  Scaled<SwitchDrawing> hand(SwitchPlan{u"handcontroller"_s, {300, 300}, {}, {}}, "optBtn");
  ExpectSameOnScaledScreen(hand);
  Scaled<TurretDrawing> turret(PlaceKind::Cubes);
  ExpectSameOnScaledScreen(turret);
}

}  // namespace
}  // namespace mortane

#include "widgets/PageHeader.h"

#include "gui/support/TestWindow.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

// How many pixels of that very colour the header shows.
int PixelsOf(PageHeader& header, const QColor& color) {
  const QImage picture = header.grab().toImage();
  int found = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) found += picture.pixelColor(x, y) == color ? 1 : 0;
  return found;
}

TEST(PageHeader, TheIconIsDisabledAsAWhole) {
  PageHeader header(IconName::Cube, "Filter Cubes");
  header.resize(400, header.sizeHint().height());
  const QColor accent = ToneColor(Tone::IconAccent);
  EXPECT_GT(PixelsOf(header, accent), 0);
  header.setEnabled(false);
  EXPECT_EQ(PixelsOf(header, accent), 0);
  EXPECT_GT(PixelsOf(header, header.palette().color(QPalette::Disabled, QPalette::WindowText)), 0);
}

TEST(PageHeader, TellsItsTitle) {
  const PageHeader header(IconName::Cube, "Filter Cubes");
  EXPECT_EQ(header.title(), "Filter Cubes");
  EXPECT_EQ(header.sectionBar(), nullptr);
}

}  // namespace
}  // namespace mortane

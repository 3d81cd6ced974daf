#include "widgets/PageHeader.h"

#include "gui/support/TestWindow.h"
#include "widgets/SectionBar.h"
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

// A bar of that many options in a header of that width.
struct BarRow {
  int options;
  int width;
  bool isBelow;
};

TEST(PageHeader, TheBarStandsBelowTheTitleWhereThatIsLower) {
  for (const BarRow& row : {BarRow{6, 1000, false}, BarRow{6, 860, false}, BarRow{2, 400, false},
                            BarRow{2, 300, false}, BarRow{3, 360, true}, BarRow{1, 210, true}}) {
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins({});
    auto* header = new PageHeader(IconName::Control, "Controls");
    column->addWidget(header);
    column->addStretch();
    SectionBar* bar = header->AddSectionBar();
    for (int i = 0; i < row.options; ++i) bar->AddOption("Tactor Switch");
    window.resize(row.width, 300);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(window.width(), row.width);
    EXPECT_EQ(bar->y() >= 56, row.isBelow) << row.options << " " << row.width;
    EXPECT_TRUE(header->rect().contains(bar->geometry())) << row.options << " " << row.width;
    EXPECT_EQ(bar->height(), bar->heightForWidth(bar->width()));
  }
}

TEST(PageHeader, TellsItsTitle) {
  const PageHeader header(IconName::Cube, "Filter Cubes");
  EXPECT_EQ(header.title(), "Filter Cubes");
  EXPECT_EQ(header.sectionBar(), nullptr);
}

}  // namespace
}  // namespace mortane

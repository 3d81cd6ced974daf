#include "widgets/PageHeader.h"

#include "gui/support/EventLoop.h"
#include "gui/support/Face.h"
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

struct ShownHeader {
  ShownHeader() {
    bar->AddOption("One");
    header.resize(600, 56);
    header.show();
    QApplication::processEvents();
  }

  PageHeader header{IconName::Cube, "Cubes"};
  SectionBar* bar = header.AddSectionBar();
};

TEST(PageHeader, TheTitleStandsBesideItsIconAndTheBarBehindTheLongestTitle) {
  ShownHeader shown;
  PageHeader& header = shown.header;
  SectionBar* bar = shown.bar;
  const auto* title = header.findChild<QLabel*>();
  ASSERT_NE(title, nullptr);
  EXPECT_EQ(title->pos(), QPoint(38, 12));
  EXPECT_EQ(title->height(), header.height() - 12);
  QLabel longest("Filter Cubes");
  longest.setFont(TitleFont());
  EXPECT_EQ(title->width(), qMax(180 - 20 - 38 - 16, longest.sizeHint().width()));
  EXPECT_EQ(bar->pos(), QPoint(38 + title->width() + 16, 12 + (44 - bar->height()) / 2));
  EXPECT_EQ(bar->accessibleName(), "Cubes");
  EXPECT_EQ(header.height(), 56);
  EXPECT_EQ(header.minimumSizeHint().width(),
            qMax(38 + title->sizeHint().width(), bar->minimumSizeHint().width()));
}

TEST(PageHeader, MakesRoomForAnOptionThatIsAddedLater) {
  ShownHeader shown;
  SectionBar* bar = shown.bar;
  const int before = bar->width();
  bar->AddOption("Two");
  test::DeliverAll();
  EXPECT_EQ(bar->width(), before + bar->option(1)->sizeHint().width());
}

TEST(PageHeader, TheIconStandsInTheMiddleOfTheTitlesHeight) {
  PageHeader header(IconName::Cube, {});
  const QImage picture = test::PictureOf(header, {60, 56}, test::Use::Rest);
  QImage wanted(picture.size(), QImage::Format_RGB32);
  wanted.fill(test::TellablePalette().color(QPalette::Window));
  QPainter painter(&wanted);
  DrawIcon(painter, IconName::Cube, QRectF(0, 20, 28, 28),
           {test::TellablePalette().color(QPalette::WindowText), ToneColor(Tone::IconAccent)});
  painter.end();
  EXPECT_EQ(picture.convertToFormat(QImage::Format_RGB32), wanted);
}

TEST(PageHeader, APageHasTheMarginsOfTheGrid) {
  QWidget page;
  const QVBoxLayout* column = MakePageLayout(&page, new PageHeader(IconName::Cube, "Cubes"));
  EXPECT_EQ(column->contentsMargins(), QMargins(20, 0, 20, 16));
  EXPECT_EQ(column->spacing(), 12);
  EXPECT_EQ(column->count(), 1);
}

}  // namespace
}  // namespace mortane

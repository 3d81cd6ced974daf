#include "widgets/ProgressLine.h"

#include "gui/support/Face.h"
#include "gui/support/TestWindow.h"

namespace mortane {
namespace {

struct ProgressRow {
  int done;
  int total;
  double fraction;
};

TEST(ProgressLine, HoldsAFractionBetweenNoneAndAll) {
  ProgressLine line;
  for (const ProgressRow& row :
       {ProgressRow{0, 18, 0}, ProgressRow{9, 18, 0.5}, ProgressRow{18, 18, 1},
        ProgressRow{20, 18, 1}, ProgressRow{-1, 18, 0}, ProgressRow{1, 0, 0}}) {
    line.setProgress(row.done, row.total);
    EXPECT_DOUBLE_EQ(line.fraction(), row.fraction) << row.done;
  }
}

class CountingLine : public ProgressLine {
 public:
  using ProgressLine::ProgressLine;
  int painted = 0;

 protected:
  void paintEvent(QPaintEvent* event) override {
    ++painted;
    ProgressLine::paintEvent(event);
  }
};

TEST(ProgressLine, IsPaintedBeforeTheCallReturns) {
  TestWindow window;
  auto* line = window.Add<CountingLine>();
  window.Show();
  const int before = line->painted;
  line->setProgress(1, 18);
  EXPECT_EQ(line->painted, before + 1);
  window.widget().setEnabled(false);
  line->setProgress(2, 18);
  EXPECT_EQ(line->painted, before + 2);
}

TEST(ProgressLine, FillsItsPartInHighlightAlsoInADisabledWindow) {
  ProgressLine line;
  line.resize(100, 3);
  line.setEnabled(false);
  line.setProgress(1, 4);
  const QImage picture = line.grab().toImage();
  const QColor highlight = line.palette().color(QPalette::Active, QPalette::Highlight);
  EXPECT_EQ(picture.pixelColor(10, 1), highlight);
  EXPECT_NE(picture.pixelColor(40, 1), highlight);
  line.clear();
  EXPECT_NE(line.grab().toImage().pixelColor(10, 1), highlight);
}

TEST(ProgressLine, ShowsTheShareThatIsDone) {
  ProgressLine line;
  EXPECT_EQ(line.sizeHint(), QSize(0, 3));
  for (const auto& [done, row] : {std::pair{0, "Window 100"},
                                  {1, "Highlight 25, Window 75"},
                                  {4, "Highlight 100"},
                                  {9, "Highlight 100"}}) {
    line.setProgress(done, 4);
    const QImage picture = test::PictureOf(line, {100, 3}, test::Use::Rest);
    EXPECT_EQ(test::RowOf(picture, 0), row) << done;
    EXPECT_EQ(test::RowOf(picture, 2), row) << done;
  }
  line.clear();
  EXPECT_EQ(test::RowOf(test::PictureOf(line, {100, 3}, test::Use::Rest)), "Window 100");
}

}  // namespace
}  // namespace mortane

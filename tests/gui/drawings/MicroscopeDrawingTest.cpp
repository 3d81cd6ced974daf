#include "drawings/MicroscopeDrawing.h"

#include "gui/support/Scanline.h"
#include "gui/support/TestWindow.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

QVector<DrawnAccessory> All(int mounted) {
  QVector<DrawnAccessory> accessories;
  for (int number = 1; number <= 14; ++number)
    accessories.append({number, u"Part %1"_s.arg(number), mounted});
  return accessories;
}

QImage Picture(const QVector<DrawnAccessory>& accessories, QSize size = {620, 400}) {
  MicroscopeDrawing drawing;
  drawing.resize(size);
  drawing.SetAccessories(accessories);
  return drawing.grab().toImage();
}

TEST(MicroscopeDrawing, EveryAccessoryLooksDifferentInEachOfItsThreeStates) {
  const QImage none = Picture(All(0));
  for (int i = 0; i < 14; ++i) {
    QVector<DrawnAccessory> sensed = All(0);
    sensed[i].mounted = 1;
    QVector<DrawnAccessory> controllable = All(0);
    controllable[i].mounted = 2;
    EXPECT_NE(Picture(sensed), none) << i + 1;
    EXPECT_NE(Picture(controllable), none) << i + 1;
    EXPECT_NE(Picture(sensed), Picture(controllable)) << i + 1;
  }
}

TEST(MicroscopeDrawing, EveryAccessoryHasAPlaceOfItsOwn) {
  for (int i = 0; i < 14; ++i) {
    QVector<DrawnAccessory> without = All(2);
    without.removeAt(i);
    EXPECT_NE(Picture(without), Picture(All(2))) << i + 1;
  }
}

TEST(MicroscopeDrawing, AnUnknownAccessoryIsLeftOut) {
  QVector<DrawnAccessory> more = All(2);
  more.append({15, "Part 15", 2});
  EXPECT_EQ(Picture(more), Picture(All(2)));
}

// The strongest colour of a picture; greys have none.
int HighestSaturation(const QImage& picture) {
  int highest = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      highest = qMax(highest, picture.pixelColor(x, y).hsvSaturation());
  return highest;
}

TEST(MicroscopeDrawing, LooksDisabledWithItsWindow) {
  QWidget window;
  MicroscopeDrawing drawing(&window);
  drawing.resize(620, 400);
  drawing.SetAccessories(All(2));
  const QImage live = drawing.grab().toImage();
  const QColor dot = drawing.palette().color(QPalette::Highlight);
  window.setEnabled(false);
  const QImage disabled = drawing.grab().toImage();
  EXPECT_LT(HighestSaturation(disabled), HighestSaturation(live) * 2 / 3);
  int dots = 0;
  for (int y = 0; y < disabled.height(); ++y)
    for (int x = 0; x < disabled.width(); ++x) dots += disabled.pixelColor(x, y) == dot ? 1 : 0;
  EXPECT_EQ(dots, 0);
  QVector<DrawnAccessory> none = All(2);
  for (DrawnAccessory& accessory : none) accessory.label.clear();
  drawing.SetAccessories(none);
  EXPECT_NE(drawing.grab().toImage(), disabled) << "the labels are still there";
}

TEST(MicroscopeDrawing, LabelsOfADisabledDrawingAreGrey) {
  MicroscopeDrawing drawing;
  drawing.resize(620, 400);
  drawing.setEnabled(false);
  drawing.SetAccessories(All(2));
  const QColor text = drawing.palette().color(QPalette::Active, QPalette::WindowText);
  const QImage picture = drawing.grab().toImage();
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) ASSERT_NE(picture.pixelColor(x, y), text);
}

struct ScaleRow {
  QSize size;
  double scale;
};

TEST(MicroscopeDrawing, ScalesWithinItsBoundsByTheShorterSide) {
  for (const ScaleRow& row :
       {ScaleRow{{606, 370}, 1.0}, ScaleRow{{1212, 370}, 1.0}, ScaleRow{{606, 740}, 1.0},
        ScaleRow{{727, 444}, 1.2}, ScaleRow{{100, 100}, 0.8}, ScaleRow{{3000, 3000}, 2.5}}) {
    MicroscopeDrawing drawing;
    drawing.resize(row.size);
    EXPECT_NEAR(drawing.drawingScale(), row.scale, 0.001) << row.size.width();
  }
}

TEST(MicroscopeDrawing, LongLabelsMakeTheDrawingSmallerRatherThanCoveringIt) {
  MicroscopeDrawing drawing;
  drawing.resize(700, 430);
  const double before = drawing.drawingScale();
  drawing.SetAccessories({{5, QString(60, 'W'), 2}});
  EXPECT_LT(drawing.drawingScale(), before);
}

TEST(MicroscopeDrawing, TellsTheSameInWordsAndTakesNoFocus) {
  MicroscopeDrawing drawing;
  drawing.SetAccessories(
      {{9, "Nosepiece Sensor", 1}, {5, "Condenser Control", 2}, {10, "Optical Zoom Sensor", 0}});
  EXPECT_EQ(drawing.accessibleDescription(),
            "Nosepiece Sensor: sensed only, Condenser Control: controllable, "
            "Optical Zoom Sensor: not mounted");
  EXPECT_EQ(drawing.focusPolicy(), Qt::NoFocus);
}

struct DotRow {
  int mounted;
  bool enabled;
  const char* column;  // through the dot and its surroundings
  const char* row;
};

// Of the part that stands in front of nothing but the window.
TEST(MicroscopeDrawing, DotsTellTheStateOfTheirPart) {
  for (const DotRow& row : {
           DotRow{0, true,
                  "DrawingShade 3, ~ 1, Base 1, ~ 2, Base 6, ~ 1, disabled Text 1, ~ 2, "
                  "DrawingShade 3",
                  "DrawingShade 3, ~ 2, disabled Text 1, ~ 1, Base 6, ~ 1, disabled Text 1, ~ 2, "
                  "DrawingShade 3"},
           DotRow{1, true,
                  "DrawingShade 3, ~ 1, Base 1, ~ 1, Highlight 1, ~ 1, Base 4, ~ 1, Highlight 1, ~ "
                  "1, Base 1, ~ 1, DrawingShade 3",
                  "DrawingShade 3, ~ 1, Base 1, ~ 1, Highlight 1, ~ 1, Base 4, ~ 1, Highlight 1, ~ "
                  "1, Base 1, ~ 1, DrawingShade 3"},
           DotRow{
               2, true,
               "DrawingShade 3, ~ 1, Base 1, ~ 1, Highlight 8, ~ 1, Base 1, ~ 1, DrawingShade 3",
               "DrawingShade 3, ~ 1, Base 1, ~ 1, Highlight 8, ~ 1, Base 1, ~ 1, DrawingShade 3"},
           DotRow{0, false, "~ 4, disabled Base 1, ~ 2, disabled Base 6, ~ 1, disabled Text 1, ~ 5",
                  "~ 5, disabled Text 1, ~ 1, disabled Base 6, ~ 1, disabled Text 1, ~ 5"},
           DotRow{1, false,
                  "~ 4, disabled Base 1, ~ 1, disabled Text 1, ~ 1, disabled Base 4, ~ 1, disabled "
                  "Text 1, ~ 1, disabled Base 1, ~ 4",
                  "~ 4, disabled Base 1, ~ 1, disabled Text 1, ~ 1, disabled Base 4, ~ 1, disabled "
                  "Text 1, ~ 1, disabled Base 1, ~ 4"},
           DotRow{2, false, "~ 4, disabled Base 1, ~ 1, disabled Text 8, ~ 1, disabled Base 1, ~ 4",
                  "~ 4, disabled Base 1, ~ 1, disabled Text 8, ~ 1, disabled Base 1, ~ 4"},
       }) {
    MicroscopeDrawing drawing;
    drawing.setPalette(test::TellablePalette());
    drawing.setEnabled(row.enabled);
    drawing.resize(606, 370);
    drawing.SetAccessories({{4, {}, row.mounted}});
    const QImage dot = drawing.grab().toImage().copy(432, 33, 20, 20);
    EXPECT_EQ(test::ColumnOf(dot), row.column) << row.mounted << row.enabled;
    EXPECT_TRUE(test::SameButForEdges(test::RowOf(dot), row.row)) << row.mounted << row.enabled;
  }
}

// From the end of a label without a text, at half a pixel, so that the line is sharp.
TEST(MicroscopeDrawing, ALineLeadsFromTheLabelToTheDot) {
  const auto line = [](int mounted, bool enabled) {
    MicroscopeDrawing drawing;
    drawing.setPalette(test::TellablePalette());
    drawing.setEnabled(enabled);
    drawing.resize(606, 370);
    drawing.SetAccessories({{2, {}, mounted}});
    return test::RowOf(drawing.grab().toImage().copy(0, 92, 30, 1));
  };
  EXPECT_EQ(line(2, true), "Window 6, ~ 1, Dark 23");
  EXPECT_EQ(line(1, true), "Window 6, ~ 1, Dark 23");
  EXPECT_EQ(line(2, false), "disabled Window 6, ~ 1, disabled Text 23");
  EXPECT_EQ(line(0, true),
            "Window 6, ~ 1, disabled Text 3, Window 3, disabled Text 4, Window 3, disabled Text 4, "
            "Window 3, disabled Text 3");
}

}  // namespace
}  // namespace mortane

// Where the labels of the microscope's drawing stand.
#include "drawings/MicroscopeLayout.h"

#include <gtest/gtest.h>

#include <array>

#include "gui/support/FontScope.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

QVector<DrawnAccessory> Accessories() {
  QVector<DrawnAccessory> accessories;
  for (int number = 1; number <= 14; ++number) {
    accessories.append({number, u"DIA Aperture Stop %1"_s.arg(number), 2});
  }
  return accessories;
}

QFontMetrics Metrics(double factor = 1) {
  return QFontMetrics(FontOf(QApplication::font().pointSizeF() * factor));
}

// The body of the stand, which labels must not cover; in shares of the drawing.
QRectF StandIn(const QRectF& body) {
  return {body.left() + 0.37 * body.width(), body.top() + 0.66 * body.height(), 0.36 * body.width(),
          0.3 * body.height()};
}

struct RoomRow {
  QSizeF room;
  double font;
};

const RoomRow kRooms[]{{{606, 370}, 1},   {{485, 296}, 1},   {{900, 500}, 1}, {{1400, 900}, 1},
                       {{606, 370}, 1.5}, {{700, 330}, 1.6}, {{485, 296}, 2}, {{800, 600}, 2}};

TEST(MicroscopeLayout, LabelsStayInsideApartAndOffTheStand) {
  for (const RoomRow& row : kRooms) {
    const MicroscopeLayout layout = LayOutMicroscope(Accessories(), row.room, Metrics(row.font));
    ASSERT_EQ(layout.labels.size(), 14);
    const QRectF inside(QPointF(-0.6, -0.6), row.room + QSizeF(1.2, 1.2));
    for (qsizetype i = 0; i < 14; ++i) {
      const DrawnLabel& label = layout.labels[i];
      EXPECT_TRUE(inside.contains(label.area)) << i << " " << row.room.width() << " " << row.font;
      EXPECT_FALSE(label.area.intersects(StandIn(layout.body))) << i << " " << row.room.width();
      EXPECT_GE(label.area.height(), Metrics(row.font).height());
      EXPECT_FALSE(label.shown.isEmpty()) << i;
      for (qsizetype other = i + 1; other < 14; ++other) {
        const QRectF overlap = label.area.intersected(layout.labels[other].area);
        EXPECT_LT(overlap.height(), 0.01) << i << " " << other << " " << row.room.width();
      }
    }
  }
}

TEST(MicroscopeLayout, TheLeastWidthIsTheNarrowestWithoutElision) {
  const auto isWhole = [](const DrawnLabel& label) { return label.shown == label.accessory.label; };
  for (const double font : {1.0, 1.5, 3.0}) {
    const double width = LeastMicroscopeWidth(Accessories(), Metrics(font));
    const auto layout = LayOutMicroscope(Accessories(), {width, 400}, Metrics(font));
    EXPECT_TRUE(std::all_of(layout.labels.begin(), layout.labels.end(), isWhole)) << font;
    const auto narrow = LayOutMicroscope(Accessories(), {width - 8, 400}, Metrics(font));
    EXPECT_FALSE(std::all_of(narrow.labels.begin(), narrow.labels.end(), isWhole)) << font;
  }
}

TEST(MicroscopeLayout, LinesRunFromTheirLabelsToTheirDots) {
  const MicroscopeLayout layout = LayOutMicroscope(Accessories(), {900, 500}, Metrics());
  for (const DrawnLabel& label : layout.labels) {
    const bool onLeft = label.area.center().x() < label.dot.x();
    const double towards = onLeft ? 1 : -1;
    const double end = onLeft ? label.area.right() : label.area.left();
    EXPECT_NEAR((label.lineStart.x() - end) * towards, 7, 0.01);
    EXPECT_GE((label.elbow.x() - label.lineStart.x()) * towards, -0.01);
    EXPECT_NEAR((label.dot.x() - label.elbow.x()) * towards, 26 * layout.scale, 0.01);
    EXPECT_EQ(label.lineStart.y(), label.elbow.y());
    EXPECT_NEAR(label.lineStart.y(), label.area.center().y(), 0.01);
    EXPECT_TRUE(layout.body.contains(label.dot));
  }
}

TEST(MicroscopeLayout, LabelsAlignAtTheOuterEdges) {
  const MicroscopeLayout layout = LayOutMicroscope(Accessories(), {1000, 420}, Metrics());
  double left = 1e9;
  double right = 0;
  for (const DrawnLabel& label : layout.labels) {
    left = std::min(left, label.area.left());
    right = std::max(right, label.area.right());
  }
  for (const DrawnLabel& label : layout.labels) {
    const bool onLeft = label.area.center().x() < label.dot.x();
    EXPECT_NEAR(onLeft ? label.area.left() : label.area.right(), onLeft ? left : right, 0.01);
  }
  EXPECT_NEAR(left, 1000 - right, 0.01) << "in the middle of its room";
}

TEST(MicroscopeLayout, LabelsAreWholeWhereThereIsRoom) {
  for (const QSizeF room : {QSizeF(606, 370), QSizeF(900, 500), QSizeF(1400, 900)}) {
    for (const DrawnLabel& label : LayOutMicroscope(Accessories(), room, Metrics()).labels) {
      EXPECT_EQ(label.shown, label.accessory.label) << room.width();
    }
  }
}

TEST(MicroscopeLayout, WithoutRoomLabelsOfBothSidesAreElided) {
  const MicroscopeLayout layout = LayOutMicroscope(Accessories(), {490, 296}, Metrics(2));
  EXPECT_EQ(layout.scale, 0.8);
  int elidedLeft = 0;
  int elidedRight = 0;
  for (const DrawnLabel& label : layout.labels) {
    if (label.shown == label.accessory.label) continue;
    EXPECT_TRUE(label.shown.endsWith(QChar(0x2026))) << label.shown.toStdString();
    (label.area.center().x() < label.dot.x() ? elidedLeft : elidedRight) += 1;
  }
  EXPECT_GT(elidedLeft, 0);
  EXPECT_GT(elidedRight, 0);
}

TEST(MicroscopeLayout, LongLabelsMakeTheDrawingSmallerBeforeTheyAreElided) {
  const QSizeF room(800, 500);
  const MicroscopeLayout bare = LayOutMicroscope({}, room, Metrics());
  const MicroscopeLayout labelled = LayOutMicroscope(Accessories(), room, Metrics(1.6));
  EXPECT_NEAR(bare.scale, 800 / 606.0, 0.001);
  EXPECT_LT(labelled.scale, bare.scale);
  EXPECT_GT(labelled.scale, 0.8);
  for (const DrawnLabel& label : labelled.labels) {
    EXPECT_EQ(label.shown, label.accessory.label);
  }
  EXPECT_LE(labelled.labels[2].area.right(), 800.01);
}

TEST(MicroscopeLayout, TheDrawingStandsInTheMiddle) {
  const MicroscopeLayout layout = LayOutMicroscope({}, {1000, 600}, Metrics());
  EXPECT_NEAR(layout.body.center().x(), 500, 0.01);
  EXPECT_NEAR(layout.body.center().y(), 300, 0.01);
  EXPECT_NEAR(layout.body.width(), 606 * layout.scale, 0.01);
  EXPECT_NEAR(layout.body.height(), 370 * layout.scale, 0.01);
}

TEST(MicroscopeLayout, KeepsUsualLabelsAtTheHeightsOfTheDesign) {
  QVector<DrawnAccessory> accessories = Accessories();
  for (DrawnAccessory& accessory : accessories) accessory.label = "Part";
  const MicroscopeLayout layout = LayOutMicroscope(accessories, {606, 370}, Metrics());
  EXPECT_NEAR(layout.labels[1].area.center().y(), 92.5, 0.01);
  EXPECT_NEAR(layout.labels[3].area.center().y(), 38, 0.01);
  EXPECT_NEAR(layout.labels[12].area.center().y(), 330, 0.01);
}

TEST(MicroscopeLayout, LeavesOutWhatHasNoPlace) {
  const MicroscopeLayout layout = LayOutMicroscope(
      {{0, "Nothing", 1}, {15, "More", 2}, {9, "Nosepiece", 1}}, {606, 370}, Metrics());
  ASSERT_EQ(layout.labels.size(), 1);
  EXPECT_EQ(layout.labels[0].accessory.number, 9);
}

struct PlaceRow {
  int number;
  bool onLeft;
  QPointF dot;  // in design pixels
  double labelY;
  double reach;  // of a label towards the drawing
};

constexpr std::array kPlaces{
    PlaceRow{1, false, {392, 60}, 65, 462},       PlaceRow{2, true, {327.5, 92.5}, 92.5, 301},
    PlaceRow{3, false, {355, 153.5}, 153.5, 438}, PlaceRow{4, false, {442, 43}, 38, 468},
    PlaceRow{5, true, {314, 132}, 132, 288},      PlaceRow{6, false, {368, 258}, 249, 449},
    PlaceRow{7, false, {428, 300}, 303, 462},     PlaceRow{8, true, {282, 262}, 259, 218},
    PlaceRow{9, true, {318, 233}, 232, 218},      PlaceRow{10, false, {375, 288}, 276, 462},
    PlaceRow{11, true, {267, 283}, 286, 218},     PlaceRow{12, true, {296, 314}, 314, 218},
    PlaceRow{13, false, {447, 314}, 330, 473},    PlaceRow{14, true, {289, 188.5}, 188.5, 192},
};

TEST(MicroscopeLayout, EachAccessoryStandsAtItsPartOfTheDrawing) {
  for (const PlaceRow& row : kPlaces) {
    const MicroscopeLayout layout =
        LayOutMicroscope({{row.number, "Part", 2}}, MicroscopeDesignSize(), Metrics());
    ASSERT_EQ(layout.labels.size(), 1);
    const DrawnLabel& label = layout.labels[0];
    EXPECT_EQ(layout.body.topLeft(), QPointF(0, 0));
    EXPECT_EQ(label.dot, row.dot) << row.number;
    EXPECT_NEAR(label.area.center().y(), row.labelY, 0.01) << row.number;
    EXPECT_EQ(row.onLeft ? label.area.left() : label.area.right(), row.onLeft ? 0 : 606);
  }
}

TEST(MicroscopeLayout, ALongLabelReachesAsFarAsTheDrawingLetsIt) {
  const QString text(120, u'W');
  for (const PlaceRow& row : kPlaces) {
    const double room = (row.onLeft ? row.reach : 606 - row.reach) * 0.8 - 7;
    EXPECT_NEAR(LeastMicroscopeWidth({{row.number, text, 2}}, Metrics()),
                606 * 0.8 + Metrics().horizontalAdvance(text) - room, 0.01)
        << row.number;
  }
}

}  // namespace
}  // namespace mortane

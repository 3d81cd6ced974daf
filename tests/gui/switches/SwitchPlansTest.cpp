// Where the marks stand on the drawings of body and hand controller.
#include <gtest/gtest.h>

#include <QFile>
#include <algorithm>
#include <map>

#include "switches/SwitchCtlPlans.h"
#include "widgets/VectorDrawing.h"

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

const PlacedMark& MarkAt(const SwitchPlan& plan, int index) {
  return *std::find_if(plan.marks.begin(), plan.marks.end(),
                       [&](const PlacedMark& mark) { return mark.index == index; });
}

// Which mark stands where another one would in a mirror, by their indices.
using Mirror = std::map<int, int>;

void ExpectMirrored(const SwitchPlan& plan, const Mirror& mirror) {
  ASSERT_EQ(plan.marks.size(), mirror.size());
  for (const auto& [index, other] : mirror) {
    const QRectF area = MarkAt(plan, index).area;
    const QRectF mirrored(plan.size.width() - area.right(), area.top(), area.width(),
                          area.height());
    EXPECT_EQ(MarkAt(plan, other).area, mirrored) << index;
  }
}

TEST(SwitchPlans, OfTheBodyHaveTheSidesAsMirrorsOfEachOther) {
  ExpectMirrored(BodyPlan(),
                 {{0, 1}, {1, 0}, {2, 3}, {3, 2}, {4, 5}, {5, 4}, {6, 8}, {7, 9}, {8, 6}, {9, 7}});
}

TEST(SwitchPlans, OfTheHandControllerHaveItsHalvesAsMirrorsOfEachOther) {
  ExpectMirrored(HandControllerPlan(), {{0, 0}, {1, 2}, {2, 1}, {3, 5}, {4, 4}, {5, 3}});
}

TEST(SwitchPlans, HaveMarksOfOneSizeForEachKind) {
  for (const SwitchPlan& plan : {BodyPlan(), HandControllerPlan()}) {
    for (const PlacedMark& mark : plan.marks) {
      const std::map<MarkKind, QSizeF> sizes{{MarkKind::BodyDial, {25, 25}},
                                             {MarkKind::BodySwitch, {23, 23}},
                                             {MarkKind::HandDial, {100, 100}},
                                             {MarkKind::HandKey, {62, 44}}};
      EXPECT_EQ(mark.area.size(), sizes.at(mark.mark.kind)) << mark.index;
    }
  }
}

struct LineRow {
  std::vector<int> marks;
  double middle;
};

TEST(SwitchPlans, HaveTheMarksOfAPlateInLine) {
  for (const LineRow& row : {LineRow{{0, 4, 5, 1}, 233}, LineRow{{2, 3}, 232.5},
                             LineRow{{6, 8}, 216.5}, LineRow{{7, 9}, 248.5}}) {
    for (const int index : row.marks)
      EXPECT_EQ(MarkAt(BodyPlan(), index).area.center().y(), row.middle) << index;
  }
  for (const LineRow& row : {LineRow{{0}, 82}, LineRow{{1, 2}, 147}, LineRow{{3, 4, 5}, 219}}) {
    for (const int index : row.marks)
      EXPECT_EQ(MarkAt(HandControllerPlan(), index).area.center().y(), row.middle) << index;
  }
}

TEST(SwitchPlans, AreAsLargeAsTheirPictures) {
  for (const SwitchPlan& plan : {BodyPlan(), HandControllerPlan()}) {
    QFile picture(u":/mortane/%1.svg"_s.arg(plan.drawing));
    ASSERT_TRUE(picture.open(QIODevice::ReadOnly)) << plan.drawing.toStdString();
    EXPECT_EQ(VectorDrawing(picture.readAll()).Size(), plan.size) << plan.drawing.toStdString();
  }
}

TEST(SwitchPlans, OfTheBodyNameItsSidesBelowThem) {
  const SwitchPlan body = BodyPlan();
  ASSERT_EQ(body.texts.size(), 3U);
  const std::vector<QPointF> places{{103, 290}, {302, 290}, {501, 290}};
  const QStringList names{"Left", "Front", "Right"};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(body.texts[i].text, names[static_cast<int>(i)]);
    EXPECT_EQ(body.texts[i].center, places[i]);
  }
}

}  // namespace
}  // namespace mortane::test

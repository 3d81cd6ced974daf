#include "widgets/PathData.h"

#include <gtest/gtest.h>

namespace mortane::test {
namespace {

// The path's points one after the other; "M" before a move, "L" a line, "C" a curve, "c" its
// further points.
std::string Text(const char* data) {
  const auto path = ParsePathData(QString::fromLatin1(data));
  if (!path) return "nothing";
  std::string text;
  for (int i = 0; i < path->elementCount(); ++i) {
    const QPainterPath::Element element = path->elementAt(i);
    constexpr std::string_view kKinds = "MLCc";
    text += kKinds[static_cast<std::size_t>(element.type)];
    text += QString::number(element.x, 'g', 6).toStdString() + " " +
            QString::number(element.y, 'g', 6).toStdString() + " ";
  }
  return text;
}

TEST(PathData, ReadsPlacesAndSteps) {
  EXPECT_EQ(Text("M1 2L3 4H5V6"), "M1 2 L3 4 L5 4 L5 6 ");
  EXPECT_EQ(Text("m1 2l3 4h5v6"), "M1 2 L4 6 L9 6 L9 12 ");
  EXPECT_EQ(Text("M1 2m1 1h1M9 9v1"), "M2 3 L3 3 M9 9 L9 10 ");
}

TEST(PathData, ReadsNumbersWithoutBlanksBetweenThem) {
  EXPECT_EQ(Text("M.5.25l-1-.5,2 3"), "M0.5 0.25 L-0.5 -0.25 L1.5 2.75 ");
}

TEST(PathData, PassesOverBlanksAndCommasAroundCommands) {
  EXPECT_EQ(Text(" M 1 2 L 3,4 "), "M1 2 L3 4 ");
  EXPECT_EQ(Text("M1 2\n h 3 \t z "), "M1 2 L4 2 L1 2 ");
  EXPECT_EQ(Text("M1 2,,L3 4,"), "M1 2 L3 4 ");
}

TEST(PathData, RepeatsACommandAndGoesOnWithLinesBehindAMove) {
  EXPECT_EQ(Text("M1 1 2 2 3 3"), "M1 1 L2 2 L3 3 ");
  EXPECT_EQ(Text("m1 1 1 1"), "M1 1 L2 2 ");
  EXPECT_EQ(Text("M0 0h1 2 3"), "M0 0 L1 0 L3 0 L6 0 ");
}

TEST(PathData, ClosesAndGoesOnFromTheBeginning) {
  EXPECT_EQ(Text("M1 1h2v2zl1 0"), "M1 1 L3 1 L3 3 L1 1 M1 1 L2 1 ");
}

TEST(PathData, ReadsCurvesAndSmoothOnes) {
  EXPECT_EQ(Text("M0 0C1 1 2 2 3 0"), "M0 0 C1 1 c2 2 c3 0 ");
  EXPECT_EQ(Text("M0 0c1 1 2 2 3 0s2-2 3 0"), "M0 0 C1 1 c2 2 c3 0 C4 -2 c5 -2 c6 0 ");
  EXPECT_EQ(Text("M0 0L1 0s1 1 2 0"), "M0 0 L1 0 C1 0 c2 1 c3 0 ");
  EXPECT_EQ(Text("M1 1C1 2 2 3 3 3S5 5 6 6"), "M1 1 C1 2 c2 3 c3 3 C4 3 c5 5 c6 6 ");
}

struct ArcRow {
  const char* data;
  QRectF bounds;
};

class PathDataArcs : public testing::TestWithParam<ArcRow> {};

// The four arcs of radius 5 between two points that are 6 apart, and others.
INSTANTIATE_TEST_SUITE_P(
    Rows, PathDataArcs,
    testing::Values(
        ArcRow{"M2 9a5 5 0 0 1 6 0", {2, 8, 6, 1}}, ArcRow{"M2 9A5 5 0 0 0 8 9", {2, 9, 6, 1}},
        ArcRow{"M2 9a5 5 0 1 1 6 0", {0, 0, 10, 9}}, ArcRow{"M2 9a5 5 0 1 0 6 0", {0, 9, 10, 9}},
        ArcRow{"M0 5a5 5 0 0 1 10 0", {0, 0, 10, 5}}, ArcRow{"M0 5a1 1 0 0 1 10 0", {0, 0, 10, 5}},
        ArcRow{"M0 5a10 5 0 0 1 20 0", {0, 0, 20, 5}}, ArcRow{"M0 0a5 5 0 0 1 0 0", {0, 0, 0, 0}},
        ArcRow{"M10 5A5 5 0 0 1 9.33013 7.5", {9.33013, 5, 0.66987, 2.5}},
        ArcRow{"M9.33013 7.5A5 5 0 0 0 10 5", {9.33013, 5, 0.66987, 2.5}},
        ArcRow{"M10 5A5 5 0 1 0 9.33013 7.5", {0, 0, 10, 10}},
        ArcRow{"M9.33013 7.5A5 5 0 1 1 10 5", {0, 0, 10, 10}}));

TEST_P(PathDataArcs, RunAsTheirFlagsSay) {
  const auto path = ParsePathData(QString::fromLatin1(GetParam().data));
  ASSERT_TRUE(path);
  const QRectF bounds = path->boundingRect();
  EXPECT_NEAR(bounds.left(), GetParam().bounds.left(), 0.01);
  EXPECT_NEAR(bounds.top(), GetParam().bounds.top(), 0.01);
  EXPECT_NEAR(bounds.right(), GetParam().bounds.right(), 0.01);
  EXPECT_NEAR(bounds.bottom(), GetParam().bounds.bottom(), 0.01);
}

TEST(PathData, RefusesWhatIsNoPath) {
  for (const char* data : {"M1", "M1 x", "Q1 2 3 4", "5 5", "M0 0zz 1", "M0 0z1",
                           "M0 0a1 1 30 0 1 2 2", "M1 2L", "M--1 2"}) {
    EXPECT_EQ(Text(data), "nothing") << data;
  }
  EXPECT_EQ(Text(""), "");
}

}  // namespace
}  // namespace mortane::test

#include "widgets/ColumnFlow.h"

#include "gui/support/LayoutRequests.h"
#include "gui/support/TestWindow.h"

namespace mortane {
namespace {

constexpr int kGap = 10;
constexpr int kRowGap = 4;

// Columns of 100, 60 and 80 pixels at least, each 40 high at least, with 1, 1 and 2 stretches.
class ColumnFlowTest : public ::testing::Test {
 protected:
  ColumnFlowTest() {
    panel.setLayout(flow);
    Add(100, 1);
    Add(60, 1);
    Add(80, 2);
  }
  void Add(int width, int stretch) {
    auto* column = new QVBoxLayout;
    column->setContentsMargins({});
    parts.push_back(new QWidget(&panel));
    parts.back()->setMinimumSize(width, 40);
    column->addWidget(parts.back());
    flow->AddColumn(column, stretch);
    EXPECT_EQ(column->parent(), flow);
  }
  void ShowIn(int width, int height = 200) {
    panel.resize(width, height);
    panel.show();
    QApplication::processEvents();
  }

  QWidget panel;
  ColumnFlow* flow = new ColumnFlow(kGap, kRowGap);
  std::vector<QWidget*> parts;
};

TEST_F(ColumnFlowTest, AsksForANewLayoutWhereItBreaksAnewAndNotOtherwise) {
  test::ExpectRequestsAtBreaksAlone(panel, [this](int width) { ShowIn(width); });
}

TEST_F(ColumnFlowTest, SharesTheWidthByTheStretches) {
  ShowIn(420);
  EXPECT_EQ(parts[0]->geometry(), QRect(0, 0, 100, 200));
  EXPECT_EQ(parts[1]->geometry(), QRect(110, 0, 100, 200));
  EXPECT_EQ(parts[2]->geometry(), QRect(220, 0, 200, 200));
}

TEST_F(ColumnFlowTest, AsksForAllColumnsBesideEachOtherAndNeedsTheWidest) {
  ShowIn(420);
  EXPECT_EQ(flow->sizeHint(), QSize(100 + 60 + 80 + 2 * kGap, 40));
  EXPECT_EQ(flow->minimumSize(), QSize(100, 40));
  ShowIn(259);
  EXPECT_EQ(flow->sizeHint(), QSize(260, 40 + kRowGap + 40));
  EXPECT_EQ(flow->minimumSize(), QSize(100, 84));
}

TEST_F(ColumnFlowTest, GivesNoColumnLessThanItNeeds) {
  ShowIn(270);
  EXPECT_EQ(parts[0]->width(), 100);
  EXPECT_EQ(parts[1]->width(), 60);
  EXPECT_EQ(parts[2]->width(), 90);
  ShowIn(260);
  EXPECT_EQ(parts[2]->geometry(), QRect(180, 0, 80, 200));
}

TEST_F(ColumnFlowTest, GoesOnInASecondRowInOnePixelLess) {
  ShowIn(259, 204);
  EXPECT_EQ(parts[0]->geometry(), QRect(0, 0, 124, 100));
  EXPECT_EQ(parts[1]->geometry(), QRect(134, 0, 124, 100));
  EXPECT_EQ(parts[2]->geometry(), QRect(0, 104, 259, 100)) << "a row of its own";
  EXPECT_EQ(flow->minimumSize(), QSize(100, 84));
  ShowIn(169);
  EXPECT_EQ(flow->minimumSize(), QSize(100, 128)) << "three rows";
  ShowIn(400);
  EXPECT_EQ(flow->minimumSize(), QSize(100, 40));
}

TEST_F(ColumnFlowTest, RowsHoldEqualCountsAsFarAsTheyGo) {
  Add(80, 1);
  ShowIn(349);
  EXPECT_EQ(parts[1]->y(), 0);
  EXPECT_EQ(parts[2]->geometry().topLeft(), QPoint(0, 102));
  EXPECT_EQ(parts[3]->y(), 102);
}

TEST_F(ColumnFlowTest, AHiddenColumnLeavesNoGap) {
  parts[0]->hide();
  ShowIn(310);
  EXPECT_EQ(parts[1]->geometry(), QRect(0, 0, 100, 200));
  EXPECT_EQ(parts[2]->geometry(), QRect(110, 0, 200, 200));
}

TEST_F(ColumnFlowTest, AStretchGoesWithItsColumn) {
  const std::unique_ptr<QLayoutItem> taken(flow->takeAt(0));
  parts[0]->hide();
  ShowIn(310);
  EXPECT_EQ(parts[2]->width(), 200);
  EXPECT_EQ(flow->takeAt(2), nullptr);
}

}  // namespace
}  // namespace mortane

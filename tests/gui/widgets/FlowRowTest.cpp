#include "widgets/FlowRow.h"

#include "gui/support/LayoutRequests.h"
#include "gui/support/TestWindow.h"

namespace mortane {
namespace {

constexpr int kGap = 10;
constexpr int kLineGap = 4;

// Controls of 100 x 20, 60 x 30 and 80 x 20.
class FlowRowTest : public ::testing::Test {
 protected:
  FlowRowTest() {
    panel.setLayout(row);
    for (const QSize size : {QSize(100, 20), QSize(60, 30), QSize(80, 20)}) {
      parts.push_back(new QWidget(&panel));
      parts.back()->setFixedSize(size);
      row->addWidget(parts.back());
    }
  }
  void ShowIn(int width) {
    panel.resize(width, 200);
    panel.show();
    QApplication::processEvents();
  }

  QWidget panel;
  FlowRow* row = new FlowRow(kGap, kLineGap);
  std::vector<QWidget*> parts;
};

TEST_F(FlowRowTest, AsksForANewLayoutWhereItBreaksAnewAndNotOtherwise) {
  test::ExpectRequestsAtBreaksAlone(panel, [this](int width) { ShowIn(width); });
}

TEST_F(FlowRowTest, IsOneLineWhereTheWidthHoldsAll) {
  ShowIn(260);
  EXPECT_EQ(parts[0]->pos(), QPoint(0, 5)) << "in the middle of the line";
  EXPECT_EQ(parts[1]->pos(), QPoint(110, 0));
  EXPECT_EQ(parts[2]->pos(), QPoint(180, 5));
  EXPECT_EQ(row->sizeHint(), QSize(260, 30));
  EXPECT_EQ(row->minimumSize(), QSize(100, 30));
}

TEST_F(FlowRowTest, GoesOnInTheNextLineInOnePixelLessAndAsksForItsHeight) {
  ShowIn(259);
  EXPECT_EQ(parts[1]->pos(), QPoint(110, 0));
  EXPECT_EQ(parts[2]->pos(), QPoint(0, 34));
  EXPECT_EQ(row->minimumSize(), QSize(100, 54));
  ShowIn(100);
  EXPECT_EQ(parts[1]->pos(), QPoint(0, 24));
  EXPECT_EQ(parts[2]->pos(), QPoint(0, 58));
  EXPECT_EQ(row->minimumSize(), QSize(100, 78));
}

TEST(FlowRowInAColumn, WhatStandsBelowMakesRoomForFurtherLines) {
  QWidget window;
  auto* column = new QVBoxLayout(&window);
  column->setContentsMargins({});
  column->setSpacing(0);
  auto* row = new FlowRow(kGap, kLineGap);
  for (int i = 0; i < 2; ++i) {
    auto* part = new QWidget(&window);
    part->setFixedSize(100, 20);
    row->addWidget(part);
  }
  column->addLayout(row);
  auto* below = new QWidget(&window);
  column->addWidget(below, 1);
  for (const int width : {210, 209, 210}) {
    window.resize(width, 200);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(below->y(), width == 210 ? 20 : 44) << width;
  }
}

TEST_F(FlowRowTest, AHiddenControlLeavesNoGap) {
  parts[1]->hide();
  ShowIn(190);
  EXPECT_EQ(parts[2]->pos(), QPoint(110, 0));
  EXPECT_EQ(row->sizeHint(), QSize(190, 20));
}

}  // namespace
}  // namespace mortane

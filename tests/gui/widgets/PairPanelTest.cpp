#include "widgets/PairPanel.h"

#include "gui/support/TestWindow.h"

namespace mortane {
namespace {

// Two parts of 200 x 100 and 300 x 150 at least.
class PairPanelTest : public ::testing::Test {
 protected:
  PairPanelTest() {
    first->setMinimumSize(200, 100);
    second->setMinimumSize(300, 150);
    panel.SetParts(first, 1, second, 2);
  }
  void ShowIn(int width) {
    panel.resize(width, 600);
    panel.show();
    QApplication::processEvents();
  }

  PairPanel panel;
  QWidget* first = new QWidget(&panel);
  QWidget* second = new QWidget(&panel);
};

TEST_F(PairPanelTest, StandsSideBySideWhereTheWidthIsEnoughForBoth) {
  ShowIn(516);
  EXPECT_TRUE(panel.isSideBySide());
  EXPECT_EQ(first->geometry(), QRect(0, 0, 200, 600));
  EXPECT_EQ(second->geometry(), QRect(216, 0, 300, 600));
  EXPECT_EQ(panel.minimumSizeHint(), QSize(300, 150));
}

TEST_F(PairPanelTest, StandsOneBelowTheOtherInOnePixelLessAndAsksForBothHeights) {
  ShowIn(515);
  EXPECT_FALSE(panel.isSideBySide());
  EXPECT_EQ(first->width(), 515);
  EXPECT_EQ(second->width(), 515);
  EXPECT_EQ(second->y(), first->height() + 16);
  EXPECT_EQ(second->geometry().bottom(), 599);
  EXPECT_EQ(panel.minimumSizeHint(), QSize(300, 266));
}

TEST_F(PairPanelTest, CentresAPartThatKeepsItsWidthAboveTheOther) {
  first->setFixedWidth(200);
  first->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  ShowIn(400);
  EXPECT_EQ(first->x(), 100);
  ShowIn(600);
  EXPECT_EQ(first->geometry(), QRect(0, 0, 200, 600));
}

TEST_F(PairPanelTest, GoesBackAndForthWithItsWidth) {
  for (const int width : {600, 300, 600, 400}) {
    ShowIn(width);
    EXPECT_EQ(panel.isSideBySide(), width == 600) << width;
  }
}

TEST_F(PairPanelTest, CountsTheCharactersThatTheSecondPartNeedsBesideTheFirst) {
  panel.SetCharactersBeside(100);
  const int needed = 216 + 100 * panel.fontMetrics().averageCharWidth();
  ASSERT_GT(needed, 516);
  ShowIn(needed - 1);
  EXPECT_FALSE(panel.isSideBySide());
  ShowIn(needed);
  EXPECT_TRUE(panel.isSideBySide());
}

}  // namespace
}  // namespace mortane

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
  EXPECT_EQ(second->y(), 0) << "the right part is the upper one";
  EXPECT_EQ(first->y(), second->height() + 16);
  EXPECT_EQ(first->geometry().bottom(), 599);
  EXPECT_EQ(panel.minimumSizeHint(), QSize(300, 266));
}

TEST_F(PairPanelTest, TheLeftPartIsTheUpperOneWhereThatIsAsked) {
  PairPanel other;
  auto* left = new QWidget(&other);
  auto* right = new QWidget(&other);
  left->setMinimumSize(200, 100);
  right->setMinimumSize(300, 150);
  other.SetParts(left, 1, right, 1, PairPanel::Upper::Left);
  other.resize(400, 600);
  other.show();
  QApplication::processEvents();
  EXPECT_EQ(left->y(), 0);
  EXPECT_EQ(right->y(), left->height() + 16);
}

TEST_F(PairPanelTest, APartThatKeepsItsShapeIsAsWideAsHighAndNoWiderThanTheOtherLeavesRoomFor) {
  panel.SetParts(first, 0, second, 1);
  panel.KeepShapeOfLeft();
  first->setMaximumWidth(700);
  struct Row {
    QSize panel;
    QRect left;
  };
  for (const Row& row : {Row{{1600, 600}, {0, 0, 600, 600}}, Row{{1600, 900}, {0, 0, 700, 900}},
                         Row{{816, 600}, {0, 0, 500, 600}}, Row{{516, 600}, {0, 0, 200, 600}},
                         Row{{400, 466}, {50, 166, 300, 300}}}) {
    panel.resize(row.panel);
    panel.show();
    QApplication::processEvents();
    EXPECT_EQ(first->geometry(), row.left) << row.panel.width();
  }
}

TEST_F(PairPanelTest, AHiddenPartLeavesItsRoomToTheOther) {
  ShowIn(600);
  first->hide();
  QApplication::processEvents();
  EXPECT_EQ(second->geometry(), QRect(0, 0, 600, 600));
  EXPECT_EQ(panel.minimumSizeHint(), QSize(300, 150));
  first->show();
  second->hide();
  QApplication::processEvents();
  EXPECT_EQ(first->geometry(), QRect(0, 0, 600, 600));
}

TEST_F(PairPanelTest, APartWithoutAShareTakesWhatItAsksForAndNoMore) {
  panel.SetParts(first, 0, second, 1);
  ShowIn(800);
  EXPECT_EQ(first->width(), 200);
  panel.SetParts(first, 1, second, 0);
  ShowIn(801);
  EXPECT_EQ(second->width(), 300);
}

TEST_F(PairPanelTest, GoesBackAndForthWithItsWidth) {
  for (const int width : {600, 300, 600, 400}) {
    ShowIn(width);
    EXPECT_EQ(panel.isSideBySide(), width == 600) << width;
  }
}

TEST_F(PairPanelTest, CountsTheCharactersThatThePartsNeedBesideEachOther) {
  panel.SetCharactersBeside(100, 50);
  const int needed = 16 + 150 * panel.fontMetrics().averageCharWidth();
  ASSERT_GT(needed, 516);
  ShowIn(needed - 1);
  EXPECT_FALSE(panel.isSideBySide());
  ShowIn(needed);
  EXPECT_TRUE(panel.isSideBySide());
}

TEST_F(PairPanelTest, TheRightPartMayNeedAWidthBesideTheLeftOne) {
  panel.SetWidthBeside(500);
  ShowIn(715);
  EXPECT_FALSE(panel.isSideBySide());
  ShowIn(716);
  EXPECT_TRUE(panel.isSideBySide());
  EXPECT_EQ(second->width(), 500);
}

}  // namespace
}  // namespace mortane

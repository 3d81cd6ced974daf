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
  EXPECT_EQ(panel.sizeHint(), QSize(516, 150));
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
    QRect right;
  };
  for (const Row& row : {Row{{1600, 600}, {0, 0, 600, 600}, {616, 0, 984, 600}},
                         Row{{1600, 900}, {0, 0, 700, 900}, {716, 0, 884, 900}},
                         Row{{816, 600}, {0, 0, 500, 600}, {516, 0, 300, 600}},
                         Row{{516, 600}, {0, 0, 200, 600}, {216, 0, 300, 600}},
                         Row{{400, 466}, {50, 166, 300, 300}, {0, 0, 400, 150}}}) {
    panel.resize(row.panel);
    panel.show();
    QApplication::processEvents();
    EXPECT_EQ(first->geometry(), row.left) << row.panel.width();
    EXPECT_EQ(second->geometry(), row.right) << row.panel.width();
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

// Two buttons, of which one is a stop of the Tab key, and a field.
class PairPanelKeys : public ::testing::Test {
 protected:
  PairPanelKeys() {
    auto* first = new QWidget(panel);
    auto* second = new QWidget(panel);
    for (const char* name : {"one", "two"}) {
      auto* button = new QPushButton(first);
      button->setObjectName(name);
      buttons.push_back(button);
    }
    buttons[0]->setFocusPolicy(Qt::NoFocus);
    auto* field = new QLineEdit(second);
    field->setObjectName("field");
    panel->SetParts(first, 1, second, 1);
    panel->SetWidthBeside(300);
    window.Add<QPushButton>()->setObjectName("below");
    window.Show();
  }
  // The names that Tab comes to from the control above the panel.
  std::string StopsIn(int width, Qt::Key key = Qt::Key_Tab) {
    window.widget().resize(width, 400);
    QApplication::processEvents();
    above->setFocus();
    std::string names;
    for (int i = 0; i < 4; ++i) {
      QTest::keyClick(QApplication::focusWidget(), key);
      names += QApplication::focusWidget()->objectName().toStdString() + ' ';
    }
    return names;
  }

  TestWindow window;
  QPushButton* above = window.Add<QPushButton>();
  PairPanel* panel = window.Add<PairPanel>();
  std::vector<QPushButton*> buttons;
};

TEST_F(PairPanelKeys, TheTabKeyGoesThroughThePartsAsTheyAreSeen) {
  above->setObjectName("above");
  EXPECT_EQ(StopsIn(900), "two field below above ");
  EXPECT_EQ(StopsIn(250), "field two below above ");
  EXPECT_EQ(StopsIn(250, Qt::Key_Backtab), "below two field above ");
  EXPECT_EQ(StopsIn(900), "two field below above ");
}

TEST_F(PairPanelKeys, APartThatTakesTheFocusItselfIsAStopToo) {
  above->setObjectName("above");
  auto* list = new QLineEdit(panel);
  list->setObjectName("list");
  auto* other = window.Add<PairPanel>();
  auto* button = new QPushButton(other);
  button->setObjectName("button");
  list->setParent(other);
  other->SetParts(button, 1, list, 1);
  other->SetWidthBeside(300);
  EXPECT_EQ(StopsIn(250), "field two below list ");
  EXPECT_EQ(StopsIn(900), "two field below button ");
}

TEST_F(PairPanelKeys, AButtonThatBecomesTheStopOfItsGroupIsInItsPart) {
  above->setObjectName("above");
  EXPECT_EQ(StopsIn(250), "field two below above ");
  buttons[0]->setFocusPolicy(Qt::TabFocus);
  buttons[1]->setFocusPolicy(Qt::NoFocus);
  EXPECT_EQ(StopsIn(250), "field one below above ");
  EXPECT_EQ(StopsIn(900), "one field below above ");
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

#include "widgets/OptionGroup.h"

#include <QRadioButton>
#include <QToolTip>

#include "gui/support/TestWindow.h"

namespace mortane {
namespace {

using Rows = std::vector<int>;

class OptionGroupTest : public ::testing::Test {
 protected:
  void SetUp() override {
    group = new OptionGroup(&window.widget());
    group->setObjectName("optMode");
    for (const char* text : {"Absolute", "ON", "OFF"})
      window.widget().layout()->addWidget(group->addOption(text, &window.widget()));
    after = window.Add<QLineEdit>();
    window.Show();
  }

  void Click(int index) {
    QAbstractButton* button = group->button(index);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(30, button->height() / 2));
  }

  TestWindow window;
  OptionGroup* group = nullptr;
  QLineEdit* after = nullptr;
};

TEST_F(OptionGroupTest, WhyAnOptionIsDisabledIsShownAsAnArrowPassesOverIt) {
  group->button(1)->setEnabled(false);
  group->button(1)->setToolTip("Not on this stage.");
  group->button(0)->setFocus();
  QTest::keyClick(group->button(0), Qt::Key_Right);
  EXPECT_EQ(group->selected(), 2);
  EXPECT_TRUE(QToolTip::isVisible());
  EXPECT_EQ(QToolTip::text(), "ON: Not on this stage.");
}

TEST_F(OptionGroupTest, WhyTheOptionsAtAnEndAreDisabledIsShownAndNothingIsChosen) {
  for (const auto& [key, end] : {std::pair{Qt::Key_Left, 0}, {Qt::Key_Right, 2}}) {
    group->button(end)->setEnabled(false);
    group->button(end)->setToolTip("Not on this stage.");
    group->select(1);
    group->button(1)->setFocus();
    QSignalSpy clicks(group, &OptionGroup::selectionChanged);
    QTest::keyClick(group->button(1), key);
    EXPECT_EQ(QToolTip::text(), group->button(end)->text() + ": Not on this stage.");
    EXPECT_EQ(group->selected(), 1);
    EXPECT_EQ(clicks.size(), 0);
    QToolTip::hideText();
    group->button(end)->setEnabled(true);
  }
}

TEST_F(OptionGroupTest, NothingIsSelectedAtFirst) {
  EXPECT_EQ(group->selected(), -1);
}

TEST_F(OptionGroupTest, ProgramRaisesAClickForANewSelectionOnly) {
  QSignalSpy clicks(group, &OptionGroup::selectionChanged);
  group->select(1);
  group->select(1);
  group->select(2);
  group->select(7);
  EXPECT_EQ(group->selected(), 2);
  EXPECT_EQ(Indices(clicks), (Rows{1, 2}));
}

TEST_F(OptionGroupTest, ClearingLeavesNothingSelectedAndRaisesNothing) {
  group->select(1);
  QSignalSpy clicks(group, &OptionGroup::selectionChanged);
  group->clear();
  EXPECT_EQ(group->selected(), -1);
  EXPECT_FALSE(group->button(1)->isChecked());
  EXPECT_EQ(clicks.count(), 0);
  group->select(0);
  group->select(2);
  EXPECT_FALSE(group->button(0)->isChecked());
}

TEST_F(OptionGroupTest, AUsersClickIsRaisedAlwaysAndOnce) {
  QSignalSpy clicks(group, &OptionGroup::selectionChanged);
  Click(1);
  Click(1);
  EXPECT_EQ(Indices(clicks), (Rows{1, 1}));
}

TEST_F(OptionGroupTest, ArrowsMoveInsideAndTabLeaves) {
  group->select(0);
  group->button(0)->setFocus();
  QSignalSpy clicks(group, &OptionGroup::selectionChanged);
  QTest::keyClick(group->button(0), Qt::Key_Down);
  EXPECT_EQ(Indices(clicks), (Rows{1}));
  QTest::keyClick(group->button(1), Qt::Key_Tab);
  EXPECT_TRUE(after->hasFocus());
}

struct ArrowRow {
  Qt::Key key;
  int from;
  int to;
};

TEST_F(OptionGroupTest, ArrowsInAllFourDirectionsGoAlongTheLineToItsEnds) {
  const ArrowRow rows[] = {
      {Qt::Key_Right, 0, 1}, {Qt::Key_Down, 1, 2}, {Qt::Key_Left, 2, 1},  {Qt::Key_Up, 1, 0},
      {Qt::Key_Left, 0, 0},  {Qt::Key_Up, 0, 0},   {Qt::Key_Right, 2, 2}, {Qt::Key_Down, 2, 2},
  };
  for (const ArrowRow& row : rows) {
    group->select(row.from);
    group->button(row.from)->setFocus();
    QSignalSpy clicks(group, &OptionGroup::selectionChanged);
    QTest::keyClick(group->button(row.from), row.key);
    EXPECT_EQ(group->selected(), row.to) << row.key << " from " << row.from;
    EXPECT_TRUE(group->button(row.to)->hasFocus());
    EXPECT_EQ(clicks.size(), row.from == row.to ? 0 : 1);
  }
}

TEST_F(OptionGroupTest, ArrowsPassOverWhatCannotBeUsed) {
  group->select(0);
  group->button(0)->setFocus();
  group->button(1)->setEnabled(false);
  QTest::keyClick(group->button(0), Qt::Key_Right);
  EXPECT_EQ(group->selected(), 2);
}

struct AsideRow {
  QPoint along;  // from each to the next
  QPoint aside;  // of those after the first
  bool isLine;
};

// The group alone says why an option was passed over; the toolkit, which goes by places, does not.
TEST(OptionLine, MayHaveItsOptionsEightPixelsAside) {
  for (const AsideRow& row : {
           AsideRow{{0, 60}, {8, 0}, true},
           AsideRow{{0, 60}, {-8, 0}, true},
           AsideRow{{0, 60}, {9, 0}, false},
           AsideRow{{150, 0}, {0, 8}, true},
           AsideRow{{150, 0}, {0, -8}, true},
           AsideRow{{150, 0}, {0, 9}, false},
       }) {
    QWidget window;
    window.resize(500, 300);
    OptionGroup group(&window);
    for (int i = 0; i < 3; ++i) {
      const QPoint aside = i > 0 ? row.aside : QPoint();
      group.addOption(QString::number(i), &window)
          ->setGeometry(QRect(QPoint(50, 50) + i * row.along + aside, QSize(100, 24)));
    }
    group.button(1)->setEnabled(false);
    group.button(1)->setToolTip("Not on this stage.");
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QToolTip::hideText();
    group.select(0);
    group.button(0)->setFocus();
    QTest::keyClick(group.button(0), Qt::Key_Down);
    EXPECT_EQ(QToolTip::text() == "1: Not on this stage.", row.isLine)
        << row.aside.x() << ' ' << row.aside.y();
  }
}

TEST_F(OptionGroupTest, HomeAndEndChooseTheFirstAndTheLast) {
  group->select(1);
  group->button(1)->setFocus();
  QSignalSpy selections(group, &OptionGroup::selectionChanged);
  QTest::keyClick(group->button(1), Qt::Key_End);
  QTest::keyClick(group->button(2), Qt::Key_Home);
  QTest::keyClick(group->button(0), Qt::Key_Home);
  EXPECT_EQ(Indices(selections), (Rows{2, 0}));
  for (int i = 0; i < group->count(); ++i) group->button(i)->setEnabled(false);
  QTest::keyClick(group->button(0), Qt::Key_End);
  EXPECT_EQ(group->selected(), 0);
}

TEST_F(OptionGroupTest, TabComesToTheSelectedOptionOrToTheFirstThatCanBeUsed) {
  const auto stops = [this] {
    Rows found;
    for (int i = 0; i < group->count(); ++i)
      if (group->button(i)->focusPolicy() & Qt::TabFocus) found.push_back(i);
    return found;
  };
  EXPECT_EQ(stops(), (Rows{0}));
  group->button(0)->setEnabled(false);
  EXPECT_EQ(stops(), (Rows{1}));
  group->select(2);
  EXPECT_EQ(stops(), (Rows{2}));
  group->button(2)->hide();
  EXPECT_EQ(stops(), (Rows{1}));
}

TEST_F(OptionGroupTest, ElementsAreNamedAfterTheirArray) {
  EXPECT_EQ(group->button(2)->objectName(), "optMode_2");
  EXPECT_EQ(group->count(), 3);
}

}  // namespace
}  // namespace mortane

#include "widgets/ComboBox.h"

#include <QAbstractItemView>

#include "gui/support/Face.h"
#include "gui/support/TestWindow.h"
#include "widgets/NotSentMark.h"
#include "widgets/RowDelegate.h"

namespace mortane {
namespace {

using Rows = std::vector<int>;

class ComboBoxTest : public ::testing::Test {
 protected:
  void SetUp() override {
    other = window.Add<QLineEdit>();
    combo = window.Add<ComboBox>();
    for (int i = 0; i < 3; ++i) combo->addRow(QString::number(i), 10 * i);
    window.Show();
    other->setFocus();
  }

  void ChooseWithMouse(int row) {
    // The first release within the double-click time would belong to the opening press.
    const int usual = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    QTest::mouseClick(combo, Qt::LeftButton);
    QApplication::setDoubleClickInterval(usual);
    QApplication::processEvents();
    QAbstractItemView* list = combo->view();
    ASSERT_TRUE(list->isVisible());
    const QRect area = list->visualRect(list->model()->index(row, 0));
    QTest::mouseMove(list->viewport(), area.center());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, area.center());
  }

  TestWindow window;
  QLineEdit* other = nullptr;
  ComboBox* combo = nullptr;
};

TEST_F(ComboBoxTest, FillingSelectsNothingAndRaisesNothing) {
  combo->clearRows();
  QSignalSpy changes(combo, &QComboBox::currentIndexChanged);
  QSignalSpy clicks(combo, &ComboBox::selectionChanged);
  combo->addRow("first", 1);
  combo->addRow("second", 2);
  EXPECT_EQ(combo->index(), -1);
  EXPECT_EQ(combo->currentText(), QString());
  EXPECT_EQ(changes.count(), 0);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ComboBoxTest, TheOpenListPaintsItsRowsAsListsDo) {
  combo->showPopup();
  const auto* list = combo->findChild<QAbstractItemView*>();
  ASSERT_NE(list, nullptr);
  EXPECT_NE(qobject_cast<RowDelegate*>(list->itemDelegate()), nullptr);
  combo->hidePopup();
}

TEST_F(ComboBoxTest, AFurtherRowKeepsTheSelection) {
  combo->setIndex(1);
  combo->addRow("late");
  EXPECT_EQ(combo->index(), 1);
}

TEST_F(ComboBoxTest, ProgramRaisesAClickForANewValidIndexButNoChoice) {
  QSignalSpy clicks(combo, &ComboBox::selectionChanged);
  QSignalSpy choices(combo, &ComboBox::chosen);
  combo->setIndex(2);
  combo->setIndex(2);
  combo->setIndex(9);
  EXPECT_EQ(combo->index(), -1);
  EXPECT_EQ(Indices(clicks), (Rows{2}));
  EXPECT_EQ(choices.count(), 0);
}

TEST_F(ComboBoxTest, AUserMayChooseTheEntryOnShowAgain) {
  combo->setIndex(1);
  QSignalSpy choices(combo, &ComboBox::chosen);
  QSignalSpy clicks(combo, &ComboBox::selectionChanged);
  combo->setFocus();
  QTest::keyClick(combo, Qt::Key_Return);
  ASSERT_TRUE(combo->view()->isVisible());
  QTest::keyClick(combo->view(), Qt::Key_Return);
  EXPECT_EQ(Indices(choices), (Rows{1}));
  EXPECT_EQ(Indices(clicks), (Rows{1}));
}

TEST_F(ComboBoxTest, AMouseChoiceIsRaisedOnce) {
  combo->setIndex(1);
  QSignalSpy choices(combo, &ComboBox::chosen);
  ChooseWithMouse(2);
  EXPECT_EQ(Indices(choices), (Rows{2}));
  EXPECT_EQ(combo->data(combo->index()).toInt(), 20);
}

TEST_F(ComboBoxTest, TheWheelChangesNothingFocusedOrNot) {
  combo->setIndex(0);
  QSignalSpy changes(combo, &QComboBox::currentIndexChanged);
  TurnWheel(combo);
  EXPECT_TRUE(other->hasFocus()) << "and does not bring the focus";
  combo->setFocus();
  TurnWheel(combo);
  EXPECT_EQ(combo->index(), 0);
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(ComboBoxTest, ArrowsAndLettersChooseWithoutOpeningTheList) {
  combo->addRow("Plan");
  combo->setIndex(1);
  combo->setFocus();
  QSignalSpy choices(combo, &ComboBox::chosen);
  QTest::keyClick(combo, Qt::Key_Down);
  QTest::keyClick(combo, Qt::Key_Up);
  QTest::keyClick(combo, Qt::Key_P);
  EXPECT_EQ(Indices(choices), (Rows{2, 1, 3}));
  EXPECT_FALSE(combo->view()->isVisible());
}

TEST_F(ComboBoxTest, FindsARowByItsData) {
  EXPECT_EQ(combo->rowOf(20), 2);
  EXPECT_EQ(combo->rowOf(25), -1);
}

// Before the arrow, in which the row crosses the chevron.
TEST(ComboBoxFace, HasItsDotBehindTheText) {
  ComboBox combo;
  EXPECT_EQ(test::RowOf(test::PictureOf(combo, {100, 30}, test::Use::Rest)),
            "Dark 1, Base 82, ~ 2, Text 1, ~ 2, Text 1, ~ 2, Base 8, Dark 1");
  MarkNotSent(combo, "was");
  EXPECT_EQ(
      test::RowOf(test::PictureOf(combo, {100, 30}, test::Use::Rest)),
      "Dark 1, Base 61, ~ 1, Link 8, ~ 1, Base 11, ~ 2, Text 1, ~ 2, Text 1, ~ 2, Base 8, Dark 1");
}

}  // namespace
}  // namespace mortane

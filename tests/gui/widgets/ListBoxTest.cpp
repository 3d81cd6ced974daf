#include "widgets/ListBox.h"

#include "gui/widgets/TestWindow.h"

namespace mortane {
namespace {

using Rows = std::vector<int>;

class ListBoxTest : public ::testing::Test {
 protected:
  void SetUp() override {
    other = window.Add<QLineEdit>();
    list = window.Add<ListBox>();
    for (const char* text : {"one", "two", "three"}) list->addRow(text, QString(text).size());
    window.Show();
    other->setFocus();
  }

  void ClickRow(int row, Qt::MouseButton button = Qt::LeftButton) {
    const QRect area = list->visualItemRect(list->topLevelItem(row));
    QTest::mouseClick(list->viewport(), button, Qt::NoModifier, area.center());
  }

  TestWindow window;
  QLineEdit* other = nullptr;
  ListBox* list = nullptr;
};

TEST_F(ListBoxTest, FillingAndClearingRaiseNothingAndSelectNothing) {
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  list->addRow("four");
  EXPECT_EQ(list->index(), -1);
  list->setIndex(1);
  clicks.clear();
  list->clearRows();
  EXPECT_EQ(list->index(), -1);
  EXPECT_EQ(list->rowCount(), 0);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ListBoxTest, ProgramRaisesAClickForANewValidIndexOnly) {
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  list->setIndex(1);
  list->setIndex(1);
  list->setIndex(-1);
  list->setIndex(7);
  list->setIndex(1);
  EXPECT_EQ(Indices(clicks), (Rows{1, 1}));
}

TEST_F(ListBoxTest, AnIndexThatIsNoRowClearsTheSelection) {
  list->setIndex(2);
  list->setIndex(3);
  EXPECT_EQ(list->index(), -1);
}

TEST_F(ListBoxTest, AUsersClickIsRaisedOnceAlsoOnTheCurrentRow) {
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  ClickRow(2);
  ClickRow(2);
  ClickRow(0);
  EXPECT_EQ(Indices(clicks), (Rows{2, 2, 0}));
  EXPECT_EQ(list->index(), 0);
}

TEST_F(ListBoxTest, OtherButtonsSelectNothing) {
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  ClickRow(1, Qt::RightButton);
  ClickRow(1, Qt::MiddleButton);
  EXPECT_EQ(list->index(), -1);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ListBoxTest, AClickBelowTheRowsChangesNothing) {
  list->setIndex(1);
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  const QRect last = list->visualItemRect(list->topLevelItem(2));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                    last.center() + QPoint(0, last.height()));
  EXPECT_EQ(list->index(), 1);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ListBoxTest, TheSecondPressOfADoubleClickIsNoSecondClick) {
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  const QPoint at = list->visualItemRect(list->topLevelItem(1)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
  EXPECT_EQ(Indices(clicks), (Rows{1}));
}

TEST_F(ListBoxTest, AFastClickOnAnotherRowIsAClick) {
  ClickRow(1);
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                     list->visualItemRect(list->topLevelItem(2)).center());
  EXPECT_EQ(Indices(clicks), (Rows{2}));
}

TEST_F(ListBoxTest, ArrowsRaiseAClickForEachNewRowAndNoneAtTheEnd) {
  list->setIndex(0);
  list->setFocus();
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  for (int i = 0; i < 4; ++i) QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Up);
  EXPECT_EQ(Indices(clicks), (Rows{1, 2, 1}));
}

TEST_F(ListBoxTest, FocusAloneSelectsNothing) {
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  QTest::keyClick(other, Qt::Key_Tab);
  ASSERT_TRUE(list->hasFocus());
  EXPECT_EQ(list->index(), -1);
  EXPECT_EQ(clicks.count(), 0);
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(Indices(clicks), (Rows{0}));
}

TEST_F(ListBoxTest, AHandlerMayRebuildTheList) {
  QObject::connect(list, &ListBox::selectionChanged, list, [this](int) {
    list->clearRows();
    list->addRow("new");
  });
  ClickRow(2);
  EXPECT_EQ(list->rowCount(), 1);
  EXPECT_EQ(list->index(), -1);
}

TEST_F(ListBoxTest, AHandlerMayGoBackToAnotherRow) {
  Rows seen;
  QObject::connect(list, &ListBox::selectionChanged, list, [&](int row) {
    seen.push_back(row);
    if (row == 2) list->setIndex(0);
  });
  ClickRow(2);
  EXPECT_EQ(list->index(), 0);
  EXPECT_EQ(seen, (Rows{2, 0}));
}

TEST_F(ListBoxTest, RowsKeepTextAndData) {
  EXPECT_EQ(list->text(2), "three");
  EXPECT_EQ(list->data(2).toInt(), 5);
  list->setData(2, 9);
  EXPECT_EQ(list->data(2).toInt(), 9);
  EXPECT_EQ(list->text(3), QString());
  EXPECT_FALSE(list->data(-1).isValid());
}

TEST_F(ListBoxTest, TabSeparatedTextFillsTheColumns) {
  list->clearRows();
  list->SetColumns({{"Type", Qt::AlignLeft}, {"Mag.", Qt::AlignRight}, {"Name", Qt::AlignLeft}});
  list->addRow("DIC\t40x\tPlan");
  list->addRow("Ph1\t10x");
  EXPECT_FALSE(list->isHeaderHidden());
  EXPECT_EQ(list->topLevelItem(0)->text(1), "40x");
  EXPECT_TRUE(Qt::Alignment(list->topLevelItem(0)->textAlignment(1)).testFlag(Qt::AlignRight));
  EXPECT_EQ(list->text(0), "DIC\t40x\tPlan");
  EXPECT_EQ(list->text(1), "Ph1\t10x\t");
}

TEST_F(ListBoxTest, DimmedRowsCanStillBeSelected) {
  list->SetRowDimmed(1, true);
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  ClickRow(1);
  EXPECT_EQ(Indices(clicks), (Rows{1}));
}

TEST_F(ListBoxTest, CheckMarksAreToldWhoeverChangesThem) {
  QSignalSpy checks(list, &ListBox::rowChecked);
  list->SetRowChecked(0, false);
  EXPECT_EQ(checks.count(), 0);
  list->SetRowChecked(0, true);
  list->SetRowChecked(0, true);
  EXPECT_EQ(Indices(checks), (Rows{0}));
  EXPECT_TRUE(list->isRowChecked(0));
  list->setIndex(0);
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Space);
  EXPECT_FALSE(list->isRowChecked(0));
  ASSERT_EQ(checks.count(), 2);
  EXPECT_FALSE(checks.at(1).at(1).toBool());
}

TEST_F(ListBoxTest, AMouseClickOnTheMarkTurnsIt) {
  list->SetRowChecked(1, true);
  QSignalSpy checks(list, &ListBox::rowChecked);
  const QRect row = list->visualItemRect(list->topLevelItem(1));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                    QPoint(row.left() + 14, row.center().y()));
  EXPECT_FALSE(list->isRowChecked(1));
  EXPECT_EQ(Indices(checks), (Rows{1}));
}

TEST_F(ListBoxTest, RowsAreNeverLowerThanTheGrid) {
  EXPECT_GE(list->visualItemRect(list->topLevelItem(0)).height(), 26);
  list->SetIconRows(true);
  list->doItemsLayout();
  EXPECT_GE(list->visualItemRect(list->topLevelItem(0)).height(), 36);
}

}  // namespace
}  // namespace mortane

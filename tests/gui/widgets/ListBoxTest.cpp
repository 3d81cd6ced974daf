#include "widgets/ListBox.h"

#include <QHeaderView>
#include <QScrollBar>
#include <utility>

#include "gui/support/TestWindow.h"
#include "widgets/Theme.h"

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

TEST_F(ListBoxTest, EachRowThatIsDraggedOverIsSelectedAlsoTheFirst) {
  const auto at = [this](int row) {
    return list->visualItemRect(list->topLevelItem(row)).center();
  };
  QTest::mousePress(list->viewport(), Qt::LeftButton, Qt::NoModifier, at(2));
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  for (const int row : {1, 1, 0}) {
    QMouseEvent move(QEvent::MouseMove, at(row), list->viewport()->mapToGlobal(at(row)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(list->viewport(), &move);
  }
  EXPECT_EQ(Indices(clicks), (Rows{1, 0}));
  QTest::mouseRelease(list->viewport(), Qt::LeftButton, Qt::NoModifier, at(0));
  list->setFocus();
  clicks.clear();
  QTest::keyClick(list, Qt::Key_End);
  QTest::keyClick(list, Qt::Key_Home);
  EXPECT_EQ(Indices(clicks), (Rows{2, 0}));
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
  const QObject listener;
  QObject::connect(list, &ListBox::selectionChanged, &listener, [&](int row) {
    seen.push_back(row);
    if (row == 2) list->setIndex(0);
  });
  ClickRow(2);
  EXPECT_EQ(list->index(), 0);
  EXPECT_EQ(seen, (Rows{2, 0}));
}

TEST_F(ListBoxTest, RowsKeepTextAndData) {
  EXPECT_EQ(list->addRow("four"), 3);
  EXPECT_EQ(list->addCells({"five"}), 4);
  EXPECT_EQ(list->text(2), "three");
  EXPECT_EQ(list->data(2).toInt(), 5);
  list->setData(2, 9);
  EXPECT_EQ(list->data(2).toInt(), 9);
  EXPECT_EQ(list->text(5), QString());
  EXPECT_FALSE(list->data(-1).isValid());
}

TEST_F(ListBoxTest, CellsFillTheColumns) {
  list->clearRows();
  list->SetColumns({{"Type", Qt::AlignLeft}, {"Mag.", Qt::AlignRight}, {"Name", Qt::AlignLeft}});
  list->addCells({"DIC", "40x", "Plan"});
  list->addCells({"Ph1", "10x"});
  list->addCells({"a\tb", "c", "d", "too many"});
  list->addRow("e\tf");
  EXPECT_FALSE(list->isHeaderHidden());
  EXPECT_EQ(list->topLevelItem(0)->text(1), "40x");
  EXPECT_TRUE(Qt::Alignment(list->topLevelItem(0)->textAlignment(1)).testFlag(Qt::AlignRight));
  EXPECT_EQ(list->text(0), "DIC\t40x\tPlan");
  EXPECT_EQ(list->text(1), "Ph1\t10x\t");
  EXPECT_EQ(list->cells(2), QStringList({"a\tb", "c", "d"})) << "a tab is part of its cell";
  EXPECT_EQ(list->cells(3), QStringList({"e\tf", "", ""}));
  EXPECT_EQ(list->cells(4), QStringList());
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

TEST_F(ListBoxTest, ADoubleClickOnTheMarkTurnsItTwice) {
  list->SetRowChecked(1, true);
  list->setIndex(1);
  QSignalSpy checks(list, &ListBox::rowChecked);
  const QRect row = list->visualItemRect(list->topLevelItem(1));
  const QPoint mark(row.left() + 14, row.center().y());
  for (const QEvent::Type press : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
    for (const QEvent::Type type : {press, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, mark, list->viewport()->mapToGlobal(mark), Qt::LeftButton,
                        type == press ? Qt::LeftButton : Qt::NoButton, {});
      QApplication::sendEvent(list->viewport(), &event);
    }
  }
  EXPECT_TRUE(list->isRowChecked(1));
  EXPECT_EQ(Indices(checks), (Rows{1, 1}));
}

TEST_F(ListBoxTest, RowsAreNeverLowerThanTheGrid) {
  EXPECT_GE(list->visualItemRect(list->topLevelItem(0)).height(), 26);
  list->SetIconRows(true);
  list->doItemsLayout();
  EXPECT_GE(list->visualItemRect(list->topLevelItem(0)).height(), 36);
}

TEST_F(ListBoxTest, RowsAreHighEnoughForALargerFont) {
  QFont large = list->font();
  large.setPointSizeF(large.pointSizeF() * 3);
  list->setFont(large);
  QApplication::processEvents();
  const int row = GridHeight(26, *list);
  ASSERT_GT(row, 26);
  EXPECT_EQ(list->visualItemRect(list->topLevelItem(1)),
            QRect(0, row, list->viewport()->width(), row));
}

TEST(ListBoxHeight, FollowsALargerFont) {
  TestWindow window;
  auto* list = window.Add<ListBox>();
  list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  window.widget().resize(300, 900);
  window.Show();
  QApplication::processEvents();
  const int before = list->height();
  QFont large = list->font();
  large.setPointSizeF(large.pointSizeF() * 3);
  list->setFont(large);
  QApplication::processEvents();
  EXPECT_GT(list->height(), before);
  EXPECT_EQ(list->height(), list->sizeHint().height());
}

// Twenty rows in a list that has room for three and a half.
class ListBoxRows : public ListBoxTest {
 protected:
  void SetUp() override {
    ListBoxTest::SetUp();
    for (int i = list->rowCount(); i < 20; ++i) list->addRow(QString::number(i));
    rowHeight = list->visualItemRect(list->topLevelItem(0)).height();
    list->setFixedHeight(7 * rowHeight / 2 + 2 * list->frameWidth());
    QApplication::processEvents();
  }

  int rowHeight = 0;
};

TEST_F(ListBoxRows, ARowThatIsCutAtTheBottomIsNotDrawnAndCannotBeClicked) {
  const QImage picture = list->viewport()->grab().toImage();
  for (int y = 3 * rowHeight; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      ASSERT_EQ(picture.pixelColor(x, y), list->palette().color(QPalette::Base)) << x << " " << y;
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(8, 3 * rowHeight + 5));
  EXPECT_EQ(list->index(), -1);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(8, 3 * rowHeight - 5));
  EXPECT_EQ(list->index(), 2);
}

TEST_F(ListBoxRows, ScrollingStopsAtWholeRows) {
  TurnWheel(list->viewport());
  EXPECT_GT(list->verticalScrollBar()->value(), 0);
  EXPECT_EQ(list->visualItemRect(list->topLevelItem(list->verticalScrollBar()->value())).top(), 0);
  list->setIndex(19);
  const QRect last = list->visualItemRect(list->topLevelItem(19));
  EXPECT_EQ(last.bottom(), 3 * rowHeight - 1);
}

TEST_F(ListBoxRows, AListLowerThanARowShowsItAllTheSame) {
  list->setFixedHeight(rowHeight / 2 + 2 * list->frameWidth());
  QApplication::processEvents();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(8, 4));
  EXPECT_EQ(list->index(), 0);
}

TEST_F(ListBoxRows, TheHeaderGoesOnAboveTheScrollBar) {
  list->SetColumns({{"Name"}});
  list->setFixedHeight(200);
  QApplication::processEvents();
  ASSERT_TRUE(list->verticalScrollBar()->isVisible());
  const QImage picture = list->grab().toImage();
  const int y = list->header()->height() / 2;
  const int beside = list->verticalScrollBar()->mapTo(list, QPoint(5, 0)).x();
  EXPECT_EQ(picture.pixelColor(beside, y), list->palette().color(QPalette::AlternateBase));
  EXPECT_GE(list->verticalScrollBar()->mapTo(list, QPoint(0, 0)).y(), list->header()->height());
}

TEST_F(ListBoxRows, WithoutAHeaderTheScrollBarGoesToTheTop) {
  EXPECT_LE(list->verticalScrollBar()->mapTo(list, QPoint(0, 0)).y(), list->frameWidth());
}

TEST_F(ListBoxTest, AsksForRoomForSixRowsUnderItsHeader) {
  const int row = list->visualItemRect(list->topLevelItem(0)).height();
  EXPECT_EQ(list->sizeHint().height(), 6 * row + 2 * list->frameWidth());
  list->SetColumns({{"Name"}});
  EXPECT_EQ(list->sizeHint().height(),
            6 * row + 2 * list->frameWidth() + list->header()->sizeHint().height());
}

TEST_F(ListBoxTest, TurningTheWheelOverAListDoesNotBringTheFocus) {
  for (int i = 0; i < 20; ++i) list->addRow("more");
  const QPoint at(8, 8);
  QWheelEvent turn(at, list->viewport()->mapToGlobal(at), {}, {0, -120}, Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&turn);
  qApp->notify(list->viewport(), &turn);
  EXPECT_TRUE(other->hasFocus());
}

}  // namespace
}  // namespace mortane

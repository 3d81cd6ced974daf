#include "widgets/TabStrip.h"

#include "gui/support/Face.h"
#include "gui/support/TestWindow.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

using Rows = std::vector<int>;

class TabStripTest : public ::testing::Test {
 protected:
  void SetUp() override {
    field = window.Add<TextField>();
    tabs = window.Add<TabStrip>();
    tabs->SetTabs({"1", "2", "3"});
    window.Show();
    field->setFocus();
  }

  void ClickTab(int index, Qt::MouseButton button = Qt::LeftButton) {
    // As the system delivers it, through the window, so that the focus moves first.
    const QPoint at = tabs->mapTo(&window.widget(), tabs->tabRect(index).center());
    QTest::mouseClick(window.widget().windowHandle(), button, Qt::NoModifier, at);
  }

  TestWindow window;
  TextField* field = nullptr;
  TabStrip* tabs = nullptr;
};

TEST_F(TabStripTest, BuildingAndSettingAreSilent) {
  QSignalSpy clicks(tabs, &TabStrip::chosen);
  QSignalSpy changes(tabs, &QTabBar::currentChanged);
  tabs->setIndex(2);
  tabs->SetTabs({"a", "b"});
  EXPECT_EQ(tabs->index(), 0);
  EXPECT_EQ(tabs->caption(), "a");
  EXPECT_EQ(tabs->AppendTab("c"), 2);
  EXPECT_EQ(tabs->index(), 0);
  EXPECT_EQ(clicks.count(), 0);
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(TabStripTest, AUsersClickIsRaisedOnceAlsoOnTheSelectedTab) {
  QSignalSpy clicks(tabs, &TabStrip::chosen);
  ClickTab(1);
  ClickTab(1);
  ClickTab(2, Qt::RightButton);
  ClickTab(0);
  EXPECT_EQ(Indices(clicks), (Rows{1, 1, 0}));
}

TEST_F(TabStripTest, ArrowsChooseAndStopAtTheEnds) {
  tabs->setFocus();
  QSignalSpy clicks(tabs, &TabStrip::chosen);
  for (int i = 0; i < 3; ++i) QTest::keyClick(tabs, Qt::Key_Right);
  EXPECT_EQ(Indices(clicks), (Rows{1, 2}));
}

TEST_F(TabStripTest, HomeAndEndChooseTheEndsThatCanBeUsed) {
  tabs->setTabEnabled(0, false);
  tabs->setIndex(1);
  tabs->setFocus();
  QSignalSpy choices(tabs, &TabStrip::chosen);
  QTest::keyClick(tabs, Qt::Key_End);
  QTest::keyClick(tabs, Qt::Key_End);
  QTest::keyClick(tabs, Qt::Key_Home);
  EXPECT_EQ(Indices(choices), (Rows{2, 1}));
}

TEST_F(TabStripTest, TheFieldIsLeftBeforeTheTabChanges) {
  int tabWhenLeft = -1;
  const QObject listener;
  QObject::connect(field, &TextField::committed, &listener, [&] { tabWhenLeft = tabs->index(); });
  QTest::keyClicks(field, "new");
  ClickTab(2);
  EXPECT_EQ(tabWhenLeft, 0);
  EXPECT_EQ(tabs->index(), 2);
  EXPECT_TRUE(tabs->hasFocus());
}

TEST_F(TabStripTest, ARefusedTextKeepsTheTab) {
  field->SetCheck([](const QString&) { return false; });
  QSignalSpy clicks(tabs, &TabStrip::chosen);
  ClickTab(2);
  QApplication::processEvents();
  EXPECT_EQ(tabs->index(), 0);
  EXPECT_EQ(clicks.count(), 0);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(TabStripTest, TheWheelChoosesNothing) {
  QSignalSpy clicks(tabs, &TabStrip::chosen);
  TurnWheel(tabs);
  tabs->setFocus();
  TurnWheel(tabs);
  EXPECT_EQ(tabs->index(), 0);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(TabStripTest, TabsAreNeverSmallerThanTheGrid) {
  for (int i = 0; i < tabs->count(); ++i) {
    EXPECT_GE(tabs->tabRect(i).width(), 56);
    EXPECT_GE(tabs->tabRect(i).height(), 32);
  }
}

struct TabFace {
  const char* what;
  test::Use use;
  bool pending;
  const char* row;     // through the middle of the first tab, which is chosen, and of the second
  const char* column;  // through the first tab
};

TEST(TabStripFace, TellsTheChosenTabTheFocusAndTheDot) {
  using test::Use;
  for (const TabFace& row : {
           TabFace{"at rest", Use::Rest, false, "Window 112", "Window 29, Highlight 3"},
           TabFace{"focused", Use::Focused, false,
                   "Window 1, Highlight 2, Window 50, Highlight 2, Window 57",
                   "Window 1, Highlight 2, Window 22, Highlight 2, Window 2, Highlight 3"},
           TabFace{"disabled", Use::Disabled, false, "disabled Window 112",
                   "disabled Window 29, disabled Highlight 3"},
           TabFace{"not sent", Use::Rest, true, "Window 31, ~ 2, Link 8, ~ 2, Window 69",
                   "Window 29, Highlight 3"},
       }) {
    TabStrip strip;
    strip.SetTabs({" ", " "});
    strip.SetTabPending(0, row.pending);
    const QImage picture = test::PictureOf(strip, {112, 32}, row.use);
    // The dot's edge is one pixel of the ground, at its left or at its right.
    const QString line = QString::fromStdString(test::RowOf(picture, 14)).remove("Base 1, ");
    EXPECT_TRUE(test::SameButForEdges(line.toStdString(), row.row)) << row.what << "\n"
                                                                    << line.toStdString();
    EXPECT_EQ(test::ColumnOf(picture, 10), row.column) << row.what;
  }
}

TEST(TabStripFace, ATabIsAsWideAsItsBoldTextWithRoomAtBothSides) {
  TabStrip strip;
  strip.SetTabs({"1", "A caption of several words"});
  EXPECT_EQ(strip.tabRect(0).size(), QSize(56, 32));
  const int text = QFontMetrics(BoldFont()).horizontalAdvance("A caption of several words");
  EXPECT_EQ(strip.tabRect(1).size(), QSize(text + 12, 32));
}

TEST(TabStripFace, TabsDoNotGrowIntoAWiderStrip) {
  TabStrip strip;
  strip.SetTabs({"1", "2"});
  strip.resize(400, 32);
  strip.show();
  QApplication::processEvents();
  EXPECT_EQ(strip.tabRect(1), QRect(56, 0, 56, 32));
}

}  // namespace
}  // namespace mortane

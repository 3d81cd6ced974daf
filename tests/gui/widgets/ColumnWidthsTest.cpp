// The columns of a list.
#include "widgets/ColumnWidths.h"

#include <QHeaderView>
#include <QScrollBar>

#include "gui/support/FontScope.h"
#include "gui/support/TestWindow.h"
#include "widgets/ListBox.h"

namespace mortane {
namespace {

using Widths = std::vector<int>;

struct WidthRow {
  std::vector<ColumnWish> wishes;
  int room;
  Widths widths;
};

TEST(ColumnWidths, GiveWayFromWhatIsWantedDownToTheContents) {
  const std::vector<ColumnWish> wishes{{40, 100}, {50, 80}, {60, 60}};
  for (const WidthRow& row : {
           WidthRow{wishes, 300, {100, 80, 120}},
           WidthRow{wishes, 240, {100, 80, 60}},
           WidthRow{wishes, 195, {70, 65, 60}},
           WidthRow{wishes, 150, {40, 50, 60}},
           WidthRow{wishes, 90, {40, 50, 60}},
           WidthRow{wishes, 0, {40, 50, 60}},
           WidthRow{{{40, 0}, {50, 20}}, 100, {40, 60}},
           WidthRow{{{40, 90}}, 70, {70}},
           WidthRow{{}, 100, {}},
       }) {
    EXPECT_EQ(ColumnWidths(row.wishes, row.room), row.widths) << row.room;
  }
}

class ListColumns : public testing::Test {
 protected:
  void Fill(const char* last) {
    list->SetColumns({{"Type"}, {"Mag.", Qt::AlignRight}, {"Name"}});
    list->addCells({"Dry", "10x", "Plan A"});
    list->addCells({"Oil", "100x", last});
  }
  int WidthOf(const QString& text) { return list->fontMetrics().horizontalAdvance(text); }
  int Total() const {
    int total = 0;
    for (int i = 0; i < list->columnCount(); ++i) total += list->columnWidth(i);
    return total;
  }

  void SetUp() override {
    list = window.Add<ListBox>();
    Fill("Plan Apochromat 100x Oil");
    window.widget().resize(600, 200);
    window.Show();
  }

  TestWindow window;
  ListBox* list = nullptr;
};

TEST_F(ListColumns, TheLastTakesWhatIsLeftOver) {
  EXPECT_EQ(Total(), list->viewport()->width());
  EXPECT_FALSE(list->horizontalScrollBar()->isVisible());
  EXPECT_LT(list->columnWidth(0), list->columnWidth(2));
}

TEST_F(ListColumns, NothingVanishesInANarrowList) {
  window.widget().resize(180, 200);
  QApplication::processEvents();
  EXPECT_GE(list->columnWidth(0), WidthOf("Type"));
  EXPECT_GE(list->columnWidth(1), WidthOf("100x"));
  EXPECT_GE(list->columnWidth(2), WidthOf("Plan Apochromat 100x Oil"));
  EXPECT_TRUE(list->horizontalScrollBar()->isVisible());
  list->horizontalScrollBar()->setValue(list->horizontalScrollBar()->maximum());
  const QRect row = list->visualItemRect(list->topLevelItem(1));
  EXPECT_LE(row.right(), list->viewport()->width());
}

TEST_F(ListColumns, HeadersAreShownWholeToo) {
  ListBox wide;
  wide.SetColumns({{"A header of many words"}, {"Another"}});
  wide.addCells({"a", "b"});
  wide.resize(60, 100);
  wide.show();
  EXPECT_GE(wide.columnWidth(0),
            wide.header()->fontMetrics().horizontalAdvance("A header of many words"));
}

TEST_F(ListColumns, FollowTheRows) {
  const int before = list->columnWidth(0);
  list->addCells({"A very long type indeed", "1x", "n"});
  QApplication::processEvents();
  EXPECT_GE(list->columnWidth(0), WidthOf("A very long type indeed"));
  list->topLevelItem(2)->setText(0, "A type that is longer still");
  QApplication::processEvents();
  window.widget().resize(601, 200);
  QApplication::processEvents();
  EXPECT_GE(list->columnWidth(0), WidthOf("A type that is longer still"));
  list->clearRows();
  Fill("x");
  QApplication::processEvents();
  EXPECT_EQ(list->columnWidth(0), before);
}

TEST_F(ListColumns, FollowTheFont) {
  const int before = list->columnWidth(1);
  QFont larger = list->font();
  larger.setPointSizeF(larger.pointSizeF() * 2);
  list->setFont(larger);
  QApplication::processEvents();
  EXPECT_GT(list->columnWidth(1), before);
  EXPECT_GE(list->columnWidth(1), WidthOf("100x"));
}

TEST_F(ListColumns, TabStopsGiveWayWhereTheRoomIsNarrow) {
  list->SetTabStops({80, 160});
  QApplication::processEvents();
  const int wanted = list->columnWidth(0);
  EXPECT_GT(wanted, 2 * WidthOf("Type"));
  window.widget().resize(300, 200);
  QApplication::processEvents();
  EXPECT_LT(list->columnWidth(0), wanted);
  EXPECT_GE(list->columnWidth(0), WidthOf("Type"));
  EXPECT_GE(list->columnWidth(2), WidthOf("Plan Apochromat 100x Oil"));
}

TEST_F(ListColumns, ASingleColumnIsNeverScrolledSideways) {
  auto* plain = window.Add<ListBox>();
  plain->addRow("A text that is a good deal wider than the list that shows it, by far");
  window.widget().resize(150, 300);
  QApplication::processEvents();
  EXPECT_FALSE(plain->horizontalScrollBar()->isVisible());
  EXPECT_EQ(plain->columnWidth(0), plain->viewport()->width());
}

}  // namespace
}  // namespace mortane

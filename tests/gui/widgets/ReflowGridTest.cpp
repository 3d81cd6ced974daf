#include "widgets/ReflowGrid.h"

#include <memory>
#include <vector>

#include "gui/support/TestWindow.h"

namespace mortane {
namespace {

constexpr int kTileWidth = 100;
constexpr int kTileHeight = 40;
constexpr int kLeastHeight = 20;
constexpr int kColumnGap = 10;
constexpr int kRowGap = 4;

class Tile : public QWidget {
 public:
  using QWidget::QWidget;
  [[nodiscard]] QSize sizeHint() const override { return {kTileWidth + 50, kTileHeight}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {kTileWidth, kLeastHeight}; }
};

// The width of that many columns of the narrowest tiles.
constexpr int WidthOf(int columns) {
  return columns * (kTileWidth + kColumnGap) - kColumnGap;
}

// Tiles in a grid of at most so many columns, in a panel of the size that the test gives.
class Grid : public ::testing::Test {
 protected:
  Grid(ReflowGrid::Order order, int mostColumns, std::size_t count)
      : layout(new ReflowGrid(order, mostColumns, kColumnGap, kRowGap)) {
    // The panel takes any size, however small.
    auto* column = new QVBoxLayout(&panel);
    column->setContentsMargins({});
    column->setSizeConstraint(QLayout::SetNoConstraint);
    column->addLayout(layout);
    for (std::size_t i = 0; i < count; ++i) {
      tiles.push_back(new Tile(&panel));
      layout->addWidget(tiles.back());
    }
    panel.show();
  }

  void Resize(int width, int height) {
    panel.resize(width, height);
    QApplication::processEvents();
  }
  QPoint PlaceOf(std::size_t tile) { return tiles[tile]->pos(); }
  std::vector<int> ColumnsOfTiles() {
    std::vector<int> columns;
    for (const Tile* tile : tiles) columns.push_back(tile->x() / (tile->width() + kColumnGap));
    return columns;
  }

  QWidget panel;
  ReflowGrid* layout;
  std::vector<Tile*> tiles;
};

class GridRowByRow : public Grid {
 protected:
  GridRowByRow() : Grid(ReflowGrid::Order::RowByRow, 3, 5) {}
};

TEST_F(GridRowByRow, FillsRowAfterRowInEqualColumns) {
  Resize(WidthOf(3) + 60, 200);
  EXPECT_EQ(ColumnsOfTiles(), (std::vector<int>{0, 1, 2, 0, 1}));
  for (const Tile* tile : tiles) EXPECT_EQ(tile->size(), QSize(kTileWidth + 20, kTileHeight));
  EXPECT_EQ(PlaceOf(1), QPoint(kTileWidth + 20 + kColumnGap, 0));
  EXPECT_EQ(PlaceOf(3), QPoint(0, kTileHeight + kRowGap)) << "from the top";
}

struct WidthRow {
  int width;
  std::vector<int> columns;
};

TEST_F(GridRowByRow, HasAsManyColumnsAsTheWidthHolds) {
  for (const WidthRow& row :
       {WidthRow{WidthOf(4), {0, 1, 2, 0, 1}}, WidthRow{WidthOf(3), {0, 1, 2, 0, 1}},
        WidthRow{WidthOf(3) - 1, {0, 1, 0, 1, 0}}, WidthRow{WidthOf(2), {0, 1, 0, 1, 0}},
        WidthRow{WidthOf(2) - 1, {0, 0, 0, 0, 0}}, WidthRow{WidthOf(1) / 2, {0, 0, 0, 0, 0}}}) {
    Resize(row.width, 400);
    EXPECT_EQ(ColumnsOfTiles(), row.columns) << row.width;
  }
}

TEST_F(GridRowByRow, AsksForTheHeightOfTheRowsThatItsWidthMakes) {
  Resize(WidthOf(3), 400);
  EXPECT_EQ(layout->sizeHint(),
            QSize(3 * (kTileWidth + 50) + 2 * kColumnGap, 2 * kTileHeight + kRowGap));
  EXPECT_EQ(layout->minimumSize(), QSize(kTileWidth, 2 * kLeastHeight + kRowGap));
  Resize(WidthOf(1), 400);
  EXPECT_EQ(layout->sizeHint().height(), 5 * kTileHeight + 4 * kRowGap);
  EXPECT_EQ(layout->minimumSize(), QSize(kTileWidth, 5 * kLeastHeight + 4 * kRowGap));
  Resize(WidthOf(2), 400);
  EXPECT_EQ(layout->minimumSize().height(), 3 * kLeastHeight + 2 * kRowGap);
}

TEST_F(GridRowByRow, RowsShareAHeightThatIsShort) {
  Resize(WidthOf(3), 2 * 30 + kRowGap);
  EXPECT_EQ(tiles[0]->height(), 30);
  EXPECT_EQ(PlaceOf(4).y(), 30 + kRowGap);
}

TEST_F(GridRowByRow, RowsGrowWithTheHeightAsFarAsTheyMay) {
  layout->SetGrowth(2.5);
  Resize(WidthOf(3), 2 * 60 + kRowGap);
  EXPECT_EQ(tiles[0]->height(), 60);
  Resize(WidthOf(3), 1000);
  EXPECT_EQ(tiles[0]->height(), 100);
  EXPECT_EQ(PlaceOf(3).y(), 100 + kRowGap);
  EXPECT_EQ(layout->sizeHint().height(), 2 * kTileHeight + kRowGap);
}

TEST_F(GridRowByRow, AHiddenTileLeavesNoGap) {
  tiles[1]->hide();
  Resize(WidthOf(3), 400);
  EXPECT_EQ(PlaceOf(2).x(), kTileWidth + kColumnGap);
  EXPECT_EQ(PlaceOf(4), QPoint(0, kTileHeight + kRowGap));
  tiles[2]->hide();
  QApplication::processEvents();
  EXPECT_EQ(layout->minimumSize().height(), kLeastHeight);
  for (Tile* tile : tiles) tile->hide();
  EXPECT_EQ(layout->minimumSize(), QSize(0, 0));
  EXPECT_EQ(layout->sizeHint(), QSize(2 * kColumnGap, 0));
  Resize(WidthOf(2), 300);
}

class GridDownwards : public Grid {
 protected:
  GridDownwards() : Grid(ReflowGrid::Order::Downwards, 3, 7) {}
};

TEST_F(GridDownwards, FillsTheColumnsThatTheWidthHoldsFromTheTop) {
  Resize(WidthOf(3), 400);
  EXPECT_EQ(ColumnsOfTiles(), (std::vector<int>{0, 0, 0, 1, 1, 1, 2}));
  EXPECT_EQ(PlaceOf(1), QPoint(0, kTileHeight + kRowGap));
  Resize(WidthOf(3) - 1, 400);
  EXPECT_EQ(ColumnsOfTiles(), (std::vector<int>{0, 0, 0, 0, 1, 1, 1}));
  Resize(WidthOf(1), 400);
  EXPECT_EQ(ColumnsOfTiles(), std::vector<int>(7, 0));
}

class GridColumnByColumn : public Grid {
 protected:
  GridColumnByColumn() : Grid(ReflowGrid::Order::ColumnByColumn, 2, 9) {}
};

constexpr int HeightOf(int rows) {
  return rows * (kTileHeight + kRowGap) - kRowGap;
}

struct HeightRow {
  int height;
  std::vector<int> columns;
};

TEST_F(GridColumnByColumn, HasOneColumnUnlessTheHeightIsShort) {
  const std::vector<int> one(9, 0);
  const std::vector<int> two{0, 0, 0, 0, 0, 1, 1, 1, 1};
  for (const HeightRow& row :
       {HeightRow{HeightOf(10), one}, HeightRow{HeightOf(9), one}, HeightRow{HeightOf(9) - 1, two},
        HeightRow{HeightOf(5), two}, HeightRow{HeightOf(1), two}, HeightRow{HeightOf(9), one}}) {
    Resize(600, row.height);
    EXPECT_EQ(ColumnsOfTiles(), row.columns) << row.height;
  }
}

TEST_F(GridColumnByColumn, TilesKeepTheirSizeAndStandAtTheLeft) {
  const QSize size(kTileWidth + 50, kTileHeight);
  Resize(600, HeightOf(12));
  EXPECT_EQ(PlaceOf(8), QPoint(0, 8 * (kTileHeight + kRowGap)));
  for (const Tile* tile : tiles) EXPECT_EQ(tile->size(), size);
  Resize(600, HeightOf(5));
  EXPECT_EQ(PlaceOf(5), QPoint(size.width() + kColumnGap, 0)) << "the top of the second column";
  for (const Tile* tile : tiles) EXPECT_EQ(tile->size(), size);
}

TEST_F(GridColumnByColumn, AsksForOneColumnAndIsContentWithTwo) {
  const int width = kTileWidth + 50;
  for (const int height : {HeightOf(9), HeightOf(5)}) {
    Resize(600, height);
    EXPECT_EQ(layout->sizeHint(), QSize(width, HeightOf(9)));
    EXPECT_EQ(layout->minimumSize(), QSize(2 * width + kColumnGap, HeightOf(5)));
  }
}

TEST_F(GridColumnByColumn, AHiddenTileLeavesNoGap) {
  tiles[0]->hide();
  Resize(600, HeightOf(8));
  EXPECT_EQ(PlaceOf(1), QPoint(0, 0));
  EXPECT_EQ(PlaceOf(8), QPoint(0, 7 * (kTileHeight + kRowGap)));
}

TEST(ReflowGridInAPanel, MakesThePanelHigherWhenTheRowsBreak) {
  TestWindow window;
  auto* panel = window.Add<QWidget>();
  auto* layout = new ReflowGrid(ReflowGrid::Order::RowByRow, 2, kColumnGap, kRowGap);
  panel->setLayout(layout);
  for (int i = 0; i < 2; ++i) layout->addWidget(new Tile(panel));
  window.Show();
  window.widget().resize(500, 10);
  QApplication::processEvents();
  const int oneRow = window.widget().minimumSizeHint().height();
  window.widget().resize(180, 10);
  QApplication::processEvents();
  EXPECT_EQ(window.widget().minimumSizeHint().height(), oneRow + kLeastHeight + kRowGap);
}

}  // namespace
}  // namespace mortane

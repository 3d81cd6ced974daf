#include "widgets/TileLayout.h"

#include <array>

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

// Five tiles in at most three columns, in a panel of the size that the test gives.
class TileLayoutTest : public ::testing::Test {
 protected:
  TileLayoutTest() {
    layout->setContentsMargins({});
    for (Tile*& tile : tiles) layout->addWidget(tile = new Tile(&panel));
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
  TileLayout* layout = new TileLayout(3, kColumnGap, kRowGap);
  std::array<Tile*, 5> tiles{};

 private:
  QWidget* holder_ = [this] {
    // A panel whose window takes any size, however small.
    auto* column = new QVBoxLayout(&panel);
    column->setContentsMargins({});
    column->setSizeConstraint(QLayout::SetNoConstraint);
    column->addLayout(layout);
    return &panel;
  }();
};

TEST_F(TileLayoutTest, FillsRowAfterRowInEqualColumns) {
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

TEST_F(TileLayoutTest, HasAsManyColumnsAsTheWidthHolds) {
  for (const WidthRow& row :
       {WidthRow{WidthOf(4), {0, 1, 2, 0, 1}}, WidthRow{WidthOf(3), {0, 1, 2, 0, 1}},
        WidthRow{WidthOf(3) - 1, {0, 1, 0, 1, 0}}, WidthRow{WidthOf(2), {0, 1, 0, 1, 0}},
        WidthRow{WidthOf(2) - 1, {0, 0, 0, 0, 0}}, WidthRow{WidthOf(1) / 2, {0, 0, 0, 0, 0}}}) {
    Resize(row.width, 400);
    EXPECT_EQ(ColumnsOfTiles(), row.columns) << row.width;
  }
}

TEST_F(TileLayoutTest, AsksForTheHeightOfTheRowsThatItsWidthMakes) {
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

TEST_F(TileLayoutTest, RowsShareAHeightThatIsShort) {
  Resize(WidthOf(3), 2 * 30 + kRowGap);
  EXPECT_EQ(tiles[0]->height(), 30);
  EXPECT_EQ(PlaceOf(4).y(), 30 + kRowGap);
}

TEST_F(TileLayoutTest, AHiddenTileLeavesNoGap) {
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

TEST(TileLayoutInAPanel, MakesThePanelHigherWhenTheRowsBreak) {
  TestWindow window;
  auto* panel = window.Add<QWidget>();
  auto* layout = new TileLayout(2, kColumnGap, kRowGap);
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

#include "widgets/TileLayout.h"

#include <algorithm>

namespace mortane {
namespace {

QSize LeastSize(const QList<QLayoutItem*>& tiles) {
  QSize size(0, 0);
  for (const QLayoutItem* tile : tiles) size = size.expandedTo(tile->minimumSize());
  return size;
}

QSize PreferredSize(const QList<QLayoutItem*>& tiles) {
  QSize size(0, 0);
  for (const QLayoutItem* tile : tiles) size = size.expandedTo(tile->sizeHint());
  return size;
}

}  // namespace

TileLayout::TileLayout(int mostColumns, int columnGap, int rowGap)
    : mostColumns_(mostColumns), rowGap_(rowGap), columns_(mostColumns) {
  setSpacing(columnGap);
}

QSize TileLayout::sizeHint() const {
  const QSize tile = PreferredSize(Tiles());
  return {mostColumns_ * tile.width() + (mostColumns_ - 1) * spacing(),
          HeightOfRows(tile.height())};
}

QSize TileLayout::minimumSize() const {
  const QSize tile = LeastSize(Tiles());
  return {tile.width(), HeightOfRows(tile.height())};
}

void TileLayout::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  const int columns = ColumnsIn(area.width());
  if (columns != columns_) {
    columns_ = columns;
    update();
  }
  const QList<QLayoutItem*> tiles = Tiles();
  const int width = (area.width() + spacing()) / columns_ - spacing();
  const int share = (area.height() + rowGap_) / std::max(Rows(), 1) - rowGap_;
  const int height = std::min(share, PreferredSize(tiles).height());
  for (int i = 0; i < tiles.size(); ++i) {
    const QPoint place((i % columns_) * (width + spacing()), (i / columns_) * (height + rowGap_));
    tiles[i]->setGeometry(QRect(area.topLeft() + place, QSize(width, height)));
  }
}

// Without the hidden ones.
QList<QLayoutItem*> TileLayout::Tiles() const {
  QList<QLayoutItem*> tiles;
  for (int i = 0; i < count(); ++i) {
    if (!itemAt(i)->isEmpty()) tiles.append(itemAt(i));
  }
  return tiles;
}

int TileLayout::ColumnsIn(int width) const {
  const int tile = LeastSize(Tiles()).width();
  return std::clamp((width + spacing()) / std::max(tile + spacing(), 1), 1, mostColumns_);
}

int TileLayout::Rows() const {
  return (static_cast<int>(Tiles().size()) + columns_ - 1) / columns_;
}

int TileLayout::HeightOfRows(int tileHeight) const {
  const int rows = Rows();
  return rows * tileHeight + std::max(rows - 1, 0) * rowGap_;
}

}  // namespace mortane

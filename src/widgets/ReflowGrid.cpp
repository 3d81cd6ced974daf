#include "widgets/ReflowGrid.h"

#include <algorithm>

namespace mortane {
namespace {

QSize LeastSize(const std::vector<QLayoutItem*>& cells) {
  QSize size(0, 0);
  for (const QLayoutItem* cell : cells) size = size.expandedTo(cell->minimumSize());
  return size;
}

QSize PreferredSize(const std::vector<QLayoutItem*>& cells) {
  QSize size(0, 0);
  for (const QLayoutItem* cell : cells) size = size.expandedTo(cell->sizeHint());
  return size;
}

}  // namespace

ReflowGrid::ReflowGrid(Order order, int mostColumns, int columnGap, int rowGap)
    : order_(order),
      mostColumns_(mostColumns),
      columnGap_(columnGap),
      rowGap_(rowGap),
      columns_(mostColumns) {}

QSize ReflowGrid::sizeHint() const {
  const QSize cell = PreferredSize(ShownItems());
  if (order_ == Order::ColumnByColumn) return SizeOf(1, RowsOf(1), cell);
  return SizeOf(mostColumns_, RowsOf(columns_), cell);
}

QSize ReflowGrid::minimumSize() const {
  const Items cells = ShownItems();
  if (order_ == Order::ColumnByColumn)
    return SizeOf(mostColumns_, RowsOf(mostColumns_), PreferredSize(cells));
  return SizeOf(1, RowsOf(columns_), LeastSize(cells));
}

void ReflowGrid::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  if (const int columns = ColumnsIn(area.size()); columns != columns_) {
    columns_ = columns;
    update();
  }
  const Items cells = ShownItems();
  const QSize cell = CellSizeIn(area.size());
  const int rows = RowsOf(columns_);
  for (int i = 0; i < static_cast<int>(cells.size()); ++i) {
    const int column = order_ == Order::RowByRow ? i % columns_ : i / rows;
    const int row = order_ == Order::RowByRow ? i / columns_ : i % rows;
    const QPoint place(column * (cell.width() + columnGap_), row * (cell.height() + rowGap_));
    cells[static_cast<std::size_t>(i)]->setGeometry(QRect(area.topLeft() + place, cell));
  }
}

int ReflowGrid::ColumnsIn(const QSize& room) const {
  const Items cells = ShownItems();
  if (order_ != Order::ColumnByColumn) {
    const int pitch = std::max(LeastSize(cells).width() + columnGap_, 1);
    return std::clamp((room.width() + columnGap_) / pitch, 1, mostColumns_);
  }
  const QSize cell = PreferredSize(cells);
  int columns = 1;
  while (columns < mostColumns_ && SizeOf(columns, RowsOf(columns), cell).height() > room.height())
    ++columns;
  return columns;
}

int ReflowGrid::RowsOf(int columns) const {
  return (static_cast<int>(ShownItems().size()) + columns - 1) / columns;
}

QSize ReflowGrid::SizeOf(int columns, int rows, const QSize& cell) const {
  return {columns * cell.width() + (columns - 1) * columnGap_,
          rows * cell.height() + std::max(rows - 1, 0) * rowGap_};
}

// In the present columns.
QSize ReflowGrid::CellSizeIn(const QSize& room) const {
  const QSize preferred = PreferredSize(ShownItems());
  if (order_ == Order::ColumnByColumn) return preferred;
  const int width = (room.width() + columnGap_) / columns_ - columnGap_;
  const int share = (room.height() + rowGap_) / std::max(RowsOf(columns_), 1) - rowGap_;
  return {width, std::min(share, static_cast<int>(preferred.height() * growth_))};
}

}  // namespace mortane

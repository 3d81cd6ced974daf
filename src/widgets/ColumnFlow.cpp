#include "widgets/ColumnFlow.h"

#include <algorithm>

namespace mortane {
namespace {

int HeightOf(const auto& row, QSize (QLayoutItem::*measure)() const) {
  int height = 0;
  for (const auto& column : row) height = std::max(height, (column.item->*measure)().height());
  return height;
}

}  // namespace

void ColumnFlow::AddColumn(QLayout* column, int stretch) {
  addChildLayout(column);
  addItem(column);
  stretches_.push_back(stretch);
}

QLayoutItem* ColumnFlow::takeAt(int index) {
  QLayoutItem* item = ItemLayout::takeAt(index);
  if (item != nullptr) stretches_.erase(stretches_.begin() + index);
  return item;
}

QSize ColumnFlow::sizeHint() const {
  const int width = WidthOf(ShownColumns(), &QLayoutItem::sizeHint);
  return {std::max(width, 0), HeightIn(width_, &QLayoutItem::sizeHint)};
}

QSize ColumnFlow::minimumSize() const {
  int widest = 0;
  for (const Column& column : ShownColumns())
    widest = std::max(widest, column.item->minimumSize().width());
  return {widest, HeightIn(width_, &QLayoutItem::minimumSize)};
}

void ColumnFlow::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  const std::vector<Row> rows = RowsIn(area.width());
  const bool breaksAnew = rows.size() != RowsIn(width_).size();
  width_ = area.width();
  if (breaksAnew) update();
  const int count = std::max(static_cast<int>(rows.size()), 1);
  const int spare = std::max(area.height() - HeightIn(width_, &QLayoutItem::minimumSize), 0);
  int top = area.top();
  for (const Row& row : rows) {
    const int height = HeightOf(row, &QLayoutItem::minimumSize) + spare / count;
    PlaceRow(row, {area.left(), top, area.width(), height});
    top += height + rowGap_;
  }
}

ColumnFlow::Row ColumnFlow::ShownColumns() const {
  Row columns;
  for (int i = 0; i < count(); ++i) {
    if (!itemAt(i)->isEmpty())
      columns.push_back({itemAt(i), stretches_[static_cast<std::size_t>(i)]});
  }
  return columns;
}

// As few rows as hold the least widths, of equal counts as far as they go.
std::vector<ColumnFlow::Row> ColumnFlow::RowsIn(int width) const {
  const Row columns = ShownColumns();
  for (std::size_t wanted = 1; wanted <= columns.size(); ++wanted) {
    const std::size_t inRow = (columns.size() + wanted - 1) / wanted;
    std::vector<Row> rows;
    bool fits = true;
    for (std::size_t first = 0; first < columns.size(); first += inRow) {
      const auto begin = columns.begin() + static_cast<std::ptrdiff_t>(first);
      const std::size_t taken = std::min(inRow, columns.size() - first);
      rows.emplace_back(begin, begin + static_cast<std::ptrdiff_t>(taken));
      fits = fits && WidthOf(rows.back(), &QLayoutItem::minimumSize) <= width;
    }
    if (fits || inRow == 1) return rows;
  }
  return {};
}

int ColumnFlow::WidthOf(const Row& row, Measure measure) const {
  int width = -columnGap_;
  for (const Column& column : row) width += (column.item->*measure)().width() + columnGap_;
  return width;
}

int ColumnFlow::HeightIn(int width, Measure measure) const {
  int height = -rowGap_;
  for (const Row& row : RowsIn(width)) height += HeightOf(row, measure) + rowGap_;
  return std::max(height, 0);
}

// A column whose share is less than its least width gets that; the others share what is left.
void ColumnFlow::PlaceRow(const Row& row, const QRect& area) const {
  std::vector<int> widths(row.size(), 0);
  for (bool settled = false; !settled;) {
    settled = true;
    int room = area.width() - columnGap_ * (static_cast<int>(row.size()) - 1);
    int stretches = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
      room -= widths[i];
      if (widths[i] == 0) stretches += row[i].stretch;
    }
    for (std::size_t i = 0; i < row.size() && settled; ++i) {
      const int least = row[i].item->minimumSize().width();
      if (widths[i] > 0 || room * row[i].stretch >= least * stretches) continue;
      widths[i] = least;
      settled = false;
    }
    if (!settled) continue;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (widths[i] == 0) widths[i] = room * row[i].stretch / std::max(stretches, 1);
    }
  }
  int left = area.left();
  for (std::size_t i = 0; i < row.size(); ++i) {
    row[i].item->setGeometry({left, area.top(), widths[i], area.height()});
    left += widths[i] + columnGap_;
  }
}

}  // namespace mortane

#include "widgets/FoldingLayout.h"

#include <algorithm>

#include "widgets/Theme.h"

namespace mortane {

FoldingLayout::FoldingLayout(int columnGap) : columnGap_(columnGap) {
  setSpacing(grid::kBetweenControls);
}

void FoldingLayout::addItem(QLayoutItem* item) {
  items_.emplace_back(item);
}

int FoldingLayout::count() const {
  return static_cast<int>(items_.size());
}

QLayoutItem* FoldingLayout::itemAt(int index) const {
  const bool exists = index >= 0 && index < count();
  return exists ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FoldingLayout::takeAt(int index) {
  if (itemAt(index) == nullptr) return nullptr;
  const auto place = items_.begin() + index;
  QLayoutItem* item = place->release();
  items_.erase(place);
  return item;
}

QSize FoldingLayout::sizeHint() const {
  return SizeOf(1);
}

QSize FoldingLayout::minimumSize() const {
  return SizeOf(2);
}

void FoldingLayout::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  const int rows = RowsIn(area.height() < SizeOf(1).height() ? 2 : 1);
  const QSize row = RowSize();
  for (int i = 0; i < count(); ++i) {
    const QPoint place((i / rows) * (row.width() + columnGap_),
                       (i % rows) * (row.height() + spacing()));
    itemAt(i)->setGeometry(QRect(area.topLeft() + place, row));
  }
}

QSize FoldingLayout::RowSize() const {
  QSize size;
  for (const auto& item : items_) size = size.expandedTo(item->sizeHint());
  return size;
}

QSize FoldingLayout::SizeOf(int columns) const {
  const QSize row = RowSize();
  const int rows = RowsIn(columns);
  return {columns * row.width() + (columns - 1) * columnGap_,
          rows * row.height() + std::max(rows - 1, 0) * spacing()};
}

}  // namespace mortane

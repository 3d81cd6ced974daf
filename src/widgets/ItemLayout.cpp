#include "widgets/ItemLayout.h"

namespace mortane {

ItemLayout::ItemLayout(QWidget* parent) : QLayout(parent) {
  setContentsMargins({});
}

void ItemLayout::addItem(QLayoutItem* item) {
  items_.emplace_back(item);
}

int ItemLayout::count() const {
  return static_cast<int>(items_.size());
}

QLayoutItem* ItemLayout::itemAt(int index) const {
  const bool exists = index >= 0 && index < count();
  return exists ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* ItemLayout::takeAt(int index) {
  if (itemAt(index) == nullptr) return nullptr;
  const auto place = items_.begin() + index;
  QLayoutItem* item = place->release();
  items_.erase(place);
  return item;
}

ItemLayout::Items ItemLayout::ShownItems() const {
  Items shown;
  for (const auto& item : items_) {
    if (!item->isEmpty()) shown.push_back(item.get());
  }
  return shown;
}

}  // namespace mortane

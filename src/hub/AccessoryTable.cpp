#include "hub/AccessoryTable.h"

#include <utility>

namespace mortane {

const std::array<const AccessoryRow*, accessory::kCount>& AccessoriesInReportOrder() {
  static const auto order = [] {
    std::array<const AccessoryRow*, accessory::kCount> rows{};
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = &kAccessoryTable[i];
    std::swap(rows[accessory::kCount - 2], rows[accessory::kCount - 1]);
    return rows;
  }();
  return order;
}

}  // namespace mortane

#include "filters/FilterItemNames.h"

#include <array>

namespace mortane {
namespace {

using controller::AccessoryDatabase;

constexpr std::int32_t kOptionBase = 240;

constexpr std::array<NameListKind, kFilterItems> kKinds{{
    {accessory::kFilterCube, [](const AccessoryDatabase& database) { return database.Exciters(); },
     kOptionBase, "EXCITER", "Filter Cube Optional Item Exciter (",
     "Filter Cube Optional Item Exciter[", "Filter Cube Optional Item Exciter["},
    {accessory::kFilterCube, [](const AccessoryDatabase& database) { return database.Dichroics(); },
     kOptionBase, "DICHROIC", "Filter Cube Optional Item Dichroic (",
     "Filter Cube Optional Item Dichroic[", "Filter Cube Optional Item Dichroic["},
    {accessory::kFilterCube, [](const AccessoryDatabase& database) { return database.Barriers(); },
     kOptionBase, "BARRIER", "Filter Cube Optional Item Barrier (",
     "Filter Cube Optional Item Barrier[", "Filter Cube Optional Item Barrier["},
}};

}  // namespace

const NameListKind& FilterItemKind(FilterItem item) {
  return kKinds[static_cast<std::size_t>(item)];
}

}  // namespace mortane

#include "filters/FilterItemNames.h"

#include <array>

namespace mortane {
namespace {

using controller::AccessoryDatabase;

constexpr std::array<NameListKind, kFilterItems> kKinds{{
    {accessory::kFilterCube, [](const AccessoryDatabase& database) { return database.Exciters(); },
     kOptionBase, kFilterItemElements[0], "Filter Cube Optional Item Exciter (",
     "Filter Cube Optional Item Exciter[", "Filter Cube Optional Item Exciter[",
     &AccessoryDatabase::ExciterCount},
    {accessory::kFilterCube, [](const AccessoryDatabase& database) { return database.Dichroics(); },
     kOptionBase, kFilterItemElements[1], "Filter Cube Optional Item Dichroic (",
     "Filter Cube Optional Item Dichroic[", "Filter Cube Optional Item Dichroic[",
     &AccessoryDatabase::DichroicCount},
    {accessory::kFilterCube, [](const AccessoryDatabase& database) { return database.Barriers(); },
     kOptionBase, kFilterItemElements[2], "Filter Cube Optional Item Barrier (",
     "Filter Cube Optional Item Barrier[", "Filter Cube Optional Item Barrier[",
     &AccessoryDatabase::BarrierCount},
}};

}  // namespace

const NameListKind& FilterItemKind(FilterItem item) {
  return kKinds[static_cast<std::size_t>(item)];
}

}  // namespace mortane

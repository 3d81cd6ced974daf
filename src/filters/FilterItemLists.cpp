#include "filters/FilterItemLists.h"

namespace mortane {
namespace {

// Calls `use` with the list of that item.
template <typename Use>
auto WithList(const FilterItemLists& lists, FilterItem item, Use&& use) {
  switch (item) {
    case FilterItem::Exciter:
      return use(lists.exciters);
    case FilterItem::Dichroic:
      return use(lists.dichroics);
    case FilterItem::Barrier:
      break;
  }
  return use(lists.barriers);
}

}  // namespace

std::string FilterItemLists::Name(FilterItem item, std::int32_t code) const {
  return WithList(*this, item, [&](const auto& list) { return list.Name(code); });
}

void FilterItemLists::Name(FilterItem item, std::int32_t code, std::string_view name) const {
  WithList(*this, item, [&](auto& list) { list.Name(code, name); });
}

std::int32_t FilterItemLists::FixedCount(FilterItem item) const {
  return WithList(*this, item, [](const auto& list) { return list.FixedCount(); });
}

}  // namespace mortane

// The items of a filter cube, and the units that hold their names.
#pragma once

#include <cstddef>

namespace mortane {

// In the order in which a cube names them.
enum class FilterItem : std::size_t { Exciter, Dichroic, Barrier };
inline constexpr std::size_t kFilterItems = 3;

template <FilterItem kItem>
class FilterItemNames;

using clsDbExciter = FilterItemNames<FilterItem::Exciter>;
using clsDbDichroic = FilterItemNames<FilterItem::Dichroic>;
using clsDbBarrier = FilterItemNames<FilterItem::Barrier>;

}  // namespace mortane

// The three lists of filter items side by side.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "filters/FilterItemNames.h"

namespace mortane {

struct FilterItemLists {
  clsDbExciter& exciters;
  clsDbDichroic& dichroics;
  clsDbBarrier& barriers;

  std::string Name(FilterItem item, std::int32_t code) const;
  void Name(FilterItem item, std::int32_t code, std::string_view name) const;
  std::int32_t FixedCount(FilterItem item) const;
};

}  // namespace mortane

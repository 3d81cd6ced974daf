// What differs between two lists of items.
#pragma once

#include <vector>

#include "record/ConfigurationItems.h"

namespace mortane {

struct ItemChange {
  ConfigurationItem from;
  ConfigurationItem to;
};

struct Differences {
  std::vector<ItemChange> changed;           // in the order of the second list
  std::vector<ConfigurationItem> onlyFirst;  // in the order of the first list
  std::vector<ConfigurationItem> onlySecond;

  bool IsEmpty() const { return changed.empty() && onlyFirst.empty() && onlySecond.empty(); }
};

// Of items of one key the last of a list counts, as for the reader of a file. The time grows with
// the number of items.
Differences DifferencesOf(const std::vector<ConfigurationItem>& first,
                          const std::vector<ConfigurationItem>& second);

}  // namespace mortane

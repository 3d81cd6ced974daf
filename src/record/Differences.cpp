#include "record/Differences.h"

#include "record/ItemIndex.h"

namespace mortane {

Differences DifferencesOf(const std::vector<ConfigurationItem>& first,
                          const std::vector<ConfigurationItem>& second) {
  const ItemIndex before(first);
  const ItemIndex after(second);
  Differences differences;
  for (const ConfigurationItem& item : first) {
    if (before.Counts(item) && after.Find(item.key) == nullptr) {
      differences.onlyFirst.push_back(item);
    }
  }
  for (const ConfigurationItem& item : second) {
    if (!after.Counts(item)) continue;
    const ConfigurationItem* old = before.Find(item.key);
    if (old == nullptr) {
      differences.onlySecond.push_back(item);
    } else if (!HaveSameValue(*old, item)) {
      differences.changed.push_back({*old, item});
    }
  }
  return differences;
}

}  // namespace mortane

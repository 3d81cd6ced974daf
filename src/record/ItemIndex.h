// Finds the items of a list by their keys.
#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "record/ConfigurationItems.h"

namespace mortane {

// By what a key says, not by where it stands.
struct ItemKeyHash {
  std::size_t operator()(const ItemKey* key) const {
    std::size_t hash = 0;
    for (const std::string* part :
         {&key->section, &key->element, &key->position, &key->attribute}) {
      hash = hash * 31 + std::hash<std::string_view>()(*part);
    }
    return hash;
  }
};
struct SameItemKey {
  bool operator()(const ItemKey* left, const ItemKey* right) const { return *left == *right; }
};

// The list must live as long, unchanged. Of items of one key the last counts.
class ItemIndex {
 public:
  explicit ItemIndex(const std::vector<ConfigurationItem>& items) {
    places_.reserve(items.size());
    for (const ConfigurationItem& item : items) places_[&item.key] = &item;
  }

  // Null for a key that no item has.
  const ConfigurationItem* Find(const ItemKey& key) const {
    const auto place = places_.find(&key);
    return place == places_.end() ? nullptr : place->second;
  }

  // Whether the item, one of the list, is the last of its key.
  bool Counts(const ConfigurationItem& item) const { return Find(item.key) == &item; }

 private:
  std::unordered_map<const ItemKey*, const ConfigurationItem*, ItemKeyHash, SameItemKey> places_;
};

}  // namespace mortane

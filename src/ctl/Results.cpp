#include "ctl/Results.h"

#include "record/ItemWords.h"

namespace mortane::ctl {

NamedItem NameOf(const ConfigurationItem& item, const ItemNames& names) {
  return {item.key, NameInWords(item.key, item.kind), item.value, ValueInWords(item, names)};
}

std::vector<NamedItem> NamesOf(const std::vector<ConfigurationItem>& items,
                               const ItemNames& names) {
  std::vector<NamedItem> named;
  named.reserve(items.size());
  for (const ConfigurationItem& item : items) named.push_back(NameOf(item, names));
  return named;
}

std::vector<NamedChange> NamesOf(const std::vector<ItemChange>& changes, const ItemNames& from,
                                 const ItemNames& to) {
  std::vector<NamedChange> named;
  named.reserve(changes.size());
  for (const ItemChange& change : changes) {
    named.push_back({NameOf(change.from, from), NameOf(change.to, to)});
  }
  return named;
}

}  // namespace mortane::ctl

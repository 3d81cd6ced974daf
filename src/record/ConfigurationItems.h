// A configuration as a flat list of items, the one form in which states are compared and shown.
#pragma once

#include <compare>
#include <string>
#include <vector>

#include "document/Dom.h"
#include "record/ItemKinds.h"

namespace mortane {

// Where an item stands in a settings file. Known names and positions are spelled as the program
// writes them, others as the file has them.
struct ItemKey {
  std::string section;
  std::string element;  // below the section; of nested elements the path "FOCUSDRIVE/Escape_ZDrive"
  std::string position;  // POSITION of the innermost element that has one, else empty
  std::string attribute;

  auto operator<=>(const ItemKey&) const = default;  // NOLINT(modernize-use-nullptr)
};

// "NOSEPIECE ITEM 3 CODE"; for messages and for lookups.
std::string KeyText(const ItemKey& key);

struct ConfigurationItem {
  ItemKey key;
  ItemKind kind = ItemKind::Unknown;
  std::string value;  // as the file has it
  // What the model holds where its text in the file says less, else empty: an objective's values
  // in full, or the number that the file has no word for.
  std::string exact;

  bool operator==(const ConfigurationItem&) const = default;
};

// False for what the file calls unknown; the number that the file has no word for is known.
bool IsKnown(const ConfigurationItem& item);

// Whether two items of one key hold the same for a Send: blanks at the end of a name do not count,
// save for the system's name.
bool HaveSameValue(const ConfigurationItem& left, const ConfigurationItem& right);

// All attributes of the document's elements but POSITION, in the order of the file. Empty for a
// document of another format.
std::vector<ConfigurationItem> ItemsOf(const DomDocument& document);

}  // namespace mortane

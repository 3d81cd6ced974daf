// How a person names an item and its value, in the words of the pages.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "record/ConfigurationItems.h"
#include "record/ItemNames.h"

namespace mortane {

// "Objective 3", "Lower Limit", "Nosepiece Change to ND Filter", "Tactor Switch R (A)": what an
// item of that key is called.
std::string NameInWords(const ItemKey& key, ItemKind kind);

// "Plan F 20x", "-15mm", "ON", "Series Plan F, Type Dry, Mag. 20x, ...": the value of an item. A
// code without a name is "code 9", a value that is not known "unknown"; what is no value of the
// item is shown as it stands. Numbers are in the user's format.
std::string ValueInWords(const ConfigurationItem& item, const ItemNames& names);

// A part of a value that has several.
struct ValuePart {
  std::string_view name;
  std::string value;  // what is compared
  std::string words;
};

// Of an optional objective series, type, magnification, distance, aperture and condenser; of an
// optional cube exciter, dichroic and barrier. None for other items, and for what is no value of
// the item.
std::vector<ValuePart> PartsOf(const ConfigurationItem& item, const ItemNames& names);

// "Objective 3: Plan F 20x".
std::string InWords(const ConfigurationItem& item, const ItemNames& names);

}  // namespace mortane

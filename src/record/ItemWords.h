// How a person names an item and its value, in the words of the pages.
#pragma once

#include <string>

#include "record/ConfigurationItems.h"
#include "record/ItemNames.h"

namespace mortane {

// "Objective 3": what an item of that key is called.
std::string NameInWords(const ItemKey& key, ItemKind kind);

// "Plan F 20x", "-15mm", "ON": the value of an item. A code without a name is shown as the code.
std::string ValueInWords(const ConfigurationItem& item, const ItemNames& names);

// "Objective 3: Plan F 20x".
std::string InWords(const ConfigurationItem& item, const ItemNames& names);

}  // namespace mortane

// Which control of which sub-page shows which item of a settings file.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "record/ConfigurationItems.h"

namespace mortane {

// The names of a sub-page: that of the main window, and the wizard's where it has another.
struct SubPageName {
  const char* name;
  const char* inWizard = nullptr;
};

// From the position of an item, as its key has it, to a place; -1 for a position without one.
using PlaceOfPosition = int (*)(const std::string& position);

inline constexpr int kWholeValue = -1;

struct ItemPlace {
  ItemKind kind;
  SubPageName subPage;
  const char* control;  // its name; that of an array without the index
  // The element of an array from 0, the row of a list, the address of a turret. Without it the
  // control is the item's own; of a list it is the selected row.
  PlaceOfPosition place = nullptr;
  std::string_view position = {};  // of the one item that it shows, when it shows not all of a kind
  // Tabs, or options, of which the chosen one says whose item the controls show: its index.
  const char* chooser = nullptr;
  PlaceOfPosition choice = nullptr;
  int part = kWholeValue;  // of a value of several parts (PartsOf)
};

// The first one of an item is where a person sets it.
std::span<const ItemPlace> ItemPlaces();

}  // namespace mortane

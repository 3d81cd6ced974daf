// The sections of the settings file, and the elements in them with their readers and writers.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "document/Dom.h"
#include "model/ConfigurationUnit.h"

namespace mortane {

// A section's index in kFileSections is its file item.
struct FileSection {
  std::string_view element;
  std::string_view label;  // in the dialog where the user chooses sections
};

inline constexpr std::string_view kSettingsRoot = "Setup";

inline constexpr std::array<FileSection, 8> kFileSections{{
    {"SYSTEM", "System"},
    {"NOSEPIECE", "Objective"},
    {"FILTER", "Filter Cube"},
    {"CONDENSER", "Condenser"},
    {"INTERLOCK", "InterLock"},
    {"CONTROL", "Control"},
    {"SWITCH", "K70 SW Function"},
    {"TACTOR", "Tactor SW Function"},
}};

namespace fileitem {
inline constexpr std::size_t kSystem = 0;
inline constexpr std::size_t kNosepiece = 1;
inline constexpr std::size_t kFilter = 2;
inline constexpr std::size_t kCondenser = 3;
inline constexpr std::size_t kInterlock = 4;
inline constexpr std::size_t kControl = 5;
inline constexpr std::size_t kSwitch = 6;
inline constexpr std::size_t kTactor = 7;
}  // namespace fileitem

// How an element's name in a file is compared with the name in the table.
enum class NameMatch { IgnoringCase, Exact };

// An element of a section. When one writer writes the elements of several rows, only the first row
// has it.
struct FileElement {
  std::size_t fileItem;
  std::string_view name;
  NameMatch match;
  // Returns the lines of what was refused. Raises a Failure for data that no conversion can take.
  std::function<std::string(DomNode)> read;
  // May be empty. Raises a Failure for a text that XML cannot hold.
  std::function<void(DomDocument&, DomNode)> write;
};

// Rows in the order of writing.
using FileTable = std::vector<FileElement>;

// The row of a unit that follows the pattern ReadDom, WriteDom.
template <ConfigurationUnit Unit>
FileElement MakeFileElement(std::size_t fileItem, Unit& unit) {
  return {fileItem, Unit::kElement, NameMatch::IgnoringCase,
          [&unit](DomNode node) { return unit.ReadDom(node); },
          [&unit](DomDocument& document, DomNode parent) { unit.WriteDom(document, parent); }};
}

}  // namespace mortane

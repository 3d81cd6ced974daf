// Settings that a unit keeps in the children of its element of the settings file.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "common/Text.h"
#include "document/Dom.h"
#include "model/DriveCompensation.h"
#include "model/ElementFields.h"
#include "model/FileWords.h"

namespace mortane {

// The compensation of either drive.
inline constexpr std::array<FileWord, 3> kCompensationWords{
    {{"None", compensation::kNone},
     {"Absolute", compensation::kAbsolute},
     {"Relative", compensation::kRelative}}};

// One attribute of one child. What is written need not be what is read; a setting without words to
// write is only read.
template <typename Unit>
struct FileSetting {
  std::string_view child;
  std::string_view attribute;
  FileWords readWords;
  FileWords writtenWords;
  std::int32_t (*get)(const Unit& unit);
  void (*set)(Unit& unit, std::int32_t value);
  std::string_view refused;  // the line of a text that is none of the words
};

// The row of a public field.
template <typename Unit, std::int32_t Unit::*Field>
constexpr FileSetting<Unit> FieldSetting(std::string_view child, std::string_view attribute,
                                         FileWords readWords, FileWords writtenWords,
                                         std::string_view refused) {
  return {child,
          attribute,
          readWords,
          writtenWords,
          [](const Unit& unit) { return unit.*Field; },
          [](Unit& unit, std::int32_t value) { unit.*Field = value; },
          refused};
}

// How a child without its attribute is taken.
enum class MissingAttribute { EmptyText, PassedOver };

// Sets what the element's children hold; answers the lines of what could not be used. Children
// that no row knows are passed over.
template <typename Unit>
std::string ReadSettings(Unit& unit, const DomNode& element,
                         std::span<const FileSetting<Unit>> settings, MissingAttribute missing) {
  std::string failures;
  for (const DomNode& child : element.Children()) {
    if (!child.IsElement()) continue;
    const std::string name = child.Name();
    const ElementFields fields(child);
    for (const FileSetting<Unit>& setting : settings) {
      if (!EqualsIgnoringCase(name, setting.child)) continue;
      if (missing == MissingAttribute::PassedOver && !fields.Has(setting.attribute)) continue;
      const std::string text = fields.Text(setting.attribute);
      if (const auto value = ValueOf(setting.readWords, text, setting.get(unit))) {
        setting.set(unit, *value);
      } else {
        failures = AppendLine(failures, setting.refused);
      }
    }
  }
  return failures;
}

// Appends an element of that name with a child for each setting that is written.
template <typename Unit>
void WriteSettings(const Unit& unit, DomDocument& document, DomNode section,
                   std::span<const FileSetting<Unit>> settings) {
  DomNode element = document.CreateElement(Unit::kElement);
  for (const FileSetting<Unit>& setting : settings) {
    if (setting.writtenWords.empty()) continue;
    DomNode child = document.CreateElement(setting.child);
    child.SetAttribute(setting.attribute, WordOf(setting.writtenWords, setting.get(unit)));
    element.Append(child);
  }
  section.Append(element);
}

}  // namespace mortane

#include "record/ConfigurationItems.h"

#include <algorithm>
#include <utility>

#include "common/Text.h"
#include "hub/SettingsFile.h"
#include "model/FileWords.h"

namespace mortane {
namespace {

constexpr std::string_view kPosition = "POSITION";
constexpr std::string_view kUnknownOffset = "-1";

bool IsName(ItemKind kind) {
  return kind != ItemKind::SystemName && kind != ItemKind::Unknown &&
         RowOf(kind).attribute == "NAME";
}

std::string SectionName(const std::string& name) {
  for (const FileSection& section : kFileSections) {
    if (EqualsIgnoringCase(section.element, name)) return std::string(section.element);
  }
  return name;
}

// Collects the items below one section.
class SectionItems {
 public:
  SectionItems(std::string section, std::vector<ConfigurationItem>& items)
      : section_(std::move(section)), items_(items) {}

  void Collect(const DomNode& node, const std::string& path, const std::string& position) {
    for (const DomNode& child : node.Children()) {
      if (!child.IsElement()) continue;
      const std::string element = path.empty() ? child.Name() : path + "/" + child.Name();
      const std::vector<DomAttribute> attributes = child.Attributes();
      std::string inner = position;
      for (const DomAttribute& attribute : attributes) {
        if (EqualsIgnoringCase(attribute.name, kPosition)) inner = attribute.value;
      }
      for (const DomAttribute& attribute : attributes) Add(element, inner, attribute);
      Collect(child, element, inner);
    }
  }

 private:
  void Add(const std::string& element, const std::string& position, const DomAttribute& attribute) {
    if (EqualsIgnoringCase(attribute.name, kPosition)) return;
    ConfigurationItem item;
    item.kind = FindItemKind(section_, element, attribute.name);
    if (item.kind == ItemKind::Unknown) {
      item.key = {section_, element, position, attribute.name};
    } else {
      const ItemKindRow& row = RowOf(item.kind);
      item.key = {section_, std::string(row.element), CanonicalPosition(item.kind, position),
                  std::string(row.attribute)};
    }
    item.value = attribute.value;
    items_.push_back(std::move(item));
  }

  std::string section_;
  std::vector<ConfigurationItem>& items_;
};

}  // namespace

std::string KeyText(const ItemKey& key) {
  std::string text = key.section + " " + key.element;
  if (!key.position.empty()) text += " " + key.position;
  return text + " " + key.attribute;
}

bool IsKnown(const ConfigurationItem& item) {
  if (!item.exact.empty()) return true;
  if (item.kind == ItemKind::Offset) return Trim(item.value) != kUnknownOffset;
  return IsName(item.kind) || item.kind == ItemKind::SystemName ||
         !EqualsIgnoringCase(item.value, kUnknownWord);
}

bool HaveSameValue(const ConfigurationItem& left, const ConfigurationItem& right) {
  if (IsName(left.kind)) return RightTrim(left.value) == RightTrim(right.value);
  if (!left.exact.empty() && !right.exact.empty()) return left.exact == right.exact;
  return left.exact.empty() == right.exact.empty() && left.value == right.value;
}

std::vector<ConfigurationItem> ItemsOf(const DomDocument& document) {
  std::vector<ConfigurationItem> items;
  for (const DomNode& root : document.Children()) {
    if (!root.IsElement() || !EqualsIgnoringCase(root.Name(), kSettingsRoot)) continue;
    for (const DomNode& section : root.Children()) {
      if (!section.IsElement()) continue;
      SectionItems(SectionName(section.Name()), items).Collect(section, {}, {});
    }
    break;
  }
  return items;
}

}  // namespace mortane

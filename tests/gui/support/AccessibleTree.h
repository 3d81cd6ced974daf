// What a screen reader finds on a page.
#pragma once

#include <QAccessible>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

class QWidget;

namespace mortane::test {

// `state` names what is not as usual: "checked" or "unchecked" of what can be checked, "disabled",
// "read only", in this order, separated by commas.
struct AccessibleControl {
  QAccessible::Role role;
  std::string name;
  std::string value = {};
  std::string state = {};

  bool operator==(const AccessibleControl&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const AccessibleControl& control);

// Rows of a table of what is told.
namespace told {
inline AccessibleControl Group(std::string name) {
  return {QAccessible::Grouping, std::move(name)};
}
inline AccessibleControl Label(std::string text) {
  return {QAccessible::StaticText, std::move(text), "", "read only"};
}
inline AccessibleControl Heading(std::string title) {
  return {QAccessible::Heading, std::move(title)};
}
inline AccessibleControl Value(std::string caption, std::string value) {
  return {QAccessible::StaticText, std::move(caption), std::move(value), "read only"};
}
inline AccessibleControl Chosen(std::string option) {
  return {QAccessible::RadioButton, std::move(option), "", "checked"};
}
inline AccessibleControl NotChosen(std::string option) {
  return {QAccessible::RadioButton, std::move(option), "", "unchecked"};
}
inline AccessibleControl Field(std::string name, std::string text) {
  return {QAccessible::EditableText, std::move(name), std::move(text)};
}
inline AccessibleControl List(std::string name, std::string chosenRow) {
  return {QAccessible::List, std::move(name), std::move(chosenRow)};
}
inline AccessibleControl Combo(std::string name, std::string chosenRow) {
  return {QAccessible::ComboBox, std::move(name), std::move(chosenRow)};
}
inline AccessibleControl Tabs(std::string name, std::string chosenTab) {
  return {QAccessible::PageTabList, std::move(name), std::move(chosenTab)};
}
}  // namespace told

// What the screen reader knows of this object.
AccessibleControl AccessibleOf(QObject& object);

// All that is visible and has a name or a value, a parent before its children. The items of lists,
// tab strips and combo boxes are left out: their control tells the chosen one as its value.
std::vector<AccessibleControl> AccessibleTree(QWidget& root);

}  // namespace mortane::test

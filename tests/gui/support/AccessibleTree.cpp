#include "gui/support/AccessibleTree.h"

#include <QMetaEnum>
#include <QStringList>
#include <QWidget>

namespace mortane::test {
namespace {

std::string StateText(const QAccessible::State& state) {
  QStringList words;
  if (state.checkable) words.append(state.checked ? "checked" : "unchecked");
  if (state.disabled) words.append("disabled");
  if (state.readOnly) words.append("read only");
  return words.join(", ").toStdString();
}

AccessibleControl Describe(const QAccessibleInterface& interface) {
  return {interface.role(), interface.text(QAccessible::Name).toStdString(),
          interface.text(QAccessible::Value).toStdString(), StateText(interface.state())};
}

bool HasItems(QAccessible::Role role) {
  return role == QAccessible::List || role == QAccessible::PageTabList ||
         role == QAccessible::ComboBox;
}

void Walk(const QAccessibleInterface& interface, std::vector<AccessibleControl>& found) {
  if (interface.state().invisible) return;
  const AccessibleControl control = Describe(interface);
  if (!control.name.empty() || !control.value.empty()) found.push_back(control);
  if (HasItems(control.role)) return;
  for (int i = 0; i < interface.childCount(); ++i) {
    if (const QAccessibleInterface* child = interface.child(i)) Walk(*child, found);
  }
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const AccessibleControl& control) {
  return stream << '{' << QMetaEnum::fromType<QAccessible::Role>().valueToKey(control.role)
                << ", \"" << control.name << "\", \"" << control.value << "\", \"" << control.state
                << "\"}";
}

AccessibleControl AccessibleOf(QObject& object) {
  const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&object);
  return interface == nullptr ? AccessibleControl{QAccessible::NoRole, {}} : Describe(*interface);
}

std::vector<AccessibleControl> AccessibleTree(QWidget& root) {
  std::vector<AccessibleControl> found;
  if (const QAccessibleInterface* top = QAccessible::queryAccessibleInterface(&root)) {
    Walk(*top, found);
  }
  return found;
}

}  // namespace mortane::test

#include "accessible/AccessibleControls.h"

#include <QAbstractButton>

#include "accessible/AccessibleClick.h"
#include "widgets/CheckToggle.h"
#include "widgets/PageButton.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

QAccessible::State Checkable(QAccessible::State state, bool checked) {
  state.checkable = true;
  state.checked = checked;
  return state;
}

}  // namespace

AccessibleOption::AccessibleOption(QAbstractButton* button)
    : QAccessibleWidget(button, QAccessible::RadioButton), button_(*button) {}

QAccessible::State AccessibleOption::state() const {
  QAccessible::State state = Checkable(QAccessibleWidget::state(), isChosen());
  // The Tab key stops at one option of a group; arrows reach the others.
  state.focusable = button_.isEnabled();
  return state;
}

QStringList AccessibleOption::actionNames() const {
  if (!button_.isEnabled()) return {};
  return {toggleAction(), setFocusAction()};
}

void AccessibleOption::doAction(const QString& name) {
  if (name != toggleAction()) return QAccessibleWidget::doAction(name);
  ClickFor(button_);
}

bool AccessibleOption::isChosen() const {
  return button_.isChecked();
}

AccessiblePageButton::AccessiblePageButton(PageButton* button)
    : AccessibleOption(button), button_(*button) {}

bool AccessiblePageButton::isChosen() const {
  return button_.isSelected();
}

AccessibleSwitch::AccessibleSwitch(CheckToggle* toggle)
    : QAccessibleWidget(toggle, QAccessible::CheckBox), toggle_(*toggle) {}

QString AccessibleSwitch::text(QAccessible::Text part) const {
  return part == QAccessible::Value ? toggle_.text() : QAccessibleWidget::text(part);
}

QAccessible::State AccessibleSwitch::state() const {
  QAccessible::State state = Checkable(QAccessibleWidget::state(), toggle_.isChecked());
  state.checkStateMixed = toggle_.isUnknown();
  return state;
}

QStringList AccessibleSwitch::actionNames() const {
  return QStringList(toggleAction()) + QAccessibleWidget::actionNames();
}

void AccessibleSwitch::doAction(const QString& name) {
  if (name != toggleAction()) return QAccessibleWidget::doAction(name);
  ClickFor(toggle_);
}

AccessibleValue::AccessibleValue(ValueLabel* label)
    : QAccessibleWidget(label, QAccessible::StaticText), label_(*label) {}

QString AccessibleValue::content() const {
  return label_.text();
}

QString AccessibleValue::text(QAccessible::Text part) const {
  return part == QAccessible::Value ? content() : QAccessibleWidget::text(part);
}

QAccessible::State AccessibleValue::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.readOnly = true;
  return state;
}

void* AccessibleValue::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

}  // namespace mortane

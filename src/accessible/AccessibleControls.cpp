#include "accessible/AccessibleControls.h"

#include <QCheckBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "widgets/CheckToggle.h"
#include "widgets/PageButton.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

QAccessible::Role RoleOf(const QAbstractButton& button) {
  if (qobject_cast<const QRadioButton*>(&button) != nullptr) return QAccessible::RadioButton;
  if (button.isCheckable())
    return button.autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
  return QAccessible::Button;
}

// A doubled sign stands for itself, a single one marks the letter of the shortcut.
QString WithoutMnemonic(const QString& caption) {
  QString text;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && ++i == caption.size()) break;
    text.append(caption[i]);
  }
  return text;
}

}  // namespace

AccessibleButton::AccessibleButton(QAbstractButton* button)
    : AccessibleButton(button, RoleOf(*button)) {}

AccessibleButton::AccessibleButton(QAbstractButton* button, QAccessible::Role role)
    : AccessibleControl(button, role), button_(*button) {}

QString AccessibleButton::text(QAccessible::Text part) const {
  QString told = AccessibleControl::text(part);
  if (!told.isEmpty()) return told;
  if (part == QAccessible::Name) return WithoutMnemonic(button_.text());
  if (part == QAccessible::Accelerator)
    return button_.shortcut().toString(QKeySequence::NativeText);
  return told;
}

QAccessible::State AccessibleButton::state() const {
  QAccessible::State state = AccessibleControl::state();
  state.checkable = button_.isCheckable();
  state.checked = isChosen();
  state.pressed = button_.isDown();
  // The Tab key stops at one option of a group; arrows reach the others.
  if (role() == QAccessible::RadioButton) state.focusable = button_.isEnabled();
  if (const auto* box = qobject_cast<const QCheckBox*>(&button_))
    state.checkStateMixed = box->checkState() == Qt::PartiallyChecked;
  if (const auto* key = qobject_cast<const QPushButton*>(&button_))
    state.defaultButton = key->isDefault();
  return state;
}

QStringList AccessibleButton::actionNames() const {
  if (!button_.isEnabled()) return {};
  const bool toggles = role() == QAccessible::RadioButton || button_.isCheckable();
  QStringList names{toggles ? toggleAction() : pressAction()};
  if (state().focusable) names.append(setFocusAction());
  return names;
}

void AccessibleButton::doAction(const QString& name) {
  if (name != pressAction() && name != toggleAction()) return AccessibleControl::doAction(name);
  QAbstractButton& button = button_;
  ActFor(button, [&button] { ClickFor(button); });
}

QStringList AccessibleButton::keyBindingsForAction(const QString& name) const {
  const QString shortcut = text(QAccessible::Accelerator);
  const bool acts = name == pressAction() || name == toggleAction();
  return acts && !shortcut.isEmpty() ? QStringList(shortcut) : QStringList();
}

bool AccessibleButton::isChosen() const {
  return button_.isChecked();
}

AccessiblePageButton::AccessiblePageButton(PageButton* button)
    : AccessibleOption(button), button_(*button) {}

QAccessible::State AccessiblePageButton::state() const {
  QAccessible::State state = AccessibleOption::state();
  state.checkable = true;
  return state;
}

bool AccessiblePageButton::isChosen() const {
  return button_.isSelected();
}

AccessibleToggle::AccessibleToggle(CheckToggle* toggle)
    : AccessibleButton(toggle, QAccessible::CheckBox), toggle_(*toggle) {}

// A button's text would give the caption as the name.
QString AccessibleToggle::text(QAccessible::Text part) const {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call)
  return part == QAccessible::Value ? toggle_.text() : AccessibleControl::text(part);
}

QAccessible::State AccessibleToggle::state() const {
  QAccessible::State state = AccessibleButton::state();
  state.checkStateMixed = toggle_.isUnknown();
  return state;
}

QString AccessibleShownText::text(QAccessible::Text part) const {
  return part == QAccessible::Value ? content() : QAccessibleWidget::text(part);
}

QAccessible::State AccessibleShownText::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.readOnly = true;
  return state;
}

void* AccessibleShownText::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

AccessibleValue::AccessibleValue(ValueLabel* label)
    : AccessibleShownText(label, QAccessible::StaticText), label_(*label) {}

QString AccessibleValue::content() const {
  return label_.text();
}

AccessibleReadOnlyField::AccessibleReadOnlyField(QLineEdit* field)
    : AccessibleShownText(field, QAccessible::EditableText), field_(*field) {}

QString AccessibleReadOnlyField::content() const {
  return field_.text();
}

AccessibleHeading::AccessibleHeading(QLabel* label)
    : QAccessibleWidget(label, QAccessible::Heading), label_(*label) {}

QString AccessibleHeading::text(QAccessible::Text part) const {
  return part == QAccessible::Name ? label_.text() : QAccessibleWidget::text(part);
}

}  // namespace mortane

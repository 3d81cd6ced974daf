#include "widgets/OptionGroup.h"

#include <QRadioButton>

namespace mortane {

OptionGroup::OptionGroup(QObject* parent) : QObject(parent) {
  connect(&group_, &QButtonGroup::idClicked, this, &OptionGroup::clicked);
}

QRadioButton* OptionGroup::addOption(const QString& text, const QString& arrayName,
                                     QWidget* parent) {
  auto* option = new QRadioButton(text, parent);
  option->setObjectName(arrayName + QLatin1Char('_') + QString::number(count()));
  add(option, count());
  return option;
}

void OptionGroup::add(QAbstractButton* button, int index) {
  buttons_.append(button);
  group_.addButton(button, index);
}

void OptionGroup::select(int index) {
  QAbstractButton* wanted = group_.button(index);
  if (wanted == nullptr || wanted->isChecked()) return;
  wanted->setChecked(true);
  emit clicked(index);
}

void OptionGroup::clear() {
  // An exclusive group ignores the unchecking of its checked button.
  group_.setExclusive(false);
  for (QAbstractButton* button : buttons_) button->setChecked(false);
  group_.setExclusive(true);
}

}  // namespace mortane

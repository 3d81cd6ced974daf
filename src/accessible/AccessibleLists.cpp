#include "accessible/AccessibleLists.h"

#include <QAbstractItemView>

#include "widgets/ClickFocus.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"

namespace mortane {

using namespace Qt::StringLiterals;

AccessibleList::AccessibleList(ListBox* list)
    : AccessibleItems(list, QAccessible::List, QAccessible::ListItem), list_(*list) {}

int AccessibleList::itemCount() const {
  return list_.rowCount();
}

int AccessibleList::chosenItem() const {
  return list_.index();
}

QString AccessibleList::itemText(int index) const {
  const QTreeWidgetItem* row = list_.topLevelItem(index);
  QStringList cells;
  for (int column = 0; column < list_.columnCount(); ++column) {
    const QString text = row->text(column);
    if (text.isEmpty()) continue;
    const QString header = list_.isHeaderHidden() ? QString() : list_.headerItem()->text(column);
    cells.append(header.isEmpty() ? text : header + u' ' + text);
  }
  return cells.join(u", "_s);
}

QRect AccessibleList::itemArea(int index) const {
  return list_.visualItemRect(list_.topLevelItem(index));
}

QWidget& AccessibleList::itemCanvas() const {
  return *list_.viewport();
}

QString AccessibleList::itemDescription(int index) const {
  return list_.RowNote(index);
}

void AccessibleList::completeState(int index, QAccessible::State& state) const {
  const QVariant check = list_.topLevelItem(index)->data(0, Qt::CheckStateRole);
  if (!check.isValid()) return;
  state.checkable = true;
  state.checked = check.toInt() == Qt::Checked;
}

void AccessibleList::choose(int index) {
  list_.scrollToItem(list_.topLevelItem(index));
  AccessibleItems::choose(index);
}

AccessibleTabs::AccessibleTabs(TabStrip* strip)
    : AccessibleItems(strip, QAccessible::PageTabList, QAccessible::PageTab), strip_(*strip) {}

int AccessibleTabs::itemCount() const {
  return strip_.count();
}

int AccessibleTabs::chosenItem() const {
  return strip_.index();
}

QString AccessibleTabs::itemText(int index) const {
  return strip_.tabText(index);
}

QString AccessibleTabs::itemDescription(int index) const {
  return strip_.tabToolTip(index);
}

QRect AccessibleTabs::itemArea(int index) const {
  return strip_.tabRect(index);
}

QWidget& AccessibleTabs::itemCanvas() const {
  return strip_;
}

void AccessibleTabs::completeState(int index, QAccessible::State& state) const {
  if (!strip_.isTabEnabled(index)) state.disabled = true;
}

AccessibleCombo::AccessibleCombo(ComboBox* combo)
    : AccessibleItems(combo, QAccessible::ComboBox, QAccessible::ListItem), combo_(*combo) {}

QAccessible::State AccessibleCombo::state() const {
  QAccessible::State state = AccessibleItems::state();
  const bool open = combo_.view()->isVisible();
  state.expandable = true;
  state.expanded = open;
  state.collapsed = !open;
  state.hasPopup = true;
  return state;
}

QStringList AccessibleCombo::actionNames() const {
  return QStringList(showMenuAction()) + AccessibleItems::actionNames();
}

void AccessibleCombo::doAction(const QString& name) {
  if (name != showMenuAction()) return AccessibleItems::doAction(name);
  ComboBox& combo = combo_;
  ActFor(combo, [&combo] {
    if (TakeFocus(combo)) combo.showPopup();
  });
}

void* AccessibleCombo::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return AccessibleItems::interface_cast(type);
}

int AccessibleCombo::itemCount() const {
  return combo_.count();
}

int AccessibleCombo::chosenItem() const {
  return combo_.index();
}

QString AccessibleCombo::itemText(int index) const {
  return combo_.itemText(index);
}

QRect AccessibleCombo::itemArea(int index) const {
  return combo_.view()->visualRect(combo_.model()->index(index, combo_.modelColumn()));
}

QWidget& AccessibleCombo::itemCanvas() const {
  return *combo_.view()->viewport();
}

void AccessibleCombo::choose(int index) {
  if (!TakeFocus(combo_)) return;
  combo_.hidePopup();
  combo_.setCurrentIndex(index);
  Q_EMIT combo_.activated(index);
}

}  // namespace mortane

// Items that are no widgets to a screen reader.
#pragma once

#include <QVector>

#include "accessible/AccessibleClick.h"

namespace mortane {

// A control with items of which one may be chosen: its value is the chosen item's name. Each item
// has an interface of its own, made when it is first asked for.
class AccessibleItems : public AccessibleControl {
 public:
  AccessibleItems(QWidget* widget, QAccessible::Role role, QAccessible::Role itemRole);

  [[nodiscard]] int childCount() const override { return itemCount(); }
  [[nodiscard]] QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
  [[nodiscard]] QAccessibleInterface* focusChild() const override;
  [[nodiscard]] QString text(QAccessible::Text part) const override;

  [[nodiscard]] QWidget* control() const { return widget(); }
  [[nodiscard]] virtual int itemCount() const = 0;
  [[nodiscard]] virtual int chosenItem() const = 0;  // -1: none
  [[nodiscard]] virtual QString itemText(int index) const = 0;
  // On the widget that items are painted on, in its coordinates.
  [[nodiscard]] virtual QRect itemArea(int index) const = 0;
  [[nodiscard]] virtual QWidget& itemCanvas() const = 0;
  [[nodiscard]] virtual QString itemDescription(int) const { return {}; }
  // What else is to be told of an item.
  virtual void completeState(int, QAccessible::State&) const {}

  // The text, or a word for an item without one.
  [[nodiscard]] QString itemName(int index) const;
  [[nodiscard]] QRect itemRect(int index) const;  // on the screen
  [[nodiscard]] QAccessible::State itemState(int index) const;
  [[nodiscard]] QAccessible::Role itemRole() const { return itemRole_; }
  // What a click on the item does; called where a person could click.
  virtual void choose(int index);

 protected:
  ~AccessibleItems() override;

 private:
  QAccessible::Role itemRole_;
  mutable QVector<QAccessible::Id> made_;  // 0 for items that nobody asked for
};

}  // namespace mortane

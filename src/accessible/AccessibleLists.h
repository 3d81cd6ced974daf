// Lists, tab strips and combo boxes to a screen reader.
#pragma once

#include "accessible/AccessibleItems.h"
#include "accessible/AccessibleText.h"

namespace mortane {

class ComboBox;
class ListBox;
class TabStrip;

// A row is told with all its columns, each after its header if the list shows headers.
class AccessibleList : public AccessibleItems {
 public:
  explicit AccessibleList(ListBox* list);

  [[nodiscard]] int itemCount() const override;
  [[nodiscard]] int chosenItem() const override;
  [[nodiscard]] QString itemText(int index) const override;
  [[nodiscard]] QRect itemArea(int index) const override;
  [[nodiscard]] QWidget& itemCanvas() const override;
  [[nodiscard]] QString itemDescription(int index) const override;
  void completeState(int index, QAccessible::State& state) const override;
  void choose(int index) override;

 private:
  ListBox& list_;
};

class AccessibleTabs : public AccessibleItems {
 public:
  explicit AccessibleTabs(TabStrip* strip);

  [[nodiscard]] int itemCount() const override;
  [[nodiscard]] int chosenItem() const override;
  [[nodiscard]] QString itemText(int index) const override;
  [[nodiscard]] QRect itemArea(int index) const override;
  [[nodiscard]] QWidget& itemCanvas() const override;
  [[nodiscard]] QString itemDescription(int index) const override;
  void completeState(int index, QAccessible::State& state) const override;

 private:
  TabStrip& strip_;
};

// The list of an opened combo box is a window of its own; closed, its items have no place.
class AccessibleCombo : public AccessibleItems, public ReadOnlyText {
 public:
  explicit AccessibleCombo(ComboBox* combo);

  using ReadOnlyText::text;
  [[nodiscard]] QString text(QAccessible::Text part) const override {
    return AccessibleItems::text(part);
  }
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& name) override;
  void* interface_cast(QAccessible::InterfaceType type) override;
  [[nodiscard]] QString content() const override { return text(QAccessible::Value); }

  [[nodiscard]] int itemCount() const override;
  [[nodiscard]] int chosenItem() const override;
  [[nodiscard]] QString itemText(int index) const override;
  [[nodiscard]] QRect itemArea(int index) const override;
  [[nodiscard]] QWidget& itemCanvas() const override;
  void choose(int index) override;

 private:
  ComboBox& combo_;
};

}  // namespace mortane

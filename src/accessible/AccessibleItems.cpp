#include "accessible/AccessibleItems.h"

#include <QWidget>

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

class AccessibleItem : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleItem(AccessibleItems& owner, int index) : owner_(owner), index_(index) {}

  [[nodiscard]] int index() const { return index_; }

  [[nodiscard]] bool isValid() const override {
    return owner_.isValid() && index_ < owner_.itemCount();
  }
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QWindow* window() const override { return owner_.window(); }
  [[nodiscard]] QAccessibleInterface* parent() const override { return &owner_; }
  [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  [[nodiscard]] int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  [[nodiscard]] QString text(QAccessible::Text part) const override {
    if (part == QAccessible::Name) return owner_.itemName(index_);
    return part == QAccessible::Description ? owner_.itemDescription(index_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  [[nodiscard]] QRect rect() const override { return owner_.itemRect(index_); }
  [[nodiscard]] QAccessible::Role role() const override { return owner_.itemRole(); }
  [[nodiscard]] QAccessible::State state() const override { return owner_.itemState(index_); }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
  }
  [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (name != pressAction() || !isValid()) return;
    AccessibleItems& owner = owner_;
    const int index = index_;
    ActFor(*owner.control(), [&owner, index] {
      if (index < owner.itemCount()) owner.choose(index);
    });
  }
  [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  AccessibleItems& owner_;
  int index_;
};

}  // namespace

AccessibleItems::AccessibleItems(QWidget* widget, QAccessible::Role role,
                                 QAccessible::Role itemRole)
    : AccessibleControl(widget, role), itemRole_(itemRole) {}

AccessibleItems::~AccessibleItems() {
  for (const QAccessible::Id id : made_) {
    if (id != 0) QAccessible::deleteAccessibleInterface(id);
  }
}

QAccessibleInterface* AccessibleItems::child(int index) const {
  if (index < 0 || index >= itemCount()) return nullptr;
  if (made_.size() < itemCount()) made_.resize(itemCount());
  QAccessible::Id& id = made_[index];
  if (id == 0) {
    auto& owner = const_cast<AccessibleItems&>(*this);
    id = QAccessible::registerAccessibleInterface(new AccessibleItem(owner, index));
  }
  return QAccessible::accessibleInterface(id);
}

int AccessibleItems::indexOfChild(const QAccessibleInterface* child) const {
  const auto* item = dynamic_cast<const AccessibleItem*>(child);
  return item != nullptr && item->parent() == this ? item->index() : -1;
}

QAccessibleInterface* AccessibleItems::childAt(int x, int y) const {
  for (int i = 0; i < itemCount(); ++i) {
    if (itemRect(i).contains(x, y)) return child(i);
  }
  return nullptr;
}

QAccessibleInterface* AccessibleItems::focusChild() const {
  return widget()->hasFocus() ? child(chosenItem()) : nullptr;
}

QString AccessibleItems::text(QAccessible::Text part) const {
  if (part != QAccessible::Value) return AccessibleControl::text(part);
  const int chosen = chosenItem();
  return chosen < 0 ? QString() : itemName(chosen);
}

QString AccessibleItems::itemName(int index) const {
  const QString text = itemText(index);
  return text.trimmed().isEmpty() ? u"Blank"_s : text;
}

QRect AccessibleItems::itemRect(int index) const {
  const QRect area = itemArea(index);
  return {itemCanvas().mapToGlobal(area.topLeft()), area.size()};
}

QAccessible::State AccessibleItems::itemState(int index) const {
  const bool chosen = index == chosenItem();
  QAccessible::State state;
  state.selectable = true;
  state.selected = chosen;
  state.focusable = true;
  state.focused = chosen && widget()->hasFocus();
  state.disabled = !widget()->isEnabled();
  state.invisible = !itemCanvas().isVisible();
  state.offscreen = !itemCanvas().rect().intersects(itemArea(index));
  completeState(index, state);
  return state;
}

void AccessibleItems::choose(int index) {
  ClickFor(itemCanvas(), itemArea(index).center());
}

}  // namespace mortane

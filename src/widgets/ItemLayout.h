// Base of the layouts that keep their items in a row and place them in a way of their own.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace mortane {

// Owns its items. Margins are none until they are set.
class ItemLayout : public QLayout {
 public:
  // A layout of the widget, if there is one.
  explicit ItemLayout(QWidget* parent = nullptr);

  void addItem(QLayoutItem* item) override;
  [[nodiscard]] int count() const override;
  [[nodiscard]] QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;

 protected:
  using Items = std::vector<QLayoutItem*>;

  // Those that are not hidden, in their order.
  [[nodiscard]] Items ShownItems() const;

 private:
  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace mortane

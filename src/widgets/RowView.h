// A tree view of plain rows, with what the toolkit's own does not do for them.
#pragma once

#include <QAccessible>
#include <QTreeWidget>

namespace mortane {

// Screen readers are told of rows where the toolkit would tell of cells, by numbers that count the
// headers too.
class RowView : public QTreeWidget {
  Q_OBJECT

 public:
  using QTreeWidget::QTreeWidget;

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  // A list's own signal of this name hides the handler, which the view alone calls.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
#pragma GCC diagnostic pop

 private:
  void Tell(QAccessible::Event change, int row);
};

}  // namespace mortane

#include "widgets/RowView.h"

#include "widgets/AccessibleChange.h"

namespace mortane {

// What the tree adds to these handlers is the telling of cells.
// NOLINTBEGIN(bugprone-parent-virtual-call)
void RowView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QAbstractItemView::currentChanged(current, previous);
  if (current.isValid() && hasFocus()) Tell(QAccessible::Focus, current.row());
}

void RowView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QAbstractItemView::selectionChanged(selected, deselected);
  if (!deselected.isEmpty()) Tell(QAccessible::SelectionRemove, deselected.first().top());
  if (!selected.isEmpty()) Tell(QAccessible::Selection, selected.first().top());
}
// NOLINTEND(bugprone-parent-virtual-call)

void RowView::Tell(QAccessible::Event change, int row) {
  QAccessibleEvent event(this, change);
  event.setChild(row);
  TellChange(event);
}

}  // namespace mortane

#include "widgets/RowDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>

#include "widgets/ElidedTip.h"
#include "widgets/Theme.h"

namespace mortane {

RowDelegate::RowDelegate(QObject* parent)
    : QStyledItemDelegate(parent), leastHeight_(grid::kRowHeight) {}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QSize content = QStyledItemDelegate::sizeHint(option, index);
  return {content.width(), GridHeight(leastHeight_, option.fontMetrics)};
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  QStyleOptionViewItem row = option;
  row.state &= ~QStyle::State_HasFocus;
  QStyledItemDelegate::paint(painter, row, index);
}

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                            const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip) return false;
  const bool fits = sizeHint(option, index).width() <= option.rect.width();
  ShowWholeText(*event, *view->viewport(), index.data().toString(), fits ? Fits::Yes : Fits::No,
                option.rect);
  return true;
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  option->state &= ~QStyle::State_HasFocus;
  if (index.data(kDimmedRole).toBool() && !option->state.testFlag(QStyle::State_Selected))
    option->state &= ~QStyle::State_Enabled;
}

}  // namespace mortane

#include "widgets/RowDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>

#include "widgets/ElidedTip.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

// Of the row, whose first cell holds it.
QString NoteOf(const QModelIndex& cell) {
  return cell.siblingAtColumn(0).data(kNotSentRole).toString();
}

}  // namespace

RowDelegate::RowDelegate(QObject* parent)
    : QStyledItemDelegate(parent), leastHeight_(grid::kRowHeight) {}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QSize content = QStyledItemDelegate::sizeHint(option, index);
  const int dot = NoteOf(index).isEmpty() || index.column() > 0 ? 0 : kPendingRoom;
  const int height = GridHeight(leastHeight_, option.fontMetrics);
  return {content.width() + dot, height + (lines_ - 1) * option.fontMetrics.lineSpacing()};
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  QStyleOptionViewItem row = option;
  row.state &= ~QStyle::State_HasFocus;
  if (lines_ > 1) row.features |= QStyleOptionViewItem::WrapText;
  if (index.column() > 0 || NoteOf(index).isEmpty())
    return QStyledItemDelegate::paint(painter, row, index);
  // The background of the whole cell, then the rest to the right of the dot.
  initStyleOption(&row, index);
  const QStyle& style = row.widget != nullptr ? *row.widget->style() : *QApplication::style();
  style.drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, row.widget);
  row.rect.adjust(kPendingRoom, 0, 0, 0);
  QStyledItemDelegate::paint(painter, row, index);
  const bool selected = row.state.testFlag(QStyle::State_Selected);
  DrawPendingDot(*painter,
                 QRectF(option.rect.left() + kPendingRoom / 2.0, option.rect.top(), kPendingRoom,
                        option.rect.height())
                     .center(),
                 row.palette.color(selected ? QPalette::HighlightedText : QPalette::Link),
                 row.palette.color(selected ? QPalette::Highlight : QPalette::Base));
}

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                            const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip) return false;
  const bool fits = IsShownWhole(option, index);
  const QString note = NoteOf(index);
  QStringList lines;
  if (!fits) lines.append(index.data().toString());
  if (!note.isEmpty()) lines.append(note);
  ShowWholeText(*event, *view->viewport(), lines.join(u'\n'),
                lines.isEmpty() ? Fits::Yes : Fits::No, option.rect);
  return true;
}

bool RowDelegate::IsShownWhole(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int spare = option.rect.width() - sizeHint(option, index).width();
  if (spare >= 0 || lines_ == 1) return spare >= 0;
  const QString text = index.data().toString();
  const int room = option.fontMetrics.horizontalAdvance(text) + spare;
  const QRect lines =
      option.fontMetrics.boundingRect({0, 0, room, QWIDGETSIZE_MAX}, Qt::TextWordWrap, text);
  return lines.height() <= lines_ * option.fontMetrics.lineSpacing() && lines.width() <= room;
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  option->state &= ~QStyle::State_HasFocus;
  if (index.data(kDimmedRole).toBool() && !option->state.testFlag(QStyle::State_Selected))
    option->state &= ~QStyle::State_Enabled;
}

}  // namespace mortane

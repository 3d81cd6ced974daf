#include "switches/ReportList.h"

#include <QAbstractItemDelegate>
#include <QHeaderView>

#include "widgets/Theme.h"

namespace mortane {
namespace {

QVector<ListColumn> ColumnsNamed(const QStringList& headers) {
  QVector<ListColumn> columns;
  for (const QString& header : headers) columns.append({header, Qt::AlignLeft});
  return columns;
}

}  // namespace

ReportList::ReportList(const QStringList& headers, QWidget* parent) : ListBox(parent) {
  SetColumns(ColumnsNamed(headers));
}

QString ReportList::cell(int row, int column) const {
  return topLevelItem(row)->text(column);
}

void ReportList::SetCell(int row, int column, const QString& text) {
  topLevelItem(row)->setText(column, text);
}

QSize ReportList::sizeHint() const {
  const QSize least = ListBox::sizeHint();
  const int rows = rowCount() > 0 ? rowCount() * sizeHintForRow(0) : 0;
  return {least.width(),
          qMax(least.height(), 2 * frameWidth() + header()->sizeHint().height() + rows)};
}

int ReportList::WidthOf(const QModelIndex& cell) const {
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.font = MeasuringFont();
  option.fontMetrics = QFontMetrics(option.font);
  return itemDelegateForIndex(cell)->sizeHint(option, cell).width();
}

QFont ReportList::MeasuringFont() const {
  return BoldFont();
}

void ReportList::SetBoldRow(int row) {
  boldRow_ = row;
  for (int i = 0; i < rowCount(); ++i) {
    const QVariant shown = i == row ? QVariant(BoldFont()) : QVariant();
    for (int column = 0; column < columnCount(); ++column)
      topLevelItem(i)->setData(column, Qt::FontRole, shown);
  }
}

}  // namespace mortane

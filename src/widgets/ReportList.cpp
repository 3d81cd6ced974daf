#include "widgets/ReportList.h"

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

void ReportList::SetBoldRow(int row) {
  boldRow_ = row;
  for (int i = 0; i < rowCount(); ++i)
    for (int column = 0; column < columnCount(); ++column)
      topLevelItem(i)->setFont(column, i == row ? BoldFont() : font());
}

}  // namespace mortane

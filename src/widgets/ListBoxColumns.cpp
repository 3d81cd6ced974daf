// The widths of a list's columns.
#include <QHeaderView>
#include <QSet>
#include <utility>

#include "widgets/ListBox.h"
#include "widgets/RowDelegate.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kDialogUnits = 4;  // of a character's average width
constexpr double kRounding = 2;  // pixels by which two ways to measure a text may differ

int LeastWidth(const std::vector<ColumnWish>& columns) {
  int width = 0;
  for (const ColumnWish& column : columns) width += column.content;
  return width;
}

// Icons, checks and dots stand in the first column.
bool IsTextAlone(const QModelIndex& cell) {
  if (cell.column() > 0) return true;
  return !cell.data(Qt::DecorationRole).isValid() && !cell.data(Qt::CheckStateRole).isValid() &&
         cell.data(kNotSentRole).toString().isEmpty();
}

double AverageCharacter(const QFontMetrics& metrics) {
  static const QString kLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"_s;
  return static_cast<double>(metrics.horizontalAdvance(kLetters)) /
         static_cast<double>(kLetters.size());
}

}  // namespace

void ListBox::MeasureContents() {
  const double unit = AverageCharacter(fontMetrics()) / kDialogUnits;
  for (int column = 0; column < columnCount(); ++column) {
    const int header = this->header()->isHidden() ? 0 : this->header()->sectionSizeHint(column);
    const int content = qMax(header, WidestCell(column));
    const int before = column > 0 ? tabStops_.value(column - 1) : 0;
    const int stop = qRound((tabStops_.value(column) - before) * unit);
    wishes_.push_back({content, qMax(content, stop)});
  }
}

// What the delegate asks for takes its time. Of cells with nothing but a text it is asked for the
// widest texts alone, and many rows have the same type or number.
int ListBox::WidestCell(int column) const {
  const QFontMetricsF metrics(MeasuringFont());
  QSet<QString> measured;
  std::vector<std::pair<double, QModelIndex>> texts;
  double widest = 0;
  int content = 0;
  for (int row = 0; row < rowCount(); ++row) {
    const QModelIndex cell = model()->index(row, column);
    if (!IsTextAlone(cell)) {
      content = qMax(content, WidthOf(cell));
      continue;
    }
    const QString text = cell.data().toString();
    if (measured.contains(text)) continue;
    measured.insert(text);
    texts.emplace_back(metrics.horizontalAdvance(text), cell);
    widest = qMax(widest, texts.back().first);
  }
  for (const auto& [advance, cell] : texts) {
    if (advance > widest - kRounding) content = qMax(content, WidthOf(cell));
  }
  return content;
}

void ListBox::FitColumns() {
  if (columnCount() < 2) return;
  if (wishes_.empty()) MeasureContents();
  const int room = viewport()->width();
  const bool folds = foldingColumn_ >= 0 && LeastWidth(wishes_) > room;
  if (folds && foldedWishes_.empty()) MeasureFolded();
  ShowLines(folds ? 2 : 1);
  const std::vector<int> widths = ColumnWidths(folds ? foldedWishes_ : wishes_, room);
  for (int column = 0; column < columnCount(); ++column) {
    header()->resizeSection(column, widths[static_cast<std::size_t>(column)]);
  }
}

void ListBox::MeasureFolded() {
  foldedWishes_ = wishes_;
  int content = header()->isHidden() ? 0 : header()->sectionSizeHint(foldingColumn_);
  for (int row = 0; row < rowCount(); ++row)
    content = qMax(content, FoldedWidthOf(model()->index(row, foldingColumn_)));
  foldedWishes_[static_cast<std::size_t>(foldingColumn_)] = {content, content};
}

// With its text broken where the longer of two lines is shortest.
int ListBox::FoldedWidthOf(const QModelIndex& cell) const {
  const QFontMetrics metrics(MeasuringFont());
  const QString text = cell.data().toString();
  const int whole = metrics.horizontalAdvance(text);
  int longer = whole;
  for (qsizetype blank = text.indexOf(u' '); blank >= 0; blank = text.indexOf(u' ', blank + 1)) {
    const int first = metrics.horizontalAdvance(text.left(blank));
    const int second = metrics.horizontalAdvance(text.mid(blank + 1));
    longer = qMin(longer, qMax(first, second));
  }
  return WidthOf(cell) - whole + longer;
}

void ListBox::ShowLines(int lines) {
  auto* delegate = static_cast<RowDelegate*>(itemDelegate());
  if (delegate->lines() == lines) return;
  delegate->SetLines(lines);
  scheduleDelayedItemsLayout();
  updateGeometry();
}

}  // namespace mortane

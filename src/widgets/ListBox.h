// A list with item data and, where asked, columns.
#pragma once

#include <QElapsedTimer>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <optional>

#include "widgets/ColumnWidths.h"
#include "widgets/Icons.h"
#include "widgets/RowView.h"

namespace mortane {

struct ListColumn {
  QString header;
  Qt::Alignment alignment = Qt::AlignLeft;
};

// Several columns are as wide as their contents at least, and scrolled where there is no room for
// them; a single one is elided. The list scrolls by rows and shows whole rows only.
// selectionChanged() is raised once for each new row, whether the person or the program selects
// it, and for every click of the person, also on the selected row. Filling, clearing and focus
// raise nothing.
class ListBox : public RowView {
  Q_OBJECT

 public:
  explicit ListBox(QWidget* parent = nullptr);

  // Columns before rows. Headers are shown if one of them has a text; the last column stretches.
  void SetColumns(const QVector<ListColumn>& columns);
  // Columns after the first begin no further left than these stops, which are given in dialog
  // units: quarters of a character's average width.
  void SetTabStops(const QVector<int>& dialogUnits);
  // Where the room is too narrow for all columns, the texts of that one go on in a second line.
  void SetFoldingColumn(int column) { foldingColumn_ = column; }
  void SetIconRows(bool iconRows);
  // Typed letters look for a row by the text of this column; the first one, when not set.
  void SetNameColumn(int column) { nameColumn_ = column; }

  // One text in the first column.
  int addRow(const QString& text, const QVariant& data = {});
  // One text in each column; those that are missing stay empty.
  int addCells(const QStringList& cells, const QVariant& data = {});
  void SetRowIcon(int row, const QIcon& icon);
  void SetRowIcon(int row, IconName icon) { SetRowIcon(row, Icon(icon)); }
  // Grey, but as selectable as the others.
  void SetRowDimmed(int row, bool dimmed);
  // The dot before a row that differs from what was last received or sent, which was that text;
  // none without one. Tool tip and screen readers tell it in words.
  void SetRowPending(int row, const std::optional<QString>& was);
  [[nodiscard]] QString RowNote(int row) const;  // those words; empty without a dot
  void SetRowChecked(int row, bool checked);
  [[nodiscard]] bool isRowChecked(int row) const;
  void clearRows();

  [[nodiscard]] int rowCount() const { return topLevelItemCount(); }
  [[nodiscard]] QString text(int row) const;  // cells joined by tabs
  [[nodiscard]] QStringList cells(int row) const;
  [[nodiscard]] QVariant data(int row) const;
  void setData(int row, const QVariant& data);

  [[nodiscard]] int index() const;  // -1: none
  void setIndex(int row);           // an index that is no row clears the selection

  void keyboardSearch(const QString& typed) override;
  [[nodiscard]] QSize sizeHint() const override;

  // The toolkit calls these when rows have changed.
  void doItemsLayout() override;
  void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                   const QList<int>& roles) override;

 Q_SIGNALS:
  // Hides a handler of the view, which the view alone calls.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"
  void selectionChanged(int row);  // clazy:exclude=overloaded-signal
#pragma GCC diagnostic pop
  // For every change of a row's check, by the program or the user.
  void rowChecked(int row, bool checked);

 protected:
  // What a cell takes of its column's width, at most.
  [[nodiscard]] virtual int WidthOf(const QModelIndex& cell) const {
    return sizeHintForIndex(cell).width();
  }
  // The font that contents are measured in.
  [[nodiscard]] virtual QFont MeasuringFont() const;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void updateGeometries() override;
  void changeEvent(QEvent* event) override;
  void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

  void SelectQuietly(int row);

 private:
  [[nodiscard]] int RowAt(const QMouseEvent& event) const;
  [[nodiscard]] bool IsShownWhole(const QRect& row) const;
  void ForgetContents();
  void MeasureContents();
  [[nodiscard]] int WidestCell(int column) const;
  void MeasureFolded();
  [[nodiscard]] int FoldedWidthOf(const QModelIndex& cell) const;
  void ShowLines(int lines);
  void FitColumns();

  QWidget* headerCorner_;
  QVector<ListColumn> columns_;
  QVector<int> tabStops_;
  std::vector<ColumnWish> wishes_;        // of the columns; empty until they are measured
  std::vector<ColumnWish> foldedWishes_;  // with the folding column in two lines
  int foldingColumn_ = -1;
  int nameColumn_ = 0;
  QString typed_;
  QElapsedTimer sinceKey_;
};

}  // namespace mortane

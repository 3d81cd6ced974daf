// Columns side by side that go on in a second row, and further ones, where the width is short.
#pragma once

#include <vector>

#include "widgets/ItemLayout.h"

namespace mortane {

// The columns of a row share its width by their stretches, none less than its least width, and rows
// share the height beyond what they need. What the layout asks for is the width of its widest
// column and the height of the rows that its present width makes. Hidden columns leave no gap.
class ColumnFlow : public ItemLayout {
 public:
  // Gaps in pixels.
  ColumnFlow(int columnGap, int rowGap) : columnGap_(columnGap), rowGap_(rowGap) {}

  // The column becomes a part of this layout; it has one stretch or more.
  void AddColumn(QLayout* column, int stretch);
  QLayoutItem* takeAt(int index) override;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  void setGeometry(const QRect& area) override;

 private:
  // Shown columns and their stretches.
  struct Column {
    QLayoutItem* item;
    int stretch;
  };
  using Row = std::vector<Column>;
  using Measure = QSize (QLayoutItem::*)() const;

  [[nodiscard]] Row ShownColumns() const;
  [[nodiscard]] std::vector<Row> RowsIn(int width) const;
  [[nodiscard]] int WidthOf(const Row& row, Measure measure) const;
  [[nodiscard]] int HeightIn(int width, Measure measure) const;
  void PlaceRow(const Row& row, const QRect& area) const;

  int columnGap_;
  int rowGap_;
  int width_ = QWIDGETSIZE_MAX;  // that it has
  std::vector<int> stretches_;
};

}  // namespace mortane

// A grid of equal cells whose columns are counted anew for each size that it gets.
#pragma once

#include "widgets/ItemLayout.h"

namespace mortane {

// Hidden cells leave no gap.
class ReflowGrid : public ItemLayout {
 public:
  enum class Order {
    // As many columns as the width holds. Columns share the width; rows take the height that the
    // cells ask for, from the top, or share what there is. What the grid asks for is the height of
    // the rows that its present width makes.
    RowByRow,
    // The same with cells that follow one another downwards.
    Downwards,
    // As few columns as the height holds, from the left; cells keep the size that they ask for. The
    // grid asks for the height of one column and is content with that of the most.
    ColumnByColumn,
  };

  // Gaps in pixels.
  ReflowGrid(Order order, int mostColumns, int columnGap, int rowGap);
  // Rows grow with the height, up to that many times what the cells ask for; 1 when it is not set.
  void SetGrowth(double most) { growth_ = most; }

  [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  void setGeometry(const QRect& area) override;

 private:
  [[nodiscard]] int ColumnsIn(const QSize& room) const;
  [[nodiscard]] int RowsOf(int columns) const;
  [[nodiscard]] QSize SizeOf(int columns, int rows, const QSize& cell) const;
  [[nodiscard]] QSize CellSizeIn(const QSize& room) const;

  Order order_;
  int mostColumns_;
  int columnGap_;
  int rowGap_;
  int columns_;  // of the present size
  double growth_ = 1;
};

}  // namespace mortane

// Tiles in equal columns, row by row, in fewer columns where the width is short.
#pragma once

#include <QHBoxLayout>

namespace mortane {

// Rows take the height that the tiles ask for, from the top, or share what there is. What the
// layout asks for is the height of the rows that its present width makes.
class TileLayout : public QHBoxLayout {
 public:
  TileLayout(int mostColumns, int columnGap, int rowGap);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  void setGeometry(const QRect& area) override;

 private:
  [[nodiscard]] QList<QLayoutItem*> Tiles() const;
  [[nodiscard]] int ColumnsIn(int width) const;
  [[nodiscard]] int Rows() const;
  [[nodiscard]] int HeightOfRows(int tileHeight) const;

  int mostColumns_;
  int rowGap_;
  int columns_;
};

}  // namespace mortane

// Rows one below the other, in two columns where the height is short.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace mortane {

// Filled downwards, the first column before the second; rows stand at the left and keep their
// size. It asks for the height of one column and is content with that of two.
class FoldingLayout : public QLayout {
 public:
  explicit FoldingLayout(int columnGap);

  void addItem(QLayoutItem* item) override;
  [[nodiscard]] int count() const override;
  [[nodiscard]] QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;

  [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  void setGeometry(const QRect& area) override;

 private:
  [[nodiscard]] QSize RowSize() const;
  [[nodiscard]] QSize SizeOf(int columns) const;
  [[nodiscard]] int RowsIn(int columns) const { return (count() + columns - 1) / columns; }

  int columnGap_;
  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace mortane

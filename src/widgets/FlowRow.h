// Controls in a line that goes on in the next one where the width is short.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace mortane {

// Controls keep the widths that they ask for, and stand in the middle of their line. What the row
// asks for is the width of its widest control and the height of the lines that its present width
// makes. Hidden controls leave no gap.
class FlowRow : public QLayout {
 public:
  // Gaps in pixels.
  FlowRow(int gap, int lineGap);

  void addItem(QLayoutItem* item) override;
  [[nodiscard]] int count() const override;
  [[nodiscard]] QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;

  [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  void setGeometry(const QRect& area) override;

 private:
  using Line = std::vector<QLayoutItem*>;

  [[nodiscard]] std::vector<Line> LinesIn(int width) const;
  [[nodiscard]] int HeightIn(int width) const;

  int gap_;
  int lineGap_;
  int width_ = QWIDGETSIZE_MAX;  // that it has
  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace mortane

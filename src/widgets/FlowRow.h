// Controls in a line that goes on in the next one where the width is short.
#pragma once

#include "widgets/ItemLayout.h"

namespace mortane {

// Controls keep the widths that they ask for, and stand in the middle of their line. What the row
// asks for is the width of its widest control and the height of the lines that its present width
// makes. Hidden controls leave no gap.
class FlowRow : public ItemLayout {
 public:
  // Gaps in pixels.
  FlowRow(int gap, int lineGap);

  [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  void setGeometry(const QRect& area) override;

 private:
  [[nodiscard]] std::vector<Items> LinesIn(int width) const;
  [[nodiscard]] int HeightIn(int width) const;

  int gap_;
  int lineGap_;
  int width_ = QWIDGETSIZE_MAX;  // that it has
};

}  // namespace mortane

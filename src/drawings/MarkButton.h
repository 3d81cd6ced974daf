// One mark of a drawing with switches.
#pragma once

#include <QAbstractButton>

#include "drawings/SwitchMark.h"

namespace mortane {

// Keys go on along the drawing: Right and Down forward, Left and Up back.
class MarkButton : public QAbstractButton {
  Q_OBJECT

 public:
  MarkButton(SwitchMark mark, QWidget* parent);

  // Where the mark is painted, in the parent's coordinates. The button's contents are at least
  // large enough to be hit; the margins around them are room for the line of the focus. A dial is
  // round, so that it leaves its corners to the keys beside it.
  void Place(const QRectF& area);
  [[nodiscard]] const QRectF& area() const { return area_; }

 Q_SIGNALS:
  void stepped(int steps);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  [[nodiscard]] bool hitButton(const QPoint& at) const override;

 private:
  SwitchMark mark_;
  QRectF area_;
};

}  // namespace mortane

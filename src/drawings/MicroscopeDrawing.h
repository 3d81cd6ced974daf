// The side view of the microscope with a leader line to each accessory.
#pragma once

#include <QVector>
#include <QWidget>

#include "drawings/MicroscopeLayout.h"

namespace mortane {

// Scales and never stretches; a label that is elided shows its whole text as a tool tip. An
// ornament beside the report: it takes no focus and tells the same in its accessible description.
class MicroscopeDrawing : public QWidget {
  Q_OBJECT

 public:
  explicit MicroscopeDrawing(QWidget* parent = nullptr);

  void SetAccessories(const QVector<DrawnAccessory>& accessories);
  [[nodiscard]] double drawingScale() const;
  // The width in which it shows all labels whole.
  [[nodiscard]] int widthOfLabels() const;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] MicroscopeLayout Layout() const;
  void PaintLabel(QPainter& painter, const DrawnLabel& label) const;

  QVector<DrawnAccessory> accessories_;
};

}  // namespace mortane

// The side view of the microscope with a leader line to each accessory.
#pragma once

#include <QString>
#include <QVector>
#include <QWidget>

namespace mortane {

// One accessory as the drawing shows it: not mounted (0, dashed and grey), sensed only (1, a ring)
// or controllable (2, a full dot).
struct DrawnAccessory {
  int number = 0;
  QString label;
  int mounted = 0;
};

// Scales from 0.8 to 1.5 and never stretches. An ornament beside the report: it takes no focus and
// tells the same in its accessible description.
class MicroscopeDrawing : public QWidget {
  Q_OBJECT

 public:
  explicit MicroscopeDrawing(QWidget* parent = nullptr);

  void SetAccessories(const QVector<DrawnAccessory>& accessories);
  [[nodiscard]] double drawingScale() const;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QVector<DrawnAccessory> accessories_;
};

}  // namespace mortane

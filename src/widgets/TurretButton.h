// One place of a turret.
#pragma once

#include <QAbstractButton>

#include "widgets/Theme.h"
#include "widgets/TurretDrawing.h"

namespace mortane {

// Ring colours as objectives bear them; the drawing's line for a magnification without one.
Tone RingTone(double magnification);

// Keys go on along the turret: Right and Down clockwise, Left and Up back.
class TurretButton : public QAbstractButton {
  Q_OBJECT

 public:
  TurretButton(PlaceKind kind, int address, QWidget* parent);

  void SetItem(const TurretItem& item);
  [[nodiscard]] const TurretItem& item() const { return item_; }
  // The place's size without the halo around it.
  void SetPlaceSize(const QSizeF& size);
  // Room around the place for halo and focus.
  static double HaloRoom();

 signals:
  void stepped(int steps);  // clockwise

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  [[nodiscard]] bool hitButton(const QPoint& at) const override;

 private:
  void PaintObjective(QPainter& painter, const QRectF& place) const;
  void PaintCube(QPainter& painter, const QRectF& place) const;
  void PaintFree(QPainter& painter, const QRectF& place) const;
  void PaintShape(QPainter& painter, const QRectF& area) const;

  PlaceKind kind_;
  int address_;
  TurretItem item_;
  QSizeF placeSize_;
};

}  // namespace mortane

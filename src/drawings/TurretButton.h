// One place of a turret.
#pragma once

#include <QAbstractButton>

#include "drawings/TurretItem.h"
#include "widgets/Theme.h"

namespace mortane {

// Ring colours as objectives bear them; the drawing's line for a magnification without one.
Tone RingTone(double magnification);

// Keys go on along the turret: Right and Down clockwise, Left and Up back.
class TurretButton : public QAbstractButton {
  Q_OBJECT

 public:
  TurretButton(PlaceKind kind, int number, QWidget* parent);

  void SetItem(const TurretItem& item);
  [[nodiscard]] const TurretItem& item() const { return item_; }
  [[nodiscard]] int address() const;
  // Sizes of the place are told without the halo around it.
  void SetPlaceSize(const QSizeF& size);
  [[nodiscard]] QSizeF PlaceSizeFor(double width) const;
  static double TileShape();  // height by width
  // So wide that the mark stands clear of the place's edge, or a part of it that can be read.
  [[nodiscard]] double LeastPlaceWidth() const;
  // Whether the mark fits in the larger of the two fonts that marks are written in.
  [[nodiscard]] bool HasRoomForLargeMark() const;
  void SetLargeMark(bool large);
  // How far the place with its halo reaches from its centre in that direction.
  [[nodiscard]] double ReachTowards(QPointF direction) const;
  // Whether the click at hand is one of the mouse or of the Space key.
  [[nodiscard]] bool isPressed() const { return pressed_; }
  // Room around the place for halo and focus.
  static double HaloRoom();

 Q_SIGNALS:
  void stepped(int steps);  // clockwise

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  [[nodiscard]] bool hitButton(const QPoint& at) const override;

 private:
  void PaintObjective(QPainter& painter, const QRectF& place) const;
  void PaintTile(QPainter& painter, const QRectF& place) const;
  void PaintGlyph(QPainter& painter, const QRectF& area) const;
  void PaintFree(QPainter& painter, const QRectF& place) const;
  void PaintShape(QPainter& painter, const QRectF& area) const;

  PlaceKind kind_;
  int number_;  // of the place, from 1
  TurretItem item_;
  QSizeF placeSize_;
  bool largeMark_ = true;
  bool pressed_ = false;
};

}  // namespace mortane

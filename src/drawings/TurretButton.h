// One place of a turret.
#pragma once

#include <QAbstractButton>
#include <optional>

#include "drawings/TurretItem.h"
#include "widgets/Theme.h"

namespace mortane {

// Ring colours as objectives bear them; the drawing's line for a magnification without one.
Tone RingTone(double magnification);

// Keys go on along the turret: Right and Down clockwise, Left and Up back. Lengths are in pixels
// that do not depend on the scale of the screen; those of a place are told without its halo.
class TurretButton : public QAbstractButton {
  Q_OBJECT

 public:
  TurretButton(PlaceKind kind, int number, QWidget* parent);

  void SetItem(const TurretItem& item);
  [[nodiscard]] const TurretItem& item() const { return item_; }
  // The dot that says: differs from what was last received or sent, which was that; none without.
  void SetPending(const std::optional<QString>& was);
  [[nodiscard]] bool isPending() const { return was_.has_value(); }
  [[nodiscard]] int address() const;
  void SetPlaceSize(const QSizeF& size);
  [[nodiscard]] QSizeF PlaceSizeFor(double width) const;
  static double TileShape();  // height as a share of the width
  // So wide that the label stands clear of the place's edge, or a part of it that can be read.
  [[nodiscard]] double LeastPlaceWidth() const;
  [[nodiscard]] bool HasRoomForLabel(const QFont& font) const;
  void SetLabelFont(const QFont& font);
  // How far the place with its halo reaches from its centre in that direction, a vector of
  // length 1.
  [[nodiscard]] double ReachTowards(QPointF direction) const;
  // Whether the click at hand is one of the mouse or of the Space key.
  [[nodiscard]] bool isPressed() const { return pressed_; }
  // Room on each side of the place for halo and focus.
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
  void Tell();
  void PaintObjective(QPainter& painter, const QRectF& place) const;
  void PaintTile(QPainter& painter, const QRectF& place) const;
  void PaintGlyph(QPainter& painter, const QRectF& area) const;
  void PaintFree(QPainter& painter, const QRectF& place) const;
  void PaintShape(QPainter& painter, const QRectF& area) const;

  PlaceKind kind_;
  int number_;  // of the place, from 1
  TurretItem item_;
  std::optional<QString> was_;
  QSizeF placeSize_;
  QFont labelFont_;
  bool pressed_ = false;
};

}  // namespace mortane

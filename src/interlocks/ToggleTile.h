// A tile: an icon, beside it a label and under that its switch.
#pragma once

#include <QWidget>

#include "widgets/Icons.h"

class QLabel;

namespace mortane {

class CheckToggle;

// The label is the name of the switch. Disabled, the tile is drawn as not fitted, and the switch
// keeps its side.
class ToggleTile : public QWidget {
  Q_OBJECT

 public:
  // What the tile stands on: a card, where it has a frame of its own, or an inner frame.
  enum class Ground { Card, InnerFrame };

  // Its icon grows with its height, where the texts leave it the room.
  static constexpr double kMostGrowth = 2.5;

  ToggleTile(IconName icon, const QString& caption, Ground ground, QWidget* parent = nullptr);

  [[nodiscard]] QLabel* label() const { return label_; }
  [[nodiscard]] CheckToggle* toggle() const { return toggle_; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

  // Shows or hides the tile and, each by itself, its label and its switch.
  void SetShown(bool shown);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void SetIconSide(int side);

  IconName icon_;
  Ground ground_;
  int iconSide_;
  QLabel* label_;
  CheckToggle* toggle_;
};

}  // namespace mortane

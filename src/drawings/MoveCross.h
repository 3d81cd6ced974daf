// Buttons that move a drive, as a cross around the button that sends it to its place.
#pragma once

#include <QPushButton>
#include <QWidget>
#include <array>

class QGridLayout;

namespace mortane {

enum class MoveDirection { Left, Right, Up, Down };
enum class MoveSize { Small, Large };

// One chevron is a small step, two are a large one. It acts on a complete click and on the release
// of the space bar, once each; the wheel and a repeating key do not start it again.
class MoveButton : public QPushButton {
  Q_OBJECT

 public:
  MoveButton(MoveDirection direction, MoveSize size, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  MoveDirection direction_;
  MoveSize size_;
};

// Small steps stand inside, large ones outside. Arrows move the focus along the cross and no drive.
class MoveCross : public QWidget {
  Q_OBJECT

 public:
  enum class Axes { Vertical, Both };

  // `middle` is the caption of the button in the middle.
  MoveCross(Axes axes, const QString& middle, QWidget* parent = nullptr);

  // Null for a direction that the cross does not have.
  [[nodiscard]] MoveButton* button(MoveDirection direction, MoveSize size) const;
  [[nodiscard]] QPushButton* middle() const { return middle_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Place;
  static const std::array<Place, 9> kPlaces;

  void Add(QPushButton* button, const Place& place);
  [[nodiscard]] QWidget* Neighbour(const QWidget* button, int key) const;

  QGridLayout* cells_;
  std::array<MoveButton*, 8> buttons_{};
  QPushButton* middle_ = nullptr;
};

}  // namespace mortane

// Buttons that move a drive, as a cross around the button that sends it to its place.
#pragma once

#include <QPushButton>
#include <QWidget>
#include <array>
#include <vector>

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

// It grows with the room that it gets, up to 2.5 times. Small steps stand inside, large ones
// outside. Arrows move the focus along the cross and no drive.
class MoveCross : public QWidget {
  Q_OBJECT

 public:
  enum class Axes { Vertical, Both };

  // `middle` is the caption of the button in the middle.
  MoveCross(Axes axes, const QString& middle, QWidget* parent = nullptr);

  // Null for a direction that the cross does not have.
  [[nodiscard]] MoveButton* button(MoveDirection direction, MoveSize size) const;
  [[nodiscard]] QPushButton* middle() const { return middle_; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Place;
  static const std::array<Place, 9> kPlaces;

  struct Cell {
    QPushButton* button;
    int row;
    int column;
  };

  void Add(QPushButton* button, const Place& place);
  [[nodiscard]] int LeastSide() const;
  [[nodiscard]] int MiddleWidth(int side) const;
  [[nodiscard]] QSize SizeFor(int side) const;
  [[nodiscard]] int SideIn(const QSize& room) const;
  void PlaceButtons();
  [[nodiscard]] QWidget* Neighbour(const QWidget* button, int key) const;

  Axes axes_;
  std::vector<Cell> cells_;
  std::array<MoveButton*, 8> buttons_{};
  QPushButton* middle_ = nullptr;
};

}  // namespace mortane

// Two parts of a page side by side, or one below the other where the width is too small for both.
#pragma once

#include <QWidget>

namespace mortane {

// It asks for the least width of its wider part and, below each other, for the heights of both: a
// page that is then too high for its window is scrolled. A hidden part leaves its room to the
// other. The Tab key goes through the parts as they are seen: from left to right, or downwards.
class PairPanel : public QWidget {
 public:
  // Which part is the upper one where they stand one below the other.
  enum class Upper { Left, Right };

  explicit PairPanel(QWidget* parent = nullptr);

  // Both become its children. What is left over goes to them by their shares. A left part without
  // a share takes the least of its width, a right one the width that it asks for.
  void SetParts(QWidget* left, int leftShare, QWidget* right, int rightShare,
                Upper upper = Upper::Right);
  // The left part, which has no share, is as wide as it is high, as far as the other has its room.
  void KeepShapeOfLeft();
  // They stand side by side where the right one, and the left one, have room for that many average
  // characters, too, or the right one for that many pixels.
  void SetCharactersBeside(int right, int left = 0);
  void SetWidthBeside(int width);
  [[nodiscard]] bool isSideBySide() const;

 private:
  class Parts;
  Parts* parts_;
};

}  // namespace mortane

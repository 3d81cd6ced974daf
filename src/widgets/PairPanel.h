// Two parts of a page side by side, or one below the other where the width is too small for both.
#pragma once

#include <QWidget>

class QBoxLayout;

namespace mortane {

// It asks for the least width of its wider part and, below each other, for the heights of both: a
// page that is then too high for its window is scrolled.
class PairPanel : public QWidget {
 public:
  explicit PairPanel(QWidget* parent = nullptr);

  // Both become its children. What is left over goes to them by their shares.
  void SetParts(QWidget* first, int firstShare, QWidget* second, int secondShare);
  // They stand side by side where the second has room for that many average characters, too.
  void SetCharactersBeside(int characters) { charactersBeside_ = characters; }
  [[nodiscard]] bool isSideBySide() const;

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] int WidthBeside() const;

  QBoxLayout* parts_;
  int charactersBeside_ = 0;
};

}  // namespace mortane

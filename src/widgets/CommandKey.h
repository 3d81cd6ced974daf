// A command picture of the command bar, drawn as a key.
#pragma once

#include <QAbstractButton>

#include "widgets/Icons.h"

namespace mortane {

// Kept: with the mouse it acts only if the left button was let go over it with no modifier held.
// A click leaves the focus where it is, so that a command does the same by key, menu and tool bar.
class CommandKey : public QAbstractButton {
  Q_OBJECT

 public:
  CommandKey(IconName icon, const QString& text, QWidget* parent = nullptr);

  // The one key of a window that stands in blue.
  void setMain(bool main);
  [[nodiscard]] bool isMain() const { return main_; }
  // Whether the pressed picture is shown.
  [[nodiscard]] bool isPressedLook() const;
  [[nodiscard]] QSize sizeHint() const override;

 Q_SIGNALS:
  void commanded();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Look;
  [[nodiscard]] Look CurrentLook() const;

  IconName icon_;
  bool main_ = false;
  bool heldByMouse_ = false;
  bool shownPressed_ = false;
  bool releasedPlainly_ = true;  // true at rest, so that the keyboard always acts
};

}  // namespace mortane

// What the buttons of the windows' rails have in common.
#pragma once

#include <QAbstractButton>

#include "widgets/Icons.h"

class QPainter;

namespace mortane {

// Has the focus by the Tab key alone, and acts on Space. Which act of the mouse chooses it, each
// kind says.
class RailButton : public QAbstractButton {
  Q_OBJECT

 public:
  RailButton(IconName icon, const QString& text, QWidget* parent);

 Q_SIGNALS:
  void chosen();

 protected:
  // Whether it stands for what the window shows.
  [[nodiscard]] virtual bool IsCurrent() const = 0;
  // By the left button with no modifier, once the field that has the focus is left.
  void ChooseBy(const QMouseEvent& event);
  [[nodiscard]] IconName icon() const { return icon_; }
  [[nodiscard]] QColor Background() const;
  [[nodiscard]] QColor Foreground() const;
  void DrawGround(QPainter& painter) const;
  void DrawFocus(QPainter& painter) const;

  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  IconName icon_;
};

}  // namespace mortane

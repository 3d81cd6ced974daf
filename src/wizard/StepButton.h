// One step of the wizard's rail: its number in a circle, its picture and its name.
#pragma once

#include "widgets/RailButton.h"

class QPainter;

namespace mortane {

// NotVisited is one before the current step that was never shown.
enum class StepState { Passed, Current, ToCome, NotVisited, Off };

// Acts when the left button, pressed over it, is let go over it with no modifier held, and on
// Space.
class StepButton : public RailButton {
  Q_OBJECT

 public:
  // `number` counts from 1.
  StepButton(int number, IconName icon, const QString& text, QWidget* parent = nullptr);

  // Off also disables the button.
  void SetState(StepState state);
  [[nodiscard]] StepState state() const { return state_; }
  // The dot that says: something on the step's page is not sent.
  void SetPending(bool pending);
  [[nodiscard]] bool isPending() const { return pending_; }
  // The last step of a rail; as it is made.
  void SetLast(bool last) { last_ = last; }
  [[nodiscard]] QSize sizeHint() const override;
  // In a low window the steps stand closer.
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  [[nodiscard]] bool IsCurrent() const override { return state_ == StepState::Current; }
  bool event(QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Describe();
  void DrawJoints(QPainter& painter) const;
  void DrawMark(QPainter& painter) const;

  int number_;
  int markSide_;  // by the font of the application when the button was made, as its text
  StepState state_ = StepState::Off;
  bool last_ = true;
  bool pending_ = false;
};

}  // namespace mortane

// Throws away the mouse and keyboard input that has queued up.
#pragma once

#include <QObject>

namespace mortane {

// Delivers what is pending into a filter that drops presses, releases, double clicks, moves
// and keys, until none of these is left. The wheel, painting, timers and posted events pass.
class InputFlush : public QObject {
 public:
  // A call from within the events that it delivers does nothing.
  void Run();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool running_ = false;
  bool dropped_ = false;  // in the present round
};

}  // namespace mortane

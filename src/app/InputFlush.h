// Throws away the mouse and keyboard input that has queued up.
#pragma once

#include <QObject>

namespace mortane {

// Delivers what is pending into a filter that drops presses, releases, double clicks, moves
// and keys. The wheel, painting, timers and posted events pass.
class InputFlush : public QObject {
 public:
  // A call from within the events that it delivers does nothing.
  void Run();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool running_ = false;
};

}  // namespace mortane

// Throws away the mouse and keyboard input that has queued up.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

namespace mortane {

// Delivers what is pending into a filter that drops presses, releases, double clicks, moves
// and keys, until none of these is left. The wheel, painting, timers and posted events pass, and so
// does the input of a box or dialog that opens meanwhile.
class InputFlush : public QObject {
 public:
  // A call from within the events that it delivers does nothing.
  void Run();

  // Whether any flush is dropping input.
  static bool IsRunning() { return current_ != nullptr; }
  // Calls `act` from the event loop as soon as no flush runs; never, once `context` is gone.
  static void WhenOver(QObject& context, std::function<void()> act);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool IsBoxOpen() const;

  static InputFlush* current_;
  QPointer<QWidget> modalBefore_;
  bool dropped_ = false;  // in the present round
  std::vector<std::function<void()>> whenOver_;
};

}  // namespace mortane

#include "app/InputFlush.h"

#include <QCoreApplication>
#include <QEvent>

namespace mortane {
namespace {

// Enough for any queue of clicks; only a program that makes events without end gets there.
constexpr int kLongestFlushMs = 200;

}  // namespace

void InputFlush::Run() {
  if (running_) return;
  running_ = true;
  QCoreApplication::instance()->installEventFilter(this);
  QCoreApplication::processEvents(QEventLoop::AllEvents, kLongestFlushMs);
  QCoreApplication::instance()->removeEventFilter(this);
  running_ = false;
}

bool InputFlush::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
      return true;
    default:
      return false;
  }
}

}  // namespace mortane

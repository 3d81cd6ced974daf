#include "app/InputFlush.h"

#include <QCoreApplication>
#include <QEvent>

namespace mortane {

// Other events may come without end; a round that meets no input has emptied the queue of it.
void InputFlush::Run() {
  if (running_) return;
  running_ = true;
  QCoreApplication::instance()->installEventFilter(this);
  do {
    dropped_ = false;
    QCoreApplication::processEvents();
  } while (dropped_);
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
      dropped_ = true;
      return true;
    default:
      return false;
  }
}

}  // namespace mortane

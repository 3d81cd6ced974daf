#include "app/InputFlush.h"

#include <QApplication>
#include <QEvent>
#include <utility>

namespace mortane {

InputFlush* InputFlush::current_ = nullptr;

// Ends with the first round that meets no input. Waiting for an empty queue could take for ever: a
// timer may always be due.
void InputFlush::Run() {
  if (IsRunning()) return;
  current_ = this;
  modalBefore_ = QApplication::activeModalWidget();
  QCoreApplication::instance()->installEventFilter(this);
  do {
    dropped_ = false;
    QCoreApplication::processEvents();
  } while (dropped_);
  QCoreApplication::instance()->removeEventFilter(this);
  current_ = nullptr;
  for (const auto& call : std::exchange(whenOver_, {})) call();
}

void InputFlush::WhenOver(QObject& context, std::function<void()> act) {
  auto call = [to = QPointer(&context), act = std::move(act)] {
    if (to) QMetaObject::invokeMethod(to.data(), act, Qt::QueuedConnection);
  };
  if (IsRunning()) {
    current_->whenOver_.emplace_back(std::move(call));
  } else {
    call();
  }
}

// A box that opened during the flush has to be answered. Input for one that stood there before is
// dropped as that of the window is.
bool InputFlush::IsBoxOpen() const {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && modal != modalBefore_;
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
      if (IsBoxOpen()) return false;
      dropped_ = true;
      return true;
    default:
      return false;
  }
}

}  // namespace mortane

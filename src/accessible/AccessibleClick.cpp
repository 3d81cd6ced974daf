#include "accessible/AccessibleClick.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace mortane {
namespace {

void Send(QWidget& canvas, QEvent::Type type, QPoint at, Qt::MouseButtons held) {
  QMouseEvent event(type, at, canvas.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
  QApplication::sendEvent(&canvas, &event);
}

}  // namespace

void ClickFor(QWidget& canvas, QPoint at) {
  Send(canvas, QEvent::MouseButtonPress, at, Qt::LeftButton);
  Send(canvas, QEvent::MouseButtonRelease, at, Qt::NoButton);
}

void ClickFor(QWidget& control) {
  ClickFor(control, control.rect().center());
}

}  // namespace mortane

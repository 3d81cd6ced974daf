#include "accessible/AccessibleClick.h"

#include <QApplication>
#include <QCheckBox>
#include <QMouseEvent>
#include <QPointer>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>

#include "widgets/ClickFocus.h"

namespace mortane {
namespace {

void Send(QWidget& canvas, QEvent::Type type, QPoint at, Qt::MouseButtons held) {
  QMouseEvent event(type, at, canvas.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
  QApplication::sendEvent(&canvas, &event);
}

bool IsUnderABox(const QWidget& control) {
  const QWidget* box = QApplication::activeModalWidget();
  if (box == nullptr) return false;
  for (const QWidget* w = &control; w != nullptr; w = w->parentWidget()) {
    if (w == box) return false;
  }
  return true;
}

// A wide option takes clicks on its indicator and its text alone.
QPoint ClickPoint(const QAbstractButton& button) {
  const bool radio = qobject_cast<const QRadioButton*>(&button) != nullptr;
  if (!radio && qobject_cast<const QCheckBox*>(&button) == nullptr) return button.rect().center();
  QStyleOptionButton option;
  option.initFrom(&button);
  const auto indicator = radio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator;
  return button.style()->subElementRect(indicator, &option, &button).center();
}

}  // namespace

void ActFor(QWidget& control, const std::function<void()>& act) {
  const auto actIfClickable = [&control, act] {
    if (control.isVisible() && control.isEnabled() && !IsUnderABox(control)) act();
  };
  QMetaObject::invokeMethod(&control, actIfClickable, Qt::QueuedConnection);
}

void ClickFor(QWidget& canvas, QPoint at) {
  const QPointer<QWidget> pressed(&canvas);
  Send(canvas, QEvent::MouseButtonPress, at, Qt::LeftButton);
  if (pressed != nullptr) Send(canvas, QEvent::MouseButtonRelease, at, Qt::NoButton);
}

void ClickFor(QAbstractButton& button) {
  // Only a press that comes from the system itself moves the focus by the button's policy.
  if ((button.focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus && !TakeFocus(button)) return;
  ClickFor(button, ClickPoint(button));
}

void AccessibleControl::doAction(const QString& name) {
  if (name != setFocusAction()) return QAccessibleWidget::doAction(name);
  QWidget& control = *widget();
  ActFor(control, [&control] { TakeFocus(control); });
}

}  // namespace mortane

#include "widgets/ClickFocus.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>

#include "widgets/TextField.h"

namespace mortane {
namespace {

class ClickFilter : public QObject {
 public:
  explicit ClickFilter(QAbstractButton& button) : QObject(&button), button_(button) {}

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::MouseButtonRelease) return false;
    const auto& release = static_cast<const QMouseEvent&>(*event);
    const bool clicked = release.button() == Qt::LeftButton && button_.isDown() &&
                         button_.rect().contains(release.position().toPoint());
    if (!clicked) return false;
    const QPointer<QAbstractButton> button(&button_);  // a complaint's box may see its end
    if (TakeFocus(button_)) return false;
    if (button != nullptr) button->setDown(false);
    return true;
  }

 private:
  QAbstractButton& button_;
};

bool Leave(QWidget* focused) {
  auto* field = qobject_cast<TextField*>(focused);
  return field == nullptr || field->Leave();
}

}  // namespace

bool LeaveFocusedField() {
  return Leave(QApplication::focusWidget());
}

// The field may stand in a window that is not active: a screen reader's window can be.
bool TakeFocus(QWidget& control) {
  const QPointer<QWidget> taker(&control);
  if (!Leave(control.window()->focusWidget()) || taker == nullptr) return false;
  control.setFocus(Qt::OtherFocusReason);
  return true;
}

void TakeFocusByClicks(QAbstractButton& button) {
  button.setFocusPolicy(Qt::TabFocus);
  button.installEventFilter(new ClickFilter(button));
}

}  // namespace mortane

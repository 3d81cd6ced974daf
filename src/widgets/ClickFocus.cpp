#include "widgets/ClickFocus.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>

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
    if (!clicked || TakeFocus(button_)) return false;
    button_.setDown(false);
    return true;
  }

 private:
  QAbstractButton& button_;
};

}  // namespace

bool LeaveFocusedField() {
  auto* field = qobject_cast<TextField*>(QApplication::focusWidget());
  return field == nullptr || field->Leave();
}

bool TakeFocus(QWidget& control) {
  if (!LeaveFocusedField()) return false;
  control.setFocus(Qt::OtherFocusReason);
  return true;
}

void TakeFocusByClicks(QAbstractButton& button) {
  button.setFocusPolicy(Qt::TabFocus);
  button.installEventFilter(new ClickFilter(button));
}

}  // namespace mortane

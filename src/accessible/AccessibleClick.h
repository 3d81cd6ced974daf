// What a screen reader asks of a control, done as a person's click does it.
#pragma once

#include <QAccessibleWidget>
#include <QPoint>
#include <functional>

class QAbstractButton;

namespace mortane {

// Acts at the next turn of the event loop, so that a box which the act opens does not keep the
// screen reader waiting for its answer. Nothing happens where a person could not click either: on a
// control that is hidden or disabled by then, or under a box.
void ActFor(QWidget& control, const std::function<void()>& act);

// Clicks on the control or, if it paints its items on a widget of its own, on that one. So a field
// whose text is refused keeps the focus, and nothing else happens.
void ClickFor(QWidget& canvas, QPoint at);
void ClickFor(QAbstractButton& button);

// A control that gets the focus only after the field that has it could be left.
class AccessibleControl : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  void doAction(const QString& name) override;
};

}  // namespace mortane

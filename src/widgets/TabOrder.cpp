#include "widgets/TabOrder.h"

#include <QList>
#include <QWidget>

namespace mortane {
namespace {

// The toolkit orders none but widgets that take the focus.
class Focusable {
 public:
  explicit Focusable(QWidget& widget) : widget_(widget), policy_(widget.focusPolicy()) {
    widget_.setFocusPolicy(Qt::TabFocus);
  }
  ~Focusable() { widget_.setFocusPolicy(policy_); }
  Focusable(const Focusable&) = delete;
  Focusable& operator=(const Focusable&) = delete;

 private:
  QWidget& widget_;
  const Qt::FocusPolicy policy_;
};

}  // namespace

void PutInTabOrder(QWidget& page, QWidget& behind) {
  QList<QWidget*> widgets{&page};
  for (QWidget* next = page.nextInFocusChain(); page.isAncestorOf(next);
       next = next->nextInFocusChain()) {
    widgets.append(next);
  }
  QWidget* before = &behind;
  for (QWidget* widget : widgets) {
    const Focusable first(*before);
    const Focusable second(*widget);
    QWidget::setTabOrder(before, widget);
    before = widget;
  }
}

}  // namespace mortane

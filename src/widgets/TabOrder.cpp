#include "widgets/TabOrder.h"

#include <QAbstractScrollArea>
#include <QList>
#include <QWidget>

namespace mortane {
namespace {

// A widget that takes the focus, and by itself. The toolkit orders no others, and takes along the
// viewport of a list, which may stand elsewhere in the order.
class Single {
 public:
  explicit Single(QWidget& widget)
      : widget_(widget),
        policy_(widget.focusPolicy()),
        proxy_(widget.focusProxy()),
        area_(qobject_cast<QAbstractScrollArea*>(&widget)) {
    widget_.setFocusProxy(nullptr);  // which would get the same policy
    widget_.setFocusPolicy(Qt::TabFocus);
    if (area_ != nullptr) area_->viewport()->setFocusProxy(nullptr);
  }
  ~Single() {
    widget_.setFocusPolicy(policy_);
    widget_.setFocusProxy(proxy_);
    if (area_ != nullptr) area_->viewport()->setFocusProxy(area_);
  }
  Single(const Single&) = delete;
  Single& operator=(const Single&) = delete;

 private:
  QWidget& widget_;
  const Qt::FocusPolicy policy_;
  QWidget* proxy_;
  QAbstractScrollArea* area_;
};

}  // namespace

void MoveBehind(QWidget& moved, QWidget& before) {
  const Single first(before);
  const Single second(moved);
  QWidget::setTabOrder(&before, &moved);
}

void PutInTabOrder(QWidget& page, QWidget& behind) {
  QList<QWidget*> widgets{&page};
  for (QWidget* next = page.nextInFocusChain(); page.isAncestorOf(next);
       next = next->nextInFocusChain()) {
    widgets.append(next);
  }
  QWidget* before = &behind;
  for (QWidget* widget : widgets) {
    MoveBehind(*widget, *before);
    before = widget;
  }
}

}  // namespace mortane

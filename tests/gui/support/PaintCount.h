// How often a widget was painted.
#pragma once

#include <QEvent>
#include <QWidget>

namespace mortane::test {

class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }

  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

}  // namespace mortane::test

// How often the layout of a widget has asked to be done again.
#pragma once

#include <QEvent>
#include <QWidget>
#include <utility>

namespace mortane::test {

// Some requests are let through; of more the layout would never come to an end.
class LayoutRequests : public QObject {
 public:
  explicit LayoutRequests(QWidget& widget) { widget.installEventFilter(this); }

  [[nodiscard]] int Take() { return std::exchange(count_, 0); }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    return event->type() == QEvent::LayoutRequest && ++count_ > kMost;
  }

 private:
  static constexpr int kMost = 20;
  int count_ = 0;
};

}  // namespace mortane::test

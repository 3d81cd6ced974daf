// How often the layout of a widget has asked to be done again.
#pragma once

#include <gtest/gtest.h>

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

// Of parts that stand in one line at widths of 420 and 400 and in more at 259: showIn gives the
// panel a width.
template <typename ShowIn>
void ExpectRequestsAtBreaksAlone(QWidget& panel, ShowIn showIn) {
  LayoutRequests requests(panel);
  showIn(420);
  EXPECT_LE(requests.Take(), 2);
  showIn(400);
  EXPECT_EQ(requests.Take(), 0);
  showIn(259);
  EXPECT_EQ(requests.Take(), 1);
}

}  // namespace mortane::test

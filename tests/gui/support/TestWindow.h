// A window that is shown and active, for controls that are driven with real events.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWidget>

namespace mortane {

class TestWindow {
 public:
  template <class Widget, class... Args>
  Widget* Add(Args&&... args) {
    auto* widget = new Widget(std::forward<Args>(args)..., &window_);
    column_->addWidget(widget);
    return widget;
  }

  QWidget& widget() { return window_; }

  void Show() {
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

 private:
  QWidget window_;
  QVBoxLayout* column_ = new QVBoxLayout(&window_);
};

// Two notches towards the person; true when the widget took them for its own.
inline bool TurnWheel(QWidget* widget) {
  const QPointF at(5, 5);
  QWheelEvent turn(at, widget->mapToGlobal(at), {}, {0, -240}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(widget, &turn);
  return turn.isAccepted();
}

// The numbers that a signal with one int argument carried, in order.
inline std::vector<int> Indices(const QSignalSpy& spy) {
  std::vector<int> indices;
  for (const QList<QVariant>& call : spy) indices.push_back(call.at(0).toInt());
  return indices;
}

}  // namespace mortane

// The event loop without a person and without waiting.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QEventLoop>

namespace mortane::test {

// Delivers what is due, and what that makes due in turn, until nothing is left.
inline void DeliverAll() {
  constexpr int kMostRounds = 1000;
  for (int round = 0; round < kMostRounds; ++round) {
    if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) return;
  }
  FAIL() << "the event loop never comes to rest";
}

}  // namespace mortane::test

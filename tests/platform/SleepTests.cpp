#include "platform/Sleep.h"

#include <gtest/gtest.h>

#include <chrono>

namespace mortane {
namespace {

using Clock = std::chrono::steady_clock;

TEST(SleepMilliseconds, TakesAtLeastTheTimeAskedFor) {
  const auto start = Clock::now();
  SleepMilliseconds(20);
  EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(20));
}

TEST(SleepMilliseconds, ReturnsAtOnceForNothingAndLess) {
  const auto start = Clock::now();
  SleepMilliseconds(0);
  SleepMilliseconds(-1000);
  EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(900));
}

}  // namespace
}  // namespace mortane

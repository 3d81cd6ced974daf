#include "controller/simulator/RealClock.h"

#include <limits>

#include "platform/Sleep.h"

namespace mortane::controller {

std::int64_t RealClock::Now() const {
  const auto passed = std::chrono::steady_clock::now() - beginning_;
  return std::chrono::duration_cast<std::chrono::milliseconds>(passed).count();
}

void RealClock::WaitUntil(std::int64_t time) {
  constexpr std::int64_t kLongestSleep = std::numeric_limits<int>::max();
  for (std::int64_t left = time - Now(); left > 0; left = time - Now()) {
    SleepMilliseconds(static_cast<int>(std::min(left, kLongestSleep)));
  }
}

}  // namespace mortane::controller

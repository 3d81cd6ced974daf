// A clock of real time.
#pragma once

#include <chrono>

#include "controller/simulator/Clock.h"

namespace mortane::controller {

// Waiting blocks the calling thread.
class RealClock : public Clock {
 public:
  std::int64_t Now() const override;
  void WaitUntil(std::int64_t time) override;

 private:
  std::chrono::steady_clock::time_point beginning_ = std::chrono::steady_clock::now();
};

}  // namespace mortane::controller

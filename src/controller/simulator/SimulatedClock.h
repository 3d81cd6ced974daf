// The time of a simulated controller library.
#pragma once

#include <cstdint>

namespace mortane::controller {

// Milliseconds since the library was made. Time passes only when someone advances it.
class SimulatedClock {
 public:
  std::int64_t Now() const { return now_; }
  void Advance(std::int64_t milliseconds) { now_ += milliseconds; }

 private:
  std::int64_t now_ = 0;
};

}  // namespace mortane::controller

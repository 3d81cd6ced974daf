// The clock of a simulated controller library.
#pragma once

#include <algorithm>
#include <cstdint>

namespace mortane::controller {

// Times are milliseconds since the clock was made.
class Clock {
 public:
  virtual ~Clock() = default;

  virtual std::int64_t Now() const = 0;
  // Returns at that time or later; at once for a time in the past.
  virtual void WaitUntil(std::int64_t time) = 0;
};

// Advances only by Advance and by waiting.
class SimulatedClock : public Clock {
 public:
  std::int64_t Now() const override { return now_; }
  void WaitUntil(std::int64_t time) override { now_ = std::max(now_, time); }
  void Advance(std::int64_t milliseconds) { now_ += milliseconds; }

 private:
  std::int64_t now_ = 0;
};

}  // namespace mortane::controller

// The time that a simulated controller library goes by.
#pragma once

#include <algorithm>
#include <cstdint>

namespace mortane::controller {

// Milliseconds since the clock's own beginning.
class Clock {
 public:
  virtual ~Clock() = default;

  virtual std::int64_t Now() const = 0;
  // Comes back at that time or later, at once when it is past.
  virtual void WaitUntil(std::int64_t time) = 0;
};

// Stands still until someone advances it or waits for a later time.
class SimulatedClock : public Clock {
 public:
  std::int64_t Now() const override { return now_; }
  void WaitUntil(std::int64_t time) override { now_ = std::max(now_, time); }
  void Advance(std::int64_t milliseconds) { now_ += milliseconds; }

 private:
  std::int64_t now_ = 0;
};

}  // namespace mortane::controller

// The motion of one axis of a simulated drive.
#pragma once

#include <cstdint>

namespace mortane::controller {

// At constant speed from one position to another. Positions in steps, times in milliseconds of the
// library's clock; no time before the start of the move is asked for.
class AxisMotion {
 public:
  bool IsMoving() const { return moving_; }
  // The speed is 1 or more.
  void Start(std::int32_t from, std::int32_t target, std::int64_t stepsPerMs, std::int64_t nowMs);
  void Stop() { moving_ = false; }

  std::int32_t Target() const { return target_; }
  std::int64_t EndMs() const;
  std::int32_t PositionAt(std::int64_t nowMs) const;

 private:
  bool moving_ = false;
  std::int32_t from_ = 0;
  std::int32_t target_ = 0;
  std::int64_t stepsPerMs_ = 1;
  std::int64_t startMs_ = 0;
};

}  // namespace mortane::controller

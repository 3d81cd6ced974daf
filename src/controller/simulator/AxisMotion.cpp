#include "controller/simulator/AxisMotion.h"

#include <cstdlib>

namespace mortane::controller {

void AxisMotion::Start(std::int32_t from, std::int32_t target, std::int64_t stepsPerMs,
                       std::int64_t nowMs) {
  moving_ = true;
  from_ = from;
  target_ = target;
  stepsPerMs_ = stepsPerMs;
  startMs_ = nowMs;
}

std::int64_t AxisMotion::EndMs() const {
  const std::int64_t steps = std::abs(std::int64_t{target_} - from_);
  return startMs_ + (steps + stepsPerMs_ - 1) / stepsPerMs_;
}

std::int32_t AxisMotion::PositionAt(std::int64_t nowMs) const {
  if (nowMs >= EndMs()) return target_;
  const std::int64_t covered = (nowMs - startMs_) * stepsPerMs_;
  return static_cast<std::int32_t>(target_ > from_ ? from_ + covered : from_ - covered);
}

}  // namespace mortane::controller

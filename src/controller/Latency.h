// A controller library whose calls take time.
#pragma once

#include <functional>
#include <utility>

#include "controller/Decorator.h"

namespace mortane::controller {

// Runs the given function before each call, creations included: one that sleeps, or one that
// advances a clock.
class LatencyLibrary : public DecoratedLibrary {
 public:
  LatencyLibrary(ControllerLibrary& inner, std::function<void()> beforeEachCall)
      : DecoratedLibrary(inner), beforeEachCall_(std::move(beforeEachCall)) {}

 protected:
  Value Around(const CallSite& site, const Proceed& proceed) override;

 private:
  std::function<void()> beforeEachCall_;
};

}  // namespace mortane::controller

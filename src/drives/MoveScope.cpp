#include "drives/MoveScope.h"

#include <utility>

#include "common/Numbers.h"
#include "drives/DrivePosition.h"

namespace mortane {
namespace {

// The drives are taken to run at 1 micrometre per millisecond.
constexpr double kMicrometresPerMs = 1;
constexpr double kMarginMs = 1000;

int WaitMsFor(std::int64_t distance) {
  const double micrometres = static_cast<double>(distance) / kStepsPerMicrometre;
  return RoundToLong(micrometres / kMicrometresPerMs + kMarginMs).value_or(0);
}

}  // namespace

MoveScope::MoveScope(const MoveFlag& moving, const ConnectedMicroscope& microscope)
    : moving_(moving),
      outerMoves_(std::exchange(*moving, true)),
      microscope_(microscope),
      device_(microscope.lConnectDevice) {}

MoveScope::~MoveScope() {
  if (const MoveFlag moving = moving_.lock()) *moving = outerMoves_;
}

bool MoveScope::IsLost() const {
  return moving_.expired() || microscope_.lConnectDevice != device_;
}

void WatchMove(const MoveScope& scope, Prompts& prompts, const StartedMove& move) {
  const int waitMs = WaitMsFor(move.distance);
  while (!scope.IsLost()) {
    const Answer answer = prompts.TimedMsgBox(waitMs, "Move Stop?", box::kOk, {});
    if (scope.IsLost()) return;
    if (answer != Answer::TimedOut) {
      move.stop();
      return;
    }
    // The position comes first: the wait returns only when the library has done with the move.
    const bool arrived = move.isAtTarget();
    if (scope.IsLost()) return;
    if (move.isEnded() || arrived) return;
  }
}

}  // namespace mortane

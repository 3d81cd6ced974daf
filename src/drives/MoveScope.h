// A move that a page makes, and what may happen to the page meanwhile.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "model/ConnectedMicroscope.h"

namespace mortane {

// True while a page makes a move. The page holds the only strong reference, so an expired one means
// that the page was destroyed.
using MoveFlag = std::shared_ptr<bool>;

// Boxes run the event loop: when one has closed, the page may have been destroyed or another
// microscope selected, and the move is then no longer the page's. The flag is set as long as one
// of the page's scopes lives, so that no move begins within another.
class MoveScope {
 public:
  MoveScope(const MoveFlag& moving, const ConnectedMicroscope& microscope);
  ~MoveScope();
  MoveScope(const MoveScope&) = delete;
  MoveScope& operator=(const MoveScope&) = delete;

  bool IsLost() const;

 private:
  std::weak_ptr<bool> moving_;
  bool outerMoves_;
  const ConnectedMicroscope& microscope_;
  std::int32_t device_;
};

// A move under way, as its page asks about it. The functions are not called once the scope is lost.
struct StartedMove {
  // Of all axes together, in steps.
  std::int64_t distance;
  // Asks the drive where it stands.
  std::function<bool()> isAtTarget;
  // Waits for the drive in the library; false when that failed.
  std::function<bool()> isEnded;
  std::function<void()> stop;
};

// Shows "Move Stop?" for the time that the move should take. A person who closes the box leaves
// the move to itself; once the time is over the drive is waited for. Begins anew when the wait
// failed and the drive is not where it should be.
void WatchMove(const MoveScope& scope, Prompts& prompts, const StartedMove& move);

}  // namespace mortane

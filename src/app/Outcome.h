// How a transfer or the work on a file has ended.
#pragma once

namespace mortane {

enum class Outcome {
  Complete,
  WithFailures,  // the rest was done
  NotDone,
};

constexpr Outcome OutcomeOf(bool complete) {
  return complete ? Outcome::Complete : Outcome::WithFailures;
}

}  // namespace mortane

// The one place where a failure that nobody below expected becomes a box.
#pragma once

#include <exception>
#include <utility>

#include "common/Prompts.h"

namespace mortane {

// Shows what went wrong in a critical box: the text of a Failure, or what a fault of the program
// itself says.
void ShowFailure(Prompts& prompts, const std::exception& failure);

// Runs one step of a command; what follows the step goes on in either case. Answers whether
// the step came to its end.
template <typename Step>
bool RunStep(Prompts& prompts, Step&& step) {
  try {
    std::forward<Step>(step)();
    return true;
  } catch (const std::exception& failure) {
    ShowFailure(prompts, failure);
    return false;
  }
}

}  // namespace mortane

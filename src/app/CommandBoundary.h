// The one place where a failure that nobody below expected becomes a box.
#pragma once

#include <utility>

#include "common/Failure.h"
#include "common/Prompts.h"

namespace mortane {

// Shows the failure's text in a critical box.
void ShowFailure(Prompts& prompts, const Failure& failure);

// Runs one step of a command; what follows the step goes on in either case. Answers whether
// the step came to its end.
template <typename Step>
bool RunStep(Prompts& prompts, Step&& step) {
  try {
    std::forward<Step>(step)();
    return true;
  } catch (const Failure& failure) {
    ShowFailure(prompts, failure);
    return false;
  }
}

}  // namespace mortane

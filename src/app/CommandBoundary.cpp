#include "app/CommandBoundary.h"

namespace mortane {

void ShowFailure(Prompts& prompts, const Failure& failure) {
  prompts.MsgBox(failure.Description(), box::kCritical);
}

}  // namespace mortane

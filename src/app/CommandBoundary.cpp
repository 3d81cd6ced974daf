#include "app/CommandBoundary.h"

namespace mortane {

void ShowFailure(Prompts& prompts, const std::exception& failure) {
  prompts.MsgBox(failure.what(), box::kCritical);
}

}  // namespace mortane

#include "common/Failure.h"

namespace mortane {

void RaiseOwnFailure(std::int32_t number, std::string description) {
  throw Failure("Mortane", number, std::move(description));
}

}  // namespace mortane

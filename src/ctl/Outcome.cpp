#include "ctl/Outcome.h"

#include "common/Failure.h"

namespace mortane::ctl {

void Refuse(std::string reason) {
  constexpr std::int32_t kRefused = 5;  // an argument that makes no sense
  RaiseOwnFailure(kRefused, std::move(reason));
}

}  // namespace mortane::ctl

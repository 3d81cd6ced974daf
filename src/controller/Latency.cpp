#include "controller/Latency.h"

namespace mortane::controller {

Value LatencyLibrary::Around(const CallSite& /*site*/, const Proceed& proceed) {
  beforeEachCall_();
  return proceed();
}

}  // namespace mortane::controller

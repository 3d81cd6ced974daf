// The root of the simulated library and its device list.
#pragma once

#include "controller/simulator/SimulatorState.h"

namespace mortane::controller {

// A new root over the shared devices, with no current device.
ObjectRef MakeRoot(const SimulatorRef& state);

}  // namespace mortane::controller

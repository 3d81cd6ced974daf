// The simulated server of the fiber illuminator.
#pragma once

#include "controller/simulator/SimulatorState.h"

namespace mortane::controller {

// Both raise a failure when the server is not installed.
ObjectRef MakeFiberServer(const SimulatorRef& state);
ObjectRef MakeFiberRemote(const SimulatorRef& state);

}  // namespace mortane::controller

// Interlocks, escape mode and switch functions of a simulated instrument.
#pragma once

#include "controller/simulator/SimulatorState.h"

namespace mortane::controller {

ObjectRef MakeControllerSettings(const DeviceLink& link);

}  // namespace mortane::controller

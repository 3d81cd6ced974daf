// The accessory database of a simulated instrument as library objects.
#pragma once

#include "controller/simulator/SimulatorState.h"

namespace mortane::controller {

ObjectRef MakeDatabase(const DeviceLink& link);

}  // namespace mortane::controller

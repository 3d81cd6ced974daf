// The two drives of a simulated instrument.
#pragma once

#include "controller/simulator/SimulatorState.h"

namespace mortane::controller {

ObjectRef MakeZDrive(const DeviceLink& link);
ObjectRef MakeXYDrive(const DeviceLink& link);

// Lets every move of the device arrive, the clock going on to the end of the last one.
void FinishMoves(const DeviceLink& link);

}  // namespace mortane::controller

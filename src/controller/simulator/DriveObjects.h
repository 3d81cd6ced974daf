// The two drives of a simulated instrument.
#pragma once

#include "controller/simulator/SimulatorState.h"

namespace mortane::controller {

ObjectRef MakeZDrive(const DeviceLink& link);
ObjectRef MakeXYDrive(const DeviceLink& link);

// Waits on the clock until every move of the device has arrived.
void FinishMoves(const DeviceLink& link);

}  // namespace mortane::controller

// The accessory devices of a simulated instrument.
#pragma once

#include <optional>
#include <string_view>

#include "controller/simulator/SimulatorState.h"

namespace mortane::controller {

// The device that the root hands out under that member name; nothing for another name.
ObjectRef MakeAccessoryDevice(const DeviceLink& link, std::string_view member);

// Members that every accessory has.
void AddAccessoryState(MemberObject& object, const DeviceLink& link, int accessoryNumber);

// The number `value` as the state of that accessory.
ObjectRef MakeStateValue(const DeviceLink& link, int accessoryNumber, Value value);

// Fails unless the accessory is fitted and can be commanded.
Instrument& Commanded(const DeviceLink& link, int accessoryNumber);

}  // namespace mortane::controller

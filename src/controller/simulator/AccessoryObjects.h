// The accessory devices of a simulated instrument, without its drives.
#pragma once

#include <string_view>
#include <vector>

#include "controller/simulator/SimulatorState.h"

namespace mortane::controller {

// The root's members for these devices, and the device of the member at `place` in that list.
std::vector<std::string_view> AccessoryDeviceMembers();
ObjectRef MakeAccessoryDevice(const DeviceLink& link, std::size_t place);

// Adds the members that every accessory has.
void AddAccessoryState(MemberTable<DeviceLink>& table, int accessoryNumber);

// The number `value` as the state value of that accessory.
ObjectRef MakeStateValue(const DeviceLink& link, int accessoryNumber, Value value);

// Fails unless the accessory is fitted and can be commanded.
Instrument& Commanded(const DeviceLink& link, int accessoryNumber);

}  // namespace mortane::controller

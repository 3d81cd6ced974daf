#include "controller/simulator/SimulatorState.h"

namespace mortane::controller {

Instrument& DeviceLink::Device() const {
  auto& instruments = state_->bench.instruments;
  if (index_ < 0 || static_cast<std::size_t>(index_) >= instruments.size()) {
    RaiseSimulated("No device " + std::to_string(index_) + ".");
  }
  return instruments[static_cast<std::size_t>(index_)];
}

Instrument& DeviceLink::Connected() const {
  Instrument& device = Device();
  if (!Session().connected) {
    RaiseSimulated("Device " + std::to_string(index_) + " is not connected.");
  }
  return device;
}

Instrument& DeviceLink::Fitted(int accessoryNumber) const {
  Instrument& device = Connected();
  if (device.Accessory(accessoryNumber).state == 0) {
    RaiseSimulated("Accessory " + std::to_string(accessoryNumber) + " is not fitted.");
  }
  return device;
}

}  // namespace mortane::controller

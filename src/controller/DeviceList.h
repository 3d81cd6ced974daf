// Devices that the library knows: the simulator at index 0, real microscopes from 1 up.
#pragma once

#include "controller/Proxy.h"

namespace mortane::controller {

// What a controller stores of its system name, in characters.
inline constexpr std::size_t kSystemNameLength = 15;

class DeviceEntry : public Proxy {
 public:
  using Proxy::Proxy;
  // The system name that is stored in the device's controller.
  std::string Name() const { return GetText("Name"); }
  // Fails when the device does not answer.
  void Connect() const { Call("Connect"); }
  void Disconnect() const { Call("Disconnect"); }
  // True: position writes return at once. False: they block until the move has ended.
  void PutAsyncMode(bool asynchronous) const { Put("AsyncMode", asynchronous); }
  // Blocks until the asynchronous move has ended.
  std::int32_t WaitMove() const { return ToLong(Call("WaitMove", {1})); }
  // Not 0 when the device can be used now.
  std::int32_t IsAvailable() const { return GetLong("IsAvailable"); }
};

class DeviceList : public Proxy {
 public:
  using Proxy::Proxy;
  // On a new root the library scans for devices first.
  std::int32_t Count() const { return GetLong("Count"); }
  // index from 0; out of range raises a failure.
  DeviceEntry Item(std::int32_t index) const { return DeviceEntry(GetObject("Item", {index})); }
};

}  // namespace mortane::controller

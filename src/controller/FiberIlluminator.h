// The fiber illuminator's server, members in its order.
#pragma once

#include "controller/Proxy.h"

namespace mortane::controller {

class FiberServer : public Proxy {
 public:
  using Proxy::Proxy;
  // Whether the server has its device.
  bool IsOpen() const { return GetBoolean("IsOpen"); }
  // Connects, waiting for so many milliseconds; Status() tells the result.
  void Open(std::int32_t timeoutMs) const { Call("Open", {timeoutMs}); }
  void Close() const { Call("Close"); }
  std::int32_t Status() const { return GetLong("Status"); }
};

class FiberRemote : public Proxy {
 public:
  using Proxy::Proxy;
  // The remote's switch: 0 off, 1 on.
  std::int16_t SwitchEnable() const { return GetInteger("SwitchEnable"); }
  void PutSwitchEnable(std::int16_t on) const { Put("SwitchEnable", on); }
  // 0 off, 1 dark, 2 bright.
  std::int16_t LED() const { return GetInteger("LED"); }
  void PutLED(std::int16_t state) const { Put("LED", state); }
};

}  // namespace mortane::controller

// Interlocks, switch functions and the escape mode, members in the library's order.
#pragma once

#include "controller/Proxy.h"

namespace mortane::controller {

// item is an accessory number, 1 to 14, trigger one of namespace trigger, unit one of switchunit.
// Keys and values of switches are one-character codes; the key "0" of the hand controller is its
// mode.
class ControllerSettings : public Proxy {
 public:
  using Proxy::Proxy;
  void SetInterlock(std::int32_t item, std::int32_t trigger) const {
    Call("SetInterlock", {item, trigger});
  }
  void ClearInterlock(std::int32_t item, std::int32_t trigger) const {
    Call("ClearInterlock", {item, trigger});
  }
  // 1 on, 0 off.
  std::int32_t Interlock(std::int32_t item, std::int32_t trigger) const {
    return GetLong("Interlock", {item, trigger});
  }
  // 0 none, 1 focus, 2 XY, 3 both.
  std::int32_t EscapeMode() const { return GetLong("EscapeMode"); }
  void PutEscapeMode(std::int32_t mode) const { Put("EscapeMode", mode); }
  void SetSwitchFunction(std::int32_t unit, const std::string& key,
                         const std::string& value) const {
    Call("SetSwitchFunction", {unit, key, value});
  }
  std::string SwitchFunction(std::int32_t unit, const std::string& key) const {
    return GetText("SwitchFunction", {unit, key});
  }
};

}  // namespace mortane::controller

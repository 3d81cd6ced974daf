// A joystick that answers what a test says.
#pragma once

#include "platform/Joystick.h"

namespace mortane::test {

// By default plugged in, with ten buttons. The capabilities may fail though the status does not.
struct ScriptedJoystick : Joystick {
  JoystickCapabilities ReadCapabilities() override {
    ++capabilityCalls;
    return capabilities;
  }
  std::int32_t ReadStatus() override {
    ++statusCalls;
    return status;
  }

  // A joystick that answers nothing, for the given reason.
  void Fail(std::int32_t result) {
    status = result;
    capabilities = {result, 0};
  }

  std::int32_t status = kJoystickOk;
  JoystickCapabilities capabilities{kJoystickOk, 10};
  int capabilityCalls = 0;
  int statusCalls = 0;
};

}  // namespace mortane::test

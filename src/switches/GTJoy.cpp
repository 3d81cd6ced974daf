#include "switches/GTJoy.h"

namespace mortane {

std::int32_t GetJoyButtonCount(Joystick& joystick) {
  const JoystickCapabilities capabilities = joystick.ReadCapabilities();
  return capabilities.result == kJoystickOk ? capabilities.buttonCount : kNoButtonCount;
}

std::int32_t GetJoyStatus(Joystick& joystick) {
  const std::int32_t status = joystick.ReadStatus();
  switch (status) {
    case kJoystickUnplugged:
      return 1;
    case kJoystickNoDriver:
      return 2;
    default:
      return status;
  }
}

}  // namespace mortane

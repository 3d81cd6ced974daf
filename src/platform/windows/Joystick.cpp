#include "platform/Joystick.h"

#include <windows.h>

#include <mmsystem.h>

namespace mortane {

JoystickCapabilities SystemJoystick::ReadCapabilities() {
  JOYCAPSW capabilities{};
  const MMRESULT result = joyGetDevCapsW(JOYSTICKID1, &capabilities, sizeof capabilities);
  if (result != JOYERR_NOERROR) return {static_cast<std::int32_t>(result), 0};
  return {kJoystickOk, static_cast<std::int32_t>(capabilities.wNumButtons)};
}

std::int32_t SystemJoystick::ReadStatus() {
  JOYINFOEX position{};
  position.dwSize = sizeof position;
  position.dwFlags = JOY_RETURNX | JOY_RETURNY | JOY_RETURNBUTTONS;
  return static_cast<std::int32_t>(joyGetPosEx(JOYSTICKID1, &position));
}

}  // namespace mortane

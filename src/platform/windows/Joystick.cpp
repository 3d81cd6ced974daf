#include "platform/Joystick.h"

#include "platform/windows/JoystickCalls.h"

namespace mortane {

JoystickCapabilities ReadCapabilities(const JoystickCalls& calls) {
  JOYCAPSW capabilities{};
  const MMRESULT result = calls.readCapabilities(JOYSTICKID1, &capabilities, sizeof capabilities);
  if (result != JOYERR_NOERROR) return {static_cast<std::int32_t>(result), 0};
  return {kJoystickOk, static_cast<std::int32_t>(capabilities.wNumButtons)};
}

std::int32_t ReadStatus(const JoystickCalls& calls) {
  JOYINFOEX position{};
  position.dwSize = sizeof position;
  position.dwFlags = JOY_RETURNX | JOY_RETURNY | JOY_RETURNBUTTONS;
  return static_cast<std::int32_t>(calls.readPosition(JOYSTICKID1, &position));
}

JoystickCapabilities SystemJoystick::ReadCapabilities() {
  return mortane::ReadCapabilities({});
}

std::int32_t SystemJoystick::ReadStatus() {
  return mortane::ReadStatus({});
}

}  // namespace mortane

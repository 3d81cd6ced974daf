// The multimedia calls behind a joystick; tests put their own in their place.
#pragma once

#include <windows.h>

#include <mmsystem.h>

#include <cstdint>

namespace mortane {

struct JoystickCapabilities;

struct JoystickCalls {
  decltype(&joyGetDevCapsW) readCapabilities = &joyGetDevCapsW;
  decltype(&joyGetPosEx) readPosition = &joyGetPosEx;
};

JoystickCapabilities ReadCapabilities(const JoystickCalls& calls);
std::int32_t ReadStatus(const JoystickCalls& calls);

}  // namespace mortane

// What the operating system says of its first joystick.
#pragma once

#include <cstdint>

namespace mortane {

// Results of the joystick calls, with Windows' numbers; others may come as they are.
inline constexpr std::int32_t kJoystickOk = 0;
inline constexpr std::int32_t kJoystickNoDriver = 6;
inline constexpr std::int32_t kJoystickUnplugged = 167;

struct JoystickCapabilities {
  std::int32_t result = kJoystickNoDriver;
  std::int32_t buttonCount = 0;  // of use only when `result` is kJoystickOk
};

JoystickCapabilities ReadJoystickCapabilities();

// Asks for the axes and buttons once, to learn whether the joystick answers.
std::int32_t ReadJoystickStatus();

}  // namespace mortane

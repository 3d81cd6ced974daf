// The first joystick: its buttons, and whether it answers.
#pragma once

#include <cstdint>

namespace mortane {

// Results of the joystick calls, with Windows' numbers; others may come as they are.
inline constexpr std::int32_t kJoystickOk = 0;
inline constexpr std::int32_t kJoystickNoDriver = 6;
inline constexpr std::int32_t kJoystickBadParameters = 165;
inline constexpr std::int32_t kJoystickUnplugged = 167;

struct JoystickCapabilities {
  std::int32_t result = kJoystickNoDriver;
  std::int32_t buttonCount = 0;  // of use only when `result` is kJoystickOk
};

class Joystick {
 public:
  virtual ~Joystick() = default;

  virtual JoystickCapabilities ReadCapabilities() = 0;
  // Asks for the axes and buttons once, to learn whether the joystick answers.
  virtual std::int32_t ReadStatus() = 0;
};

// The operating system's first joystick.
class SystemJoystick : public Joystick {
 public:
  JoystickCapabilities ReadCapabilities() override;
  std::int32_t ReadStatus() override;
};

}  // namespace mortane

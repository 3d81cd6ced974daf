// What the program asks of the first joystick.
#pragma once

#include <cstdint>

#include "platform/Joystick.h"

namespace mortane {

// The number of the joystick's buttons; -1 when it gives none.
inline constexpr std::int32_t kNoButtonCount = -1;
std::int32_t GetJoyButtonCount(Joystick& joystick);

// 0 when the joystick answers, 1 when it is unplugged, 2 without a driver; other errors as they
// come.
std::int32_t GetJoyStatus(Joystick& joystick);

}  // namespace mortane

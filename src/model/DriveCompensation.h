// The compensation of the focus drive and of the stage, and its link to their interlocks.
#pragma once

#include <cstdint>
#include <functional>

namespace mortane {

// Modes of the compensation.
namespace compensation {
inline constexpr std::int32_t kNone = 1;
inline constexpr std::int32_t kAbsolute = 2;
inline constexpr std::int32_t kRelative = 3;

// Of a drive that follows the nosepiece, or does not.
constexpr std::int32_t ModeOf(bool follows) {
  return follows ? kRelative : kNone;
}
}  // namespace compensation

// A drive follows the nosepiece by its compensation and by its interlock. The page of either tells
// the other side what was chosen, by a function that the window gives it.
using FollowNosepiece = std::function<void(bool follows)>;

}  // namespace mortane

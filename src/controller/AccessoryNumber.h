// Numbers of the accessories, the same in the controller and in the model.
#pragma once

#include <cstdint>

namespace mortane {

// As IsMounted and the controller's interlocks use them.
namespace accessory {
inline constexpr std::int32_t kNDFilter = 1;
inline constexpr std::int32_t kDiaFieldStop = 2;
inline constexpr std::int32_t kDiaApertureStop = 3;
inline constexpr std::int32_t kDiaLamp = 4;
inline constexpr std::int32_t kCondenser = 5;
inline constexpr std::int32_t kFilterCube = 6;
inline constexpr std::int32_t kEpiShutter = 7;
inline constexpr std::int32_t kAnalyzer = 8;
inline constexpr std::int32_t kNosepiece = 9;
inline constexpr std::int32_t kOpticalZoom = 10;
inline constexpr std::int32_t kLightPath = 11;
inline constexpr std::int32_t kZFocusDrive = 12;
inline constexpr std::int32_t kEpiFieldStop = 13;
inline constexpr std::int32_t kXYStage = 14;
inline constexpr std::int32_t kCount = 14;
}  // namespace accessory

}  // namespace mortane

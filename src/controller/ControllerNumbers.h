// Numbers by which a controller names its units, their switches and buzzers, and what triggers an
// interlock. The numbers of the accessories: AccessoryNumber.h.
#pragma once

#include <cstdint>

namespace mortane {

// The units as the model counts them, from 0. Units 2 and 5 are known by their number alone, and
// nothing depends on unit 3.
namespace controllerunit {
inline constexpr std::int32_t kBody = 0;
inline constexpr std::int32_t kHub = 1;
inline constexpr std::int32_t kUnit2 = 2;
inline constexpr std::int32_t kHandController = 4;
inline constexpr std::int32_t kUnit5 = 5;
inline constexpr std::int32_t kRemote = 6;
inline constexpr std::int32_t kCount = 7;

// As ControllerPresent and ControllerVersion of the library count them.
constexpr std::int32_t NumberInLibrary(std::int32_t unit) {
  return unit + 1;
}
}  // namespace controllerunit

// As EnableSwitch and its kin, SwitchFunction and the LED use them.
namespace switchunit {
inline constexpr std::int32_t kBody = 0;
inline constexpr std::int32_t kHandController = 4;
inline constexpr std::int32_t kRemote = 7;
}  // namespace switchunit

// As BuzzerOn and its kin use them.
namespace buzzer {
inline constexpr std::int32_t kBody = 1;
inline constexpr std::int32_t kHub = 2;
inline constexpr std::int32_t kHandController = 5;
inline constexpr std::int32_t kUnit5 = 6;
}  // namespace buzzer

// As the interlocks use them.
namespace trigger {
inline constexpr std::int32_t kObservation = 1;
inline constexpr std::int32_t kOpticalZoom = 2;
inline constexpr std::int32_t kNosepiece = 3;
inline constexpr std::int32_t kLightPath = 4;
}  // namespace trigger

}  // namespace mortane

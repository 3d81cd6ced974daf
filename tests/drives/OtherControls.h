// What the tests of the other controls share.
#pragma once

#include <array>

#include "drives/DriveRig.h"

namespace mortane::test {

// Knobs and sensitivities, buzzer, switches of body, hand controller and remote, LED.
inline std::string ValuesOf(const clsControlOther& other) {
  const std::array groups{
      std::array{other.curAutoZ, other.curAutoXY, other.curSensitivityZ, other.curSensitivityXY},
      std::array{other.curBuzzer, other.curSwEnable, other.curTactorSwEnable,
                 other.curR_TLPOSwEnable}};
  std::string text;
  for (const auto& group : groups) {
    for (const std::int32_t value : group) text += std::to_string(value) + " ";
  }
  return text + std::to_string(other.curR_TLPOLED);
}

inline constexpr const char* kAllUnknown = "-1 -1 -1 -1 -1 -1 -1 -1 -1";

// Harbour without its accessories, with these controllers (0 to 6) answering.
struct UnitsRig : Rig {
  explicit UnitsRig(const std::vector<int>& controllers, bool drives = false) : Rig("Harbour") {
    SetUnits(instrument(), controllers);
    if (!drives) {
      for (int number = 1; number <= accessory::kCount; ++number) {
        Fit(instrument(), number, kNotMounted);
      }
    }
    ConnectAndReceive();
  }
};

}  // namespace mortane::test

// Versions of the controllers' firmware, by which switches can be set or not.
#pragma once

#include <cstdint>

#include "model/ConnectedMicroscope.h"

namespace mortane {

// Since this version the functions of switches can be set.
inline constexpr double kFirmwareWithSwitches = 1.3;

// A unit that cannot be asked counts as absent.
inline double FirmwareVersion(const ConnectedMicroscope& microscope, std::int32_t unit) {
  try {
    return microscope.ReadMicVer(unit);
  } catch (const Failure&) {
    return kNoVersion;
  }
}

}  // namespace mortane

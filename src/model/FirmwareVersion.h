// The version of a controller's firmware, by which functions are offered or not.
#pragma once

#include <cstdint>

#include "model/ConnectedMicroscope.h"

namespace mortane {

// From this version on the switch functions of a body or hub can be set, and a body has the escapes
// of the drives and the interlocks of ND filter and field stop after a path, and fixed knob modes.
inline constexpr double kFullFirmware = 1.3;

// As ReadMicVer; kNoVersion also for a unit that does not answer.
double FirmwareVersion(const ConnectedMicroscope& microscope, std::int32_t unit);

// Whether the functions of the switches of a unit with that version can be set: on a simulated one,
// too.
inline bool HasSwitchFunctions(double version) {
  return version == kSimulatedVersion || version >= kFullFirmware;
}

}  // namespace mortane

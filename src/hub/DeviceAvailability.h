// Whether a device can be used now.
#pragma once

#include <cstdint>

#include "controller/ControllerObject.h"

namespace mortane {

// Asks a root of its own, so that the connected one is left alone; any failure, an index outside
// the list among them, is a no.
bool IsDeviceAvailable(controller::ControllerLibrary& library, std::int32_t n);

}  // namespace mortane

#include "hub/DeviceAvailability.h"

#include "common/Failure.h"
#include "controller/Microscope.h"

namespace mortane {

bool IsDeviceAvailable(controller::ControllerLibrary& library, std::int32_t n) {
  try {
    const controller::Microscope root(library.Create("Microscope"));
    return root.DeviceList().Item(n).IsAvailable() != 0;
  } catch (const Failure&) {
    return false;
  }
}

}  // namespace mortane

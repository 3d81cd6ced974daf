#include "app/SwitchTabs.h"

#include "model/FirmwareVersion.h"

namespace mortane {

SwitchTabs FindSwitchTabs(const ConnectedMicroscope& microscope) {
  const double body = FirmwareVersion(microscope, controllerunit::kBody);
  const bool hubDecides = body == kNoVersion;
  const double version = hubDecides ? FirmwareVersion(microscope, controllerunit::kHub) : body;
  if (!HasSwitchFunctions(version)) return {};
  return {!hubDecides && microscope.Controller(controllerunit::kBody),
          microscope.Controller(controllerunit::kHandController)};
}

}  // namespace mortane

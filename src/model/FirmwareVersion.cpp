#include "model/FirmwareVersion.h"

#include "common/ErrorTrap.h"

namespace mortane {

double FirmwareVersion(const ConnectedMicroscope& microscope, std::int32_t unit) {
  double version = kNoVersion;
  ErrorTrap trap;
  trap.Run([&] { version = microscope.ReadMicVer(unit); });
  return version;
}

}  // namespace mortane

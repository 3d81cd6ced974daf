#include "app/SwitchTabs.h"

#include "common/Failure.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {
namespace {

constexpr double kFirstWithSwitches = 1.3;

double VersionOf(const ConnectedMicroscope& microscope, std::int32_t unit) {
  double version = kNoVersion;
  ErrorTrap trap;
  trap.Run([&] { version = microscope.ReadMicVer(unit); });
  return version;
}

bool HasSwitches(double version) {
  return version == kSimulatedVersion || version >= kFirstWithSwitches;
}

}  // namespace

SwitchTabs FindSwitchTabs(const ConnectedMicroscope& microscope) {
  const double body = VersionOf(microscope, controllerunit::kBody);
  const bool hubDecides = body == kNoVersion;
  if (!HasSwitches(hubDecides ? VersionOf(microscope, controllerunit::kHub) : body)) return {};
  return {!hubDecides && microscope.Controller(controllerunit::kBody),
          microscope.Controller(controllerunit::kHandController)};
}

}  // namespace mortane

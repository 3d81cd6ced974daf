#include "wizard/SetupItems.h"

#include "drives/clsControlOther.h"
#include "drives/clsControlZDrive.h"
#include "hub/clsK70.h"
#include "model/FirmwareVersion.h"

namespace mortane {
namespace {

constexpr std::int32_t kLastType = 6;
constexpr std::uint32_t kKnownTypes = TypeSet(0, 1, 2, 3, 4, 5, 6);
constexpr std::uint32_t kWithCondenser = TypeSet(0, 3, 4);
constexpr std::uint32_t kWithControls = TypeSet(0, 1, 3, 4, 5, 6);

bool HasNosepiece(clsK70& k70) {
  return k70.IsMounted(accessory::kNosepiece) != kNotMounted;
}

bool HasCubeTurret(clsK70& k70) {
  return k70.IsMounted(accessory::kFilterCube) != kNotMounted;
}

bool HasCondenser(clsK70& k70) {
  return k70.IsMounted(accessory::kCondenser) != kNotMounted;
}

bool HasControls(clsK70& k70) {
  return k70.COther.IsEnable();
}

bool HasInterlocks(clsK70& k70) {
  return k70.IsInterlockEnable();
}

bool HasFocusDrive(clsK70& k70) {
  return k70.CZDrive.IsEnable();
}

// Kept: a simulated hub without a body has the hand controller's tab and yet no such step.
bool HasSwitches(clsK70& k70) {
  const double body = FirmwareVersion(k70, controllerunit::kBody);
  if (HasSwitchFunctions(body)) return true;
  return k70.Controller(controllerunit::kHandController) &&
         FirmwareVersion(k70, controllerunit::kHub) >= kFullFirmware;
}

}  // namespace

const std::array<SetupItem, kSetupItemCount> kSetupItems{{
    {"Objective", kKnownTypes, HasNosepiece, true, "No nosepiece is mounted."},
    {"Filter Cube", kKnownTypes, HasCubeTurret, true, "No filter cube turret is mounted."},
    {"Condenser", kWithCondenser, HasCondenser, true,
     "No condenser is mounted, or none is set on this type of microscope."},
    {"Control", kWithControls, HasControls, false, "This microscope has no other controls."},
    {"InterLock", kWithControls, HasInterlocks, false, "This microscope has no interlocks."},
    {"Z Focus", kEveryType, HasFocusDrive, false, "This microscope has no focus drive to set."},
    {"Controller", kEveryType, HasSwitches, false,
     "The firmware of this microscope has no switches to set."},
}};

bool IsOffered(const SetupItem& item, clsK70& k70) {
  const std::int32_t type = k70.curType;
  const bool suits = item.types == kEveryType ||
                     (type >= 0 && type <= kLastType && (item.types >> type & 1U) != 0);
  return suits && item.isFound(k70);
}

}  // namespace mortane

#include "controller/Microscope.h"

#include "common/Failure.h"
#include "controller/AccessoryNumber.h"

namespace mortane::controller {

TurretDevice Microscope::Turret(std::int32_t accessoryNumber) const {
  switch (accessoryNumber) {
    case accessory::kNosepiece:
      return NosepieceDevice();
    case accessory::kFilterCube:
      return FilterCubeDevice();
    case accessory::kCondenser:
      return CondenserDevice();
    default:
      RaiseOwnFailure(kSubscriptError,
                      "Accessory " + std::to_string(accessoryNumber) + " is no turret.");
  }
}

}  // namespace mortane::controller

// A connected Harbour whose drives and nosepiece stand somewhere, for tests of real moves.
#pragma once

#include "drives/DriveRig.h"

namespace mortane::test {

// What follows the left side of a call that failed in the journal.
inline constexpr const char* kFailed = " ! LIB:80004005";

struct MotionRig : Rig {
  explicit MotionRig(std::string_view bench = "Harbour") : Rig(bench) { Connect(); }
  clsControlZDrive& z() { return units.CZDrive; }
  clsControlXYDrive& xy() { return units.CXYDrive; }
};

// Z at 400, X at -50, Y at 60, the nosepiece at address 3.
inline std::unique_ptr<MotionRig> MakeMotionRig() {
  auto rig = std::make_unique<MotionRig>();
  rig->instrument().zDrive.position = 400;
  rig->instrument().xyDrive.positionX = -50;
  rig->instrument().xyDrive.positionY = 60;
  rig->instrument().Accessory(accessory::kNosepiece).value = 3;
  return rig;
}

}  // namespace mortane::test

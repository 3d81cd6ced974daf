// The pages of the interlock area over the units of a model.
#pragma once

#include "gui/interlocks/InterlockPageUnits.h"
#include "interlocks/InterlockObservationCtl.h"
#include "interlocks/InterlockOffsetCtl.h"
#include "interlocks/InterlockOtherCtl.h"
#include "interlocks/InterlockSettingsCtl.h"

namespace mortane::test {

inline DriveFollowers FollowersOf(InterlockPageUnits& k70) {
  const auto follow = [](std::int32_t& mode) {
    return [&mode](bool follows) { mode = compensation::ModeOf(follows); };
  };
  return {follow(k70.CZDrive.curFocusCompensation), follow(k70.CXYDrive.curFocusCompensation)};
}

inline InterlockObservationCtl* MakeInterlockObservationCtl(InterlockPageUnits& k70) {
  return new InterlockObservationCtl(k70.ILObservation);
}

inline InterlockOtherCtl* MakeInterlockOtherCtl(InterlockPageUnits& k70) {
  return new InterlockOtherCtl(k70.ILOther, FollowersOf(k70));
}

inline InterlockOffsetCtl* MakeInterlockOffsetCtl(InterlockPageUnits& k70) {
  return new InterlockOffsetCtl(k70.ILOffset);
}

inline InterlockSettingsCtl* MakeInterlockSettingsCtl(InterlockPageUnits& k70) {
  return new InterlockSettingsCtl({k70.ILObservation, k70.ILOther, k70.ILOffset}, FollowersOf(k70));
}

}  // namespace mortane::test

// The fields of the drives, as their members name them.
#pragma once

#include <array>
#include <string_view>

#include "controller/simulator/InstrumentData.h"

namespace mortane::controller {

// An Order can be written only, and only to a drive that can be commanded.
enum class Access { Read, Order, Both };

template <typename Drive>
struct DriveRow {
  std::string_view member;
  std::int32_t Drive::*field;
  Access access;
};

inline constexpr std::array kZRows{
    DriveRow<ZDriveData>{"KnobSensitivity", &ZDriveData::knobSensitivity, Access::Read},
    DriveRow<ZDriveData>{"KnobAuto", &ZDriveData::knobAuto, Access::Both},
    DriveRow<ZDriveData>{"MoveProfile", &ZDriveData::moveProfile, Access::Order},
    DriveRow<ZDriveData>{"MoveOption", &ZDriveData::moveOption, Access::Order},
    DriveRow<ZDriveData>{"FocusCompensation", &ZDriveData::focusCompensation, Access::Both},
    DriveRow<ZDriveData>{"LowerLimit", &ZDriveData::lowerLimit, Access::Both},
    DriveRow<ZDriveData>{"UpperLimit", &ZDriveData::upperLimit, Access::Read},
};

inline constexpr std::array kXYRows{
    DriveRow<XYDriveData>{"KnobSensitivity", &XYDriveData::knobSensitivity, Access::Read},
    DriveRow<XYDriveData>{"KnobAuto", &XYDriveData::knobAuto, Access::Both},
    DriveRow<XYDriveData>{"MoveProfile", &XYDriveData::moveProfile, Access::Order},
    DriveRow<XYDriveData>{"FocusCompensation", &XYDriveData::focusCompensation, Access::Both},
};

}  // namespace mortane::controller

// The accessories whose proper values are compensated.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "interlocks/clsInterLockOffset.h"

namespace mortane {

struct OffsetAccessory {
  std::int32_t number;
  std::int32_t clsInterLockOffset::*value;
  controller::OffsetDevice (controller::Microscope::*device)() const;
  std::string_view word;        // in a settings file
  std::string_view difference;  // line of a value that differs
  std::string_view failed;      // line of a value that could not be written
  std::string_view caption;     // on the page
  int pageRow;                  // from the top, from 0
};

// In the order of transfers and of the settings file.
inline constexpr std::array<OffsetAccessory, 4> kOffsetAccessories{{
    {accessory::kNDFilter, &clsInterLockOffset::curND, &controller::Microscope::NDFilterDevice,
     "ND", "InterLock Offset[ND]", "InterLock Offset[ND]", "ND Filter    ( default: 0.75 )", 0},
    {accessory::kDiaFieldStop, &clsInterLockOffset::curFStop,
     &controller::Microscope::FieldStopDevice, "DiaFStop", "InterLock Offset[Dia F.Stop]",
     "InterLock Offset[Dia F.Stop]", "DIA Field Stop       ( : 1.00 )", 1},
    // Kept: a failed write of the epi field stop is reported as [Condenser].
    {accessory::kEpiFieldStop, &clsInterLockOffset::curEpiFStop,
     &controller::Microscope::EpiFieldStopDevice, "EpiFStop", "InterLock Offset[Epi F.Stop]",
     "InterLock Offset[Condenser]", "EPI Field Stop       ( : 1.00 )", 3},
    {accessory::kDiaApertureStop, &clsInterLockOffset::curAStop,
     &controller::Microscope::ApertureStopDevice, "DiaAStop", "InterLock Offset[Dia A.Stop]",
     "InterLock Offset[Dia A.Stop]", "Aperture Stop        ( : 1.00 )", 2},
}};

}  // namespace mortane

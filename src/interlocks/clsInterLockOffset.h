// The factors by which the controller multiplies the proper values of the ND filter and the stops.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

// Owned by clsK70. The controller calculates the proper values from the objective and the
// condenser. Each field is a factor's code, 0 to 9, or -1 when the accessory takes no part.
class clsInterLockOffset {
 public:
  explicit clsInterLockOffset(ConnectedMicroscope& microscope) : parent(microscope) {}

  static constexpr std::string_view kElement = "OFFSET";

  ConnectedMicroscope& parent;

  std::int32_t curND = kUnknown;        // ND filter, accessory 1
  std::int32_t curFStop = kUnknown;     // dia field stop, accessory 2
  std::int32_t curEpiFStop = kUnknown;  // epi field stop, accessory 13
  std::int32_t curAStop = kUnknown;     // dia aperture stop, accessory 3

  bool IsEnable() const;

  std::string ReadSdk();
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const;

  // An "OFFSET" element holds one accessory. Kept: one that is of no use is ignored without a word.
  std::string ReadDom(const DomNode& node);
  // Always four elements.
  void WriteDom(DomDocument& document, DomNode section) const;
};

// An accessory whose proper values are compensated.
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

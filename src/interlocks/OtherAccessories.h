// The accessories that may follow a change of the objective, of the light path or of the optical
// zoom.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "controller/AccessoryNumber.h"

namespace mortane {

// "Path" stands for what light path and zoom have in common.
struct OtherAccessory {
  static constexpr int kNoBox = -1;

  std::int32_t number;
  std::string_view word;      // in a settings file
  std::string_view line;      // in reports; empty when it does not follow the nosepiece
  std::string_view pathItem;  // in differences; empty when it follows neither light path nor zoom
  std::string_view caption;   // on the page
  int nosepieceIndex;         // place of its box in the nosepiece's frame of the page, from 0
  int pathIndex;              // the same in the frames of light path and zoom

  constexpr bool FollowsNosepiece() const { return !line.empty(); }
  constexpr bool FollowsPath() const { return !pathItem.empty(); }
};

// In the order of the accessory numbers. Kept: the zoom and the light path follow nothing, but have
// an entry each in settings files; and "Foucus" in files and reports.
inline constexpr std::array<OtherAccessory, 9> kOtherAccessories{{
    {accessory::kNDFilter, "ND", "InterLock Other[ND]", "ND Filter", "ND Filter", 0, 1},
    {accessory::kDiaFieldStop, "DiaFStop", "InterLock Other[Dia F.Stop]", "FieldStop",
     "DIA Field Stop", 1, 2},
    {accessory::kDiaApertureStop, "DiaAStop", "InterLock Other[Dia A.Stop]", "", "Aperture Stop", 3,
     OtherAccessory::kNoBox},
    {accessory::kCondenser, "Condenser", "InterLock Other[Condenser]", "", "Condenser", 2,
     OtherAccessory::kNoBox},
    {accessory::kOpticalZoom, "OpticalZoom", "", "", "", OtherAccessory::kNoBox,
     OtherAccessory::kNoBox},
    {accessory::kLightPath, "LightPath", "", "", "", OtherAccessory::kNoBox,
     OtherAccessory::kNoBox},
    {accessory::kZFocusDrive, "FoucusStage", "InterLock Other[Foucus Stage]", "", "Z Focus", 4,
     OtherAccessory::kNoBox},
    {accessory::kEpiFieldStop, "EpiFStop", "", "Epi FieldStop", "EPI Field Stop",
     OtherAccessory::kNoBox, 0},
    {accessory::kXYStage, "XYStage", "InterLock Other[XY Stage]", "", "XY Stage", 5,
     OtherAccessory::kNoBox},
}};

}  // namespace mortane

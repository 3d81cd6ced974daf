// The accessories that may follow a change of the observation method.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "controller/AccessoryNumber.h"

namespace mortane {

struct ObservationAccessory {
  std::int32_t number;
  std::string_view word;     // in a settings file
  std::string_view line;     // in reports
  std::string_view caption;  // on the page
  int pageIndex;             // place of its box on the page, from 0
  bool namedByUnits5And6;    // in reports of these controller units; those of the body name all
};

// In the order of the accessory numbers, 1 to 11.
inline constexpr std::array<ObservationAccessory, 11> kObservationAccessories{{
    {accessory::kNDFilter, "ND", "InterLock Observation[ND]", "ND Filter", 3, false},
    {accessory::kDiaFieldStop, "DiaFStop", "InterLock Observation[Dia F.Stop]", "DIA Field Stop", 5,
     false},
    {accessory::kDiaApertureStop, "DiaAStop", "InterLock Observation[Dia A.Stop]", "Aperture Stop",
     6, false},
    {accessory::kDiaLamp, "Lamp", "InterLock Observation[Lamp]", "Lamp", 0, false},
    {accessory::kCondenser, "Condenser", "InterLock Observation[Condenser]", "Condenser", 10,
     false},
    {accessory::kFilterCube, "FilterCube", "InterLock Observation[Filter Cube]", "FilterCube", 1,
     true},
    {accessory::kEpiShutter, "EpiShutter", "InterLock Observation[Epi Shutter]", "Shutter", 8,
     true},
    {accessory::kAnalyzer, "Analyzer", "InterLock Observation[Analyzer]", "Analyzer", 9, false},
    {accessory::kNosepiece, "Nosepiece", "InterLock Observation[Nosepiece]", "Nosepiece", 2, true},
    {accessory::kOpticalZoom, "OpticalZoom", "InterLock Observation[Optical Zoom]", "Zoom", 7,
     false},
    {accessory::kLightPath, "LightPath", "InterLock Observation[Light Path]", "Light Path", 4,
     false},
}};

}  // namespace mortane

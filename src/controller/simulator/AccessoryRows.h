// The accessory devices of an instrument, without its drives, as their members name them.
#pragma once

#include <array>
#include <string_view>

#include "controller/simulator/Bench.h"

namespace mortane::controller {

struct AccessoryRow {
  std::string_view member;
  int number;
  std::string_view stateMember;
  bool writable;  // whether the interface has a write of the state member
  bool hasOffset;
  TurretPlaces Instrument::*places;
};

inline constexpr std::array kAccessoryRows{
    AccessoryRow{"NosepieceDevice", accessory::kNosepiece, "Position", true, false,
                 &Instrument::nosepiece},
    AccessoryRow{"CondenserDevice", accessory::kCondenser, "Position", true, false,
                 &Instrument::condensers},
    AccessoryRow{"FilterCubeDevice", accessory::kFilterCube, "Position", true, false,
                 &Instrument::filterCubes},
    AccessoryRow{"LightPathDevice", accessory::kLightPath, "Path", false, false, nullptr},
    AccessoryRow{"AnalyzerDevice", accessory::kAnalyzer, "Position", true, false, nullptr},
    AccessoryRow{"LampDevice", accessory::kDiaLamp, "Voltage", false, false, nullptr},
    AccessoryRow{"ShutterDevice", accessory::kEpiShutter, "Position", true, false, nullptr},
    AccessoryRow{"NDFilterDevice", accessory::kNDFilter, "Position", true, true, nullptr},
    AccessoryRow{"FieldStopDevice", accessory::kDiaFieldStop, "Position", true, true, nullptr},
    AccessoryRow{"ApertureStopDevice", accessory::kDiaApertureStop, "Position", true, true,
                 nullptr},
    AccessoryRow{"EpiFieldStopDevice", accessory::kEpiFieldStop, "Position", true, true, nullptr},
    AccessoryRow{"ZoomDevice", accessory::kOpticalZoom, "Magnification", false, false, nullptr},
};

}  // namespace mortane::controller

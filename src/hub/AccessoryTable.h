// The fourteen accessories in the order of their detection, and their labels in the report.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "model/ConnectedMicroscope.h"

namespace mortane {

struct AccessoryRow {
  std::int32_t number;
  std::string_view device;       // member of the microscope
  std::string_view stateMember;  // member of the device that carries its state
  std::string_view controlLabel;
  std::string_view sensorLabel;  // for one that is sensed only or absent
};

// In the order of detection.
inline constexpr std::array<AccessoryRow, accessory::kCount> kAccessoryTable{{
    {accessory::kAnalyzer, "AnalyzerDevice", "Position", "Analyzer Control", "Analyzer Sensor"},
    {accessory::kDiaApertureStop, "ApertureStopDevice", "Position", "DIA Aperture Stop Control",
     "DIA Aperture Stop Sensor"},
    {accessory::kCondenser, "CondenserDevice", "Position", "Condenser Control", "Condenser Sensor"},
    {accessory::kEpiFieldStop, "EpiFieldStopDevice", "Position", "Epi Field Stop Control",
     "Epi Field Stop Sensor"},
    {accessory::kEpiShutter, "ShutterDevice", "Position", "Epi Shutter Control",
     "Epi Shutter Sensor"},
    {accessory::kFilterCube, "FilterCubeDevice", "Position", "Filter Cube Control",
     "Filter Cube Sensor"},
    {accessory::kDiaFieldStop, "FieldStopDevice", "Position", "DIA Field Stop Control",
     "DIA Field Stop Sensor"},
    {accessory::kDiaLamp, "LampDevice", "Voltage", "DIA Lamp Control", "DIA Lamp Sensor"},
    {accessory::kLightPath, "LightPathDevice", "Path", "LightPath Control", "LightPath Sensor"},
    {accessory::kNDFilter, "NDFilterDevice", "Position", "ND Filter Control", "ND Filter Sensor"},
    {accessory::kNosepiece, "NosepieceDevice", "Position", "Nosepiece Control", "Nosepiece Sensor"},
    {accessory::kOpticalZoom, "ZoomDevice", "Magnification", "Optical Zoom Control",
     "Optical Zoom Sensor"},
    {accessory::kZFocusDrive, "ZDriveDevice", "Position", "Z Focus Drive Control",
     "Z Focus Drive Sensor"},
    {accessory::kXYStage, "XYDriveDevice", "PositionX", "XY Stage Control", "XY Stage Sensor"},
}};

// The rows in the order of the report, which has the stage before the focus drive.
const std::array<const AccessoryRow*, accessory::kCount>& AccessoriesInReportOrder();

// The label under which the report lists an accessory with that mounted value.
inline std::string_view ReportLabel(const AccessoryRow& row, std::int32_t mounted) {
  return mounted == kControllable ? row.controlLabel : row.sensorLabel;
}

}  // namespace mortane

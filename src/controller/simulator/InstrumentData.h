// The parts of a simulated instrument, as plain data.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "controller/AccessoryNumber.h"

namespace mortane::controller {

// A controller unit. It answers when `present` is 1; any number is given as it is.
struct ControllerUnit {
  std::int32_t present = 0;
  std::string version;

  bool operator==(const ControllerUnit&) const = default;
};

// 1 on, 0 off; the controller's codes are 1, 2, 5 and 6.
struct BuzzerData {
  std::int32_t body = 0;
  std::int32_t hub = 0;
  std::int32_t handController = 0;
  std::int32_t unit5 = 0;

  bool operator==(const BuzzerData&) const = default;
};

// 1 enabled, 0 disabled; the controller's units are 0, 4 and 7. LED: 0 off, 1 dark, 2 bright.
struct SwitchData {
  std::int32_t body = 0;
  std::int32_t handController = 0;
  std::int32_t remote = 0;
  std::int32_t remoteLed = 0;

  bool operator==(const SwitchData&) const = default;
};

// `state` is 1 when the accessory is fitted. With state 0 every access but `state` fails. `value`
// is its position, voltage, path or magnification; the drives have their own fields.
struct AccessoryData {
  std::int32_t state = 0;
  bool readOnly = false;
  double value = 0;
  std::int32_t offsetCode = 0;

  bool operator==(const AccessoryData&) const = default;
};

struct TurretPlace {
  std::int32_t position = 0;
  std::int32_t code = 0;

  bool operator==(const TurretPlace&) const = default;
};

using TurretPlaces = std::vector<TurretPlace>;

// 1 micrometre per millisecond, which programs assume when they wait for a move.
inline constexpr std::int32_t kUsualSpeed = 20;

// Positions in steps of 0.05 micrometres, the speed in steps per millisecond. Knob: 1 automatic, 0
// manual; 1 coarse to 3 fine. Compensation: 1 none, 2 absolute, 3 relative. Limits: 0 is -15 mm, 1
// is -25 mm. A target outside the travel, lowestPosition to highestPosition, is refused.
struct ZDriveData {
  std::int32_t position = 0;
  std::int32_t knobAuto = 0;
  std::int32_t knobSensitivity = 1;
  std::int32_t moveProfile = 0;
  std::int32_t moveOption = 0;
  std::int32_t focusCompensation = 1;
  std::int32_t lowerLimit = 0;
  std::int32_t upperLimit = 0;
  std::int32_t speed = kUsualSpeed;
  std::optional<std::int32_t> lowestPosition;
  std::optional<std::int32_t> highestPosition;

  bool operator==(const ZDriveData&) const = default;
};

// As the Z drive. Handle: 0 right, 1 left.
struct XYDriveData {
  std::int32_t positionX = 0;
  std::int32_t positionY = 0;
  std::int32_t knobAuto = 0;
  std::int32_t knobSensitivity = 1;
  std::int32_t moveProfile = 0;
  std::int32_t focusCompensation = 1;
  std::int16_t handleMode = 0;
  std::int32_t speed = kUsualSpeed;
  std::optional<std::int32_t> lowestX;
  std::optional<std::int32_t> highestX;
  std::optional<std::int32_t> lowestY;
  std::optional<std::int32_t> highestY;

  bool operator==(const XYDriveData&) const = default;
};

// Whether one accessory follows the four triggers: 1 yes, 0 no.
struct InterlockData {
  std::int32_t byObservation = 0;
  std::int32_t byZoom = 0;
  std::int32_t byNosepiece = 0;
  std::int32_t byLightPath = 0;

  bool operator==(const InterlockData&) const = default;
};

// In the order of the trigger numbers, from 1.
inline constexpr std::array kTriggers{&InterlockData::byObservation, &InterlockData::byZoom,
                                      &InterlockData::byNosepiece, &InterlockData::byLightPath};

// Keys "1" to "G" of the body. Of the hand controller key "0", its mode, and "1" to "E".
inline constexpr std::size_t kBodySwitches = 16;
inline constexpr std::size_t kHandSwitches = 15;

}  // namespace mortane::controller

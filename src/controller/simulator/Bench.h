// A bench: the instruments of the simulated controller library, as plain data.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "controller/ControllerNumbers.h"
#include "controller/simulator/DatabaseData.h"
#include "controller/simulator/InstrumentData.h"

namespace mortane::controller {

struct Instrument {
  // The system name, up to 15 characters.
  std::string name;
  std::int32_t available = 1;
  bool busyWhenConnected = false;  // not available while it is connected

  std::array<ControllerUnit, controllerunit::kCount> units;
  BuzzerData buzzers;
  SwitchData switches;
  std::array<AccessoryData, accessory::kCount> accessories;
  TurretPlaces nosepiece;
  TurretPlaces filterCubes;
  TurretPlaces condensers;
  std::int32_t limitation = 0;
  ZDriveData zDrive;
  XYDriveData xyDrive;
  std::array<InterlockData, accessory::kCount> interlocks;
  std::int32_t escapeMode = 0;
  std::array<std::string, kBodySwitches> bodySwitches;
  std::array<std::string, kHandSwitches> handSwitches;
  DatabaseData database;

  // Units are 1 to 7, accessories 1 to 14, triggers 1 to 4.
  ControllerUnit& Unit(int unit) { return units.at(Slot(unit)); }
  AccessoryData& Accessory(int number) { return accessories.at(Slot(number)); }
  std::int32_t& Interlock(int item, int trigger) {
    return interlocks.at(Slot(item)).*kTriggers.at(Slot(trigger));
  }

  bool operator==(const Instrument&) const = default;

 private:
  static std::size_t Slot(int number) { return static_cast<std::size_t>(number) - 1; }
};

// The fiber illuminator's server. When it is not installed, its objects cannot be created.
struct FiberData {
  bool installed = false;
  bool open = false;
  bool opens = true;  // whether Open finds its device
  std::int32_t status = 0;
  std::int16_t switchEnable = 0;
  std::int16_t led = 0;
  // An Open that finds no device raises a failure; otherwise it returns and IsOpen stays false.
  bool openRaises = true;

  bool operator==(const FiberData&) const = default;
};

// The instrument at index 0 is the simulator.
struct Bench {
  std::vector<Instrument> instruments;
  FiberData fiber;

  bool operator==(const Bench&) const = default;
};

}  // namespace mortane::controller

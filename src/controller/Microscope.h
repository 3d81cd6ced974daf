// The root of the controller library, members in the library's order.
#pragma once

#include "controller/AccessoryDatabase.h"
#include "controller/ControllerNumbers.h"
#include "controller/ControllerSettings.h"
#include "controller/DeviceList.h"
#include "controller/Devices.h"

namespace mortane::controller {

// Codes of BuzzerOn and its kin are those of namespace buzzer, units of EnableSwitch and its kin
// those of switchunit; units of ControllerVersion and ControllerPresent count from 1 to 7.
class Microscope : public Proxy {
 public:
  using Proxy::Proxy;

  // Chooses the device that the other members talk to.
  void PutCurrentDevice(const DeviceEntry& entry) const { Put("CurrentDevice", entry.Object()); }
  controller::DeviceList DeviceList() const {
    return controller::DeviceList(GetObject("DeviceList"));
  }
  controller::AccessoryDatabase AccessoryDatabase() const {
    return controller::AccessoryDatabase(GetObject("AccessoryDatabase"));
  }
  controller::NosepieceDevice NosepieceDevice() const {
    return Device<controller::NosepieceDevice>("NosepieceDevice");
  }
  TurretDevice CondenserDevice() const { return Device<TurretDevice>("CondenserDevice"); }
  TurretDevice FilterCubeDevice() const { return Device<TurretDevice>("FilterCubeDevice"); }
  controller::ZDriveDevice ZDriveDevice() const {
    return Device<controller::ZDriveDevice>("ZDriveDevice");
  }
  controller::XYDriveDevice XYDriveDevice() const {
    return Device<controller::XYDriveDevice>("XYDriveDevice");
  }
  controller::LightPathDevice LightPathDevice() const {
    return Device<controller::LightPathDevice>("LightPathDevice");
  }
  PositionDevice AnalyzerDevice() const { return Device<PositionDevice>("AnalyzerDevice"); }
  controller::LampDevice LampDevice() const { return Device<controller::LampDevice>("LampDevice"); }
  PositionDevice ShutterDevice() const { return Device<PositionDevice>("ShutterDevice"); }
  OffsetDevice NDFilterDevice() const { return Device<OffsetDevice>("NDFilterDevice"); }
  OffsetDevice FieldStopDevice() const { return Device<OffsetDevice>("FieldStopDevice"); }
  OffsetDevice ApertureStopDevice() const { return Device<OffsetDevice>("ApertureStopDevice"); }
  OffsetDevice EpiFieldStopDevice() const { return Device<OffsetDevice>("EpiFieldStopDevice"); }
  controller::ZoomDevice ZoomDevice() const { return Device<controller::ZoomDevice>("ZoomDevice"); }
  void BuzzerOn(std::int32_t code) const { Call("BuzzerOn", {code}); }
  void BuzzerOff(std::int32_t code) const { Call("BuzzerOff", {code}); }
  // "vDEMO" on the simulator, otherwise a text with a "V" before the number.
  std::string ControllerVersion(std::int32_t unit) const {
    return GetText("ControllerVersion", {unit});
  }
  // Up to 15 characters.
  void PutSystemName(const std::string& name) const { Put("SystemName", name); }
  void EnableSwitch(std::int32_t unit) const { Call("EnableSwitch", {unit, 0}); }
  void DisableSwitch(std::int32_t unit) const { Call("DisableSwitch", {unit, 0}); }
  // 1 on, 0 off.
  std::int32_t BuzzerEnabled(std::int32_t code) const { return GetLong("BuzzerEnabled", {code}); }
  // 1 enabled, 0 disabled.
  std::int32_t SwitchEnabled(std::int32_t unit) const {
    return GetLong("SwitchEnabled", {unit, 0});
  }
  // 1 when the unit answers.
  std::int32_t ControllerPresent(std::int32_t unit) const {
    return GetLong("ControllerPresent", {unit});
  }
  controller::ControllerSettings ControllerSettings() const {
    return controller::ControllerSettings(GetObject("ControllerSettings"));
  }
  // A raw command of the controller, without and with an answer.
  void SendCommand(const std::string& command) const { Call("SendCommand", {command}); }
  std::string QueryCommand(const std::string& command) const {
    return ToText(Call("QueryCommand", {command}));
  }
  // 0 off, 1 dark, 2 bright.
  std::int32_t RemoteLED() const { return GetLong("RemoteLED", {switchunit::kRemote}); }
  void PutRemoteLED(std::int32_t state) const { Put("RemoteLED", state, {switchunit::kRemote}); }

  // One of the three turrets by its accessory number; another number raises a subscript failure.
  TurretDevice Turret(std::int32_t accessoryNumber) const;

  // Any of the accessory devices above by its member's name, for tables of devices.
  AccessoryDevice Accessory(std::string_view member) const {
    return Device<AccessoryDevice>(member);
  }

 private:
  template <typename Kind>
  Kind Device(std::string_view member) const {
    return Kind(GetObject(member));
  }
};

}  // namespace mortane::controller

// Accessory devices of the controller library, members in the library's order.
// Reading is a member's own name; writing is Put and the name.
#pragma once

#include <optional>

#include "controller/Proxy.h"
#include "controller/StateValue.h"

namespace mortane::controller {

// A part of every accessory device. State() is 1 when the accessory is fitted.
class AccessoryState : public Proxy {
 public:
  using Proxy::Proxy;
  std::int32_t State() const { return GetLong("State"); }
};

// What all accessory devices share.
class AccessoryDevice : public Proxy {
 public:
  using Proxy::Proxy;
  controller::AccessoryState AccessoryState() const {
    return controller::AccessoryState(GetObject("AccessoryState"));
  }
  // The member that carries the device's state: Position, Voltage, Path, ...
  StateValue StateMember(std::string_view member) const { return StateValue(Get(member)); }
};

// Turrets, analyzer, stops and shutter. Addresses count from 1; a write turns or sets.
class PositionDevice : public AccessoryDevice {
 public:
  using AccessoryDevice::AccessoryDevice;
  StateValue Position() const { return StateMember("Position"); }
  void PutPosition(std::int32_t address) const { Put("Position", address); }
};

class LampDevice : public AccessoryDevice {
 public:
  using AccessoryDevice::AccessoryDevice;
  StateValue Voltage() const { return StateMember("Voltage"); }
};

class LightPathDevice : public AccessoryDevice {
 public:
  using AccessoryDevice::AccessoryDevice;
  StateValue Path() const { return StateMember("Path"); }
};

class ZoomDevice : public AccessoryDevice {
 public:
  using AccessoryDevice::AccessoryDevice;
  StateValue Magnification() const { return StateMember("Magnification"); }
};

// ND filter and stops: the compensation code is 0 to 9.
class OffsetDevice : public PositionDevice {
 public:
  using PositionDevice::PositionDevice;
  std::int32_t OffsetCode() const { return GetLong("OffsetCode"); }
  void PutOffsetCode(std::int32_t code) const { Put("OffsetCode", code); }
};

// One address of a turret, from 1, and the database code of what is mounted there.
class TurretPosition : public Proxy {
 public:
  using Proxy::Proxy;
  std::int32_t Position() const { return GetLong("Position"); }
  std::int32_t Code() const { return GetLong("Code"); }
  void PutCode(std::int32_t code) const { Put("Code", code); }
};

// Enumerates the addresses. Each step asks the controller.
class TurretEnumerator : public Proxy {
 public:
  using Proxy::Proxy;
  // The next item; nothing at the end.
  std::optional<TurretPosition> Next() const;
};

class TurretPositions : public Proxy {
 public:
  using Proxy::Proxy;
  std::int32_t Count() const { return GetLong("Count"); }
  TurretEnumerator Enumerate() const { return TurretEnumerator(GetObject("_NewEnum")); }
};

// Filter cube turret and condenser cassette.
class TurretDevice : public PositionDevice {
 public:
  using PositionDevice::PositionDevice;
  TurretPositions Positions() const { return TurretPositions(GetObject("Positions")); }
};

class NosepieceDevice : public TurretDevice {
 public:
  using TurretDevice::TurretDevice;
  // Prepares the nosepiece before real focus moves.
  void BeginZPositioning() const { Call("BeginZPositioning"); }
  // Prepares it before it is turned, or before an XY move.
  void BeginPositioning() const { Call("BeginPositioning"); }
  // The combined code of the three nosepiece limits, 1 to 18.
  std::int32_t Limitation() const { return GetLong("Limitation"); }
  void PutLimitation(std::int32_t code) const { Put("Limitation", code); }
};

// Positions in steps of 0.05 micrometres; a write is an absolute target and starts the move.
class ZDriveDevice : public AccessoryDevice {
 public:
  using AccessoryDevice::AccessoryDevice;
  // 1 coarse, 2 medium, 3 fine.
  std::int32_t KnobSensitivity() const { return GetLong("KnobSensitivity"); }
  // 1 automatic, 0 manual.
  std::int32_t KnobAuto() const { return GetLong("KnobAuto"); }
  void PutKnobAuto(std::int32_t automatic) const { Put("KnobAuto", automatic); }
  StateValue Position() const { return StateMember("Position"); }
  void PutPosition(std::int32_t steps) const { Put("Position", steps); }
  // 9 before real moves.
  void PutMoveProfile(std::int32_t profile) const { Put("MoveProfile", profile); }
  // 0 before real moves.
  void PutMoveOption(std::int32_t option) const { Put("MoveOption", option); }
  // 1 none, 2 absolute, 3 relative.
  std::int32_t FocusCompensation() const { return GetLong("FocusCompensation"); }
  void PutFocusCompensation(std::int32_t code) const { Put("FocusCompensation", code); }
  // 0 is -15 mm, 1 is -25 mm.
  std::int32_t LowerLimit() const { return GetLong("LowerLimit"); }
  void PutLowerLimit(std::int32_t code) const { Put("LowerLimit", code); }
  std::int32_t UpperLimit() const { return GetLong("UpperLimit"); }
};

// Positions in steps of 0.05 micrometres; a write is an absolute target.
class XYDriveDevice : public AccessoryDevice {
 public:
  using AccessoryDevice::AccessoryDevice;
  // 1 coarse, 2 medium, 3 fine.
  std::int32_t KnobSensitivity() const { return GetLong("KnobSensitivity"); }
  // 1 automatic, 0 manual.
  std::int32_t KnobAuto() const { return GetLong("KnobAuto"); }
  void PutKnobAuto(std::int32_t automatic) const { Put("KnobAuto", automatic); }
  StateValue PositionX() const { return StateMember("PositionX"); }
  void PutPositionX(std::int32_t steps) const { Put("PositionX", steps); }
  StateValue PositionY() const { return StateMember("PositionY"); }
  void PutPositionY(std::int32_t steps) const { Put("PositionY", steps); }
  // 9 before real moves.
  void PutMoveProfile(std::int32_t profile) const { Put("MoveProfile", profile); }
  // 1 none, 2 absolute, 3 relative.
  std::int32_t FocusCompensation() const { return GetLong("FocusCompensation"); }
  void PutFocusCompensation(std::int32_t code) const { Put("FocusCompensation", code); }
  // The side of the XY knob: 0 right, 1 left.
  std::int16_t HandleMode() const { return GetInteger("HandleMode"); }
  void PutHandleMode(std::int16_t side) const { Put("HandleMode", side); }
};

}  // namespace mortane::controller

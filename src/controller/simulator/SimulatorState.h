// What all objects of one simulated library share: the bench, the clock and the connections.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <memory>

#include "controller/simulator/AxisMotion.h"
#include "controller/simulator/Bench.h"
#include "controller/simulator/Clock.h"
#include "controller/simulator/MemberObject.h"

namespace mortane::controller {

enum class Axis { Z, X, Y };

// The connection to one device and its moves, which are not part of the bench.
struct DeviceSession {
  bool connected = false;
  bool asynchronous = false;
  std::array<AxisMotion, 3> axes;

  AxisMotion& Motion(Axis axis) { return axes.at(static_cast<std::size_t>(axis)); }
};

struct SimulatorState {
  Bench bench;
  std::shared_ptr<Clock> clock;
  std::map<int, DeviceSession> sessions;
  std::function<void(const Bench&)> onChange;
  std::function<void()> onConnection;
  int createdRoots = 0;
  int releasedRoots = 0;

  void Changed() const {
    if (onChange) onChange(bench);
  }

  void ConnectionChanges() const {
    if (onConnection) onConnection();
  }

  // Sets a field of the bench; calls the listener when the value differs.
  template <typename Field>
  void Assign(Field& field, const Field& value) const {
    if (field == value) return;
    field = value;
    Changed();
  }
};

using SimulatorRef = std::shared_ptr<SimulatorState>;

// An object's reference to its device, by index: the bench may be changed at any time.
class DeviceLink {
 public:
  DeviceLink(SimulatorRef state, int index) : state_(std::move(state)), index_(index) {}

  SimulatorState& State() const { return *state_; }
  int Index() const { return index_; }
  DeviceSession& Session() const { return state_->sessions[index_]; }

  // Raises a failure when the bench has no such device.
  Instrument& Device() const;
  // Raises a failure unless the device is connected.
  Instrument& Connected() const;
  // Raises a failure unless that accessory is fitted as well.
  Instrument& Fitted(int accessoryNumber) const;

  template <typename Field>
  void Assign(Field& field, const Field& value) const {
    state_->Assign(field, value);
  }

 private:
  SimulatorRef state_;
  int index_;
};

}  // namespace mortane::controller

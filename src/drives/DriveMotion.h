// Real moves: what the focus drive and the stage have in common.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "model/ConnectedMicroscope.h"

namespace mortane {

// One axis of a drive in the controller, and what its operations are called in the boxes.
struct DriveAxis {
  std::string_view readName;
  std::string_view moveName;
  std::int32_t (*position)(const controller::Microscope& mic);
  void (*put)(const controller::Microscope& mic, std::int32_t steps);
};

struct AxisTarget {
  const DriveAxis& axis;
  std::int32_t steps;
};

// Positions are steps of 0.05 micrometres. A failure of the controller is shown as the operation's
// name with " Error!!" behind it; the answer is then 0 or false. Nothing is moved back.
class DriveMotion {
 public:
  explicit DriveMotion(const ConnectedMicroscope& microscope) : microscope_(microscope) {}

  // Runs the operation of that name; answers whether it succeeded.
  bool Run(std::string_view name, const std::function<void()>& operation) const;

  std::int32_t Position(const DriveAxis& axis) const;

  // Blocks until the axis has arrived. A target outside 32 bits is a failure, and nothing is
  // written.
  void Move(const DriveAxis& axis, std::int32_t delta) const;

  // Starts the axes one after the other and does not wait for them. The device is back in its
  // blocking mode when this returns, whatever failed.
  void MoveAsyncStart(std::initializer_list<AxisTarget> targets) const;

  // Waits in the library until the moves have ended. False only when that failed.
  bool IsMoveAsyncEnd() const;

  // Turns the nosepiece to an address from 1 to `lastAddress`, if it can be turned.
  void SelectNose(std::int32_t address, std::int32_t lastAddress) const;
  // 0 for a nosepiece that cannot be turned.
  std::int32_t NosePosition() const;

 private:
  controller::DeviceEntry Entry() const;
  void Start(std::initializer_list<AxisTarget> targets) const;
  void ShowError(std::string_view name) const;

  const ConnectedMicroscope& microscope_;
};

}  // namespace mortane

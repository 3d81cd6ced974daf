#include "drives/DriveMotion.h"

#include <limits>

#include "common/ErrorTrap.h"
#include "common/Failure.h"

namespace mortane {
namespace {

std::int32_t CheckedTarget(std::int32_t position, std::int32_t delta) {
  using Limits = std::numeric_limits<std::int32_t>;
  const std::int64_t target = std::int64_t{position} + delta;
  if (target < Limits::min() || target > Limits::max()) {
    RaiseOwnFailure(kOverflowError,
                    "The position " + std::to_string(target) + " lies outside 32 bits.");
  }
  return static_cast<std::int32_t>(target);
}

}  // namespace

bool DriveMotion::Run(std::string_view name, const std::function<void()>& operation) const {
  try {
    operation();
    return true;
  } catch (const Failure&) {
    ShowError(name);
    return false;
  }
}

std::int32_t DriveMotion::Position(const DriveAxis& axis) const {
  std::int32_t position = 0;
  Run(axis.readName, [&] { position = axis.position(microscope_.Mic); });
  return position;
}

void DriveMotion::Move(const DriveAxis& axis, std::int32_t delta) const {
  Run(axis.moveName,
      [&] { axis.put(microscope_.Mic, CheckedTarget(axis.position(microscope_.Mic), delta)); });
}

void DriveMotion::MoveAsyncStart(std::initializer_list<AxisTarget> targets) const {
  Run("MoveAsyncStart", [&] { Start(targets); });
}

// The blocking mode is set on an entry that is looked up anew. After any failure it is set on the
// first one as well, in silence, since the failure itself is what the person is told.
void DriveMotion::Start(std::initializer_list<AxisTarget> targets) const {
  const controller::DeviceEntry entry = Entry();
  try {
    entry.PutAsyncMode(true);
    for (const AxisTarget& target : targets) target.axis.put(microscope_.Mic, target.steps);
    Entry().PutAsyncMode(false);
  } catch (const Failure&) {
    ErrorTrap trap;
    trap.Run([&] { entry.PutAsyncMode(false); });
    throw;
  }
}

bool DriveMotion::IsMoveAsyncEnd() const {
  return Run("MoveAsyncEnd", [this] { Entry().WaitMove(); });
}

void DriveMotion::SelectNose(std::int32_t address, std::int32_t lastAddress) const {
  if (!microscope_.IsControllable(accessory::kNosepiece) || address < 1 || address > lastAddress)
    return;
  Run("SelectNose", [&] {
    microscope_.Mic.NosepieceDevice().BeginPositioning();
    microscope_.Mic.NosepieceDevice().PutPosition(address);
  });
}

std::int32_t DriveMotion::NosePosition() const {
  std::int32_t address = 0;
  if (!microscope_.IsControllable(accessory::kNosepiece)) return address;
  Run("NosePosition", [&] { address = microscope_.Mic.NosepieceDevice().Position().Number(); });
  return address;
}

controller::DeviceEntry DriveMotion::Entry() const {
  return microscope_.Mic.DeviceList().Item(microscope_.lConnectDevice);
}

void DriveMotion::ShowError(std::string_view name) const {
  microscope_.prompts().MsgBox(std::string(name) + " Error!!", box::kCritical);
}

}  // namespace mortane

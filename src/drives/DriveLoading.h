// What loading does to a drive before its page is made.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "common/Prompts.h"
#include "model/ConnectedMicroscope.h"
#include "model/DriveCompensation.h"

namespace mortane {

inline constexpr std::int32_t kTaughtAddresses = 7;

// Stands for the controls of a DrivePageCtl that is not made yet. Selecting a row asks no question,
// as on a page whose rows cannot be seen.
struct DriveLoading {
  bool real = false;               // the tick of the real moves
  int row = -1;                    // the selected one
  std::weak_ptr<const void> host;  // of the page: a box may see its end

  // As DrivePageCtl::PrepareMoves.
  template <typename Unit>
  bool PrepareMoves(const Unit& drive) {
    if (!std::exchange(real, true)) drive.MoveStart();
    if (!host.expired()) drive.MoveStart();
    return !host.expired();
  }

  // As DrivePageCtl::SetNosePosition.
  template <typename Unit>
  void SetNosePosition(const Unit& drive) {
    const std::int32_t address = drive.NosePosition();
    if (address < 1 || address > kTaughtAddresses || address - 1 == row) return;
    const HourglassScope hourglass(drive.parent.prompts());
    row = address - 1;
  }
};

}  // namespace mortane

// The connected microscope as the units see it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "common/Prompts.h"
#include "controller/AccessoryNumber.h"
#include "controller/ControllerNumbers.h"
#include "controller/Microscope.h"

namespace mortane {

// Values of IsMounted.
inline constexpr std::int32_t kNotMounted = 0;
inline constexpr std::int32_t kSensorOnly = 1;
inline constexpr std::int32_t kControllable = 2;

// A value that was not read or that does not apply.
inline constexpr std::int32_t kUnknown = -1;

// Index of the simulated microscope in the device list.
inline constexpr std::int32_t kSimulator = 0;

using controller::kSystemNameLength;

// What ReadMicVer returns for an absent unit and for the simulator.
inline constexpr double kNoVersion = -1;
inline constexpr double kSimulatedVersion = -2;

// Base of clsK70, which fills these members. Units hold a reference, `parent`, and never store
// controller objects.
class ConnectedMicroscope {
 public:
  ConnectedMicroscope(const ConnectedMicroscope&) = delete;
  ConnectedMicroscope& operator=(const ConnectedMicroscope&) = delete;

  // The root of the controller library; empty when it could not be created.
  controller::Microscope Mic;

  // Index of the connected entry in the device list; -1 when nothing is connected.
  std::int32_t lConnectDevice = -1;

  // Microscope type 0 to 6, which depends on the controller units that answer.
  std::int32_t curType = 0;

  // Whether controller unit 0 to 6 answers; false for any other index.
  bool Controller(std::int32_t index) const;

  // kNotMounted, kSensorOnly or kControllable for accessory 1 to 14; kNotMounted for others.
  std::int32_t IsMounted(std::int32_t index) const;

  // Whether accessory 1 to 14 can be driven, not only sensed.
  bool IsControllable(std::int32_t accessory) const {
    return IsMounted(accessory) == kControllable;
  }

  // Firmware version of controller unit 0 to 6, kNoVersion or kSimulatedVersion. Raises what
  // the library raises.
  double ReadMicVer(std::int32_t index) const;

  Prompts& prompts() const { return prompts_; }

 protected:
  explicit ConnectedMicroscope(Prompts& prompts) : prompts_(prompts) {}
  ~ConnectedMicroscope() = default;

  std::array<bool, controllerunit::kCount> controllers_{};
  std::array<std::int32_t, accessory::kCount> mounted_{};

 private:
  Prompts& prompts_;
};

}  // namespace mortane

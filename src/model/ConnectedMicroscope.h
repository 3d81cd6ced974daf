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

// Answers of IsMounted.
inline constexpr std::int32_t kNotMounted = 0;
inline constexpr std::int32_t kSensorOnly = 1;
inline constexpr std::int32_t kControllable = 2;

using controller::kSystemNameLength;

// Versions that ReadMicVer answers for a unit that is absent and for the simulator.
inline constexpr double kNoVersion = -1;
inline constexpr double kSimulatedVersion = -2;

// Owned as clsK70, which fills what stands here. Units keep a reference to it as `parent`, ask
// for the controller's objects anew at each use, and never keep one.
class ConnectedMicroscope {
 public:
  ConnectedMicroscope(const ConnectedMicroscope&) = delete;
  ConnectedMicroscope& operator=(const ConnectedMicroscope&) = delete;

  // The root of the controller library; empty when it could not be created.
  controller::Microscope Mic;

  // Index of the connected entry in the device list; -1 when nothing is connected.
  std::int32_t lConnectDevice = -1;

  // Microscope type 0 to 6, told by which controller units answer.
  std::int32_t curType = 0;

  // Whether controller unit 0 to 6 answers; false for any other index.
  bool Controller(std::int32_t index) const;

  // kNotMounted, kSensorOnly or kControllable for accessory 1 to 14; kNotMounted for others.
  std::int32_t IsMounted(std::int32_t index) const;

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

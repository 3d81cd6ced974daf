// The connected microscope as the units see it.
#pragma once

#include <array>
#include <cstdint>

#include "common/Prompts.h"
#include "controller/Microscope.h"

namespace mortane {

// Accessory numbers, as IsMounted and the controller's interlocks use them.
namespace accessory {
inline constexpr std::int32_t kNDFilter = 1;
inline constexpr std::int32_t kDiaFieldStop = 2;
inline constexpr std::int32_t kDiaApertureStop = 3;
inline constexpr std::int32_t kDiaLamp = 4;
inline constexpr std::int32_t kCondenser = 5;
inline constexpr std::int32_t kFilterCube = 6;
inline constexpr std::int32_t kEpiShutter = 7;
inline constexpr std::int32_t kAnalyzer = 8;
inline constexpr std::int32_t kNosepiece = 9;
inline constexpr std::int32_t kOpticalZoom = 10;
inline constexpr std::int32_t kLightPath = 11;
inline constexpr std::int32_t kZFocusDrive = 12;
inline constexpr std::int32_t kEpiFieldStop = 13;
inline constexpr std::int32_t kXYStage = 14;
inline constexpr std::int32_t kCount = 14;
}  // namespace accessory

// Answers of IsMounted.
inline constexpr std::int32_t kNotMounted = 0;
inline constexpr std::int32_t kSensorOnly = 1;
inline constexpr std::int32_t kControllable = 2;

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

  std::array<bool, 7> controllers_{};
  std::array<std::int32_t, accessory::kCount> mounted_{};

 private:
  Prompts& prompts_;
};

}  // namespace mortane

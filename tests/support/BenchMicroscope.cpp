#include "support/BenchMicroscope.h"

#include <optional>

namespace mortane::test {
namespace {

using controller::Instrument;

const controller::TurretPlaces* TurretOf(const Instrument& instrument, std::int32_t accessory) {
  switch (accessory) {
    case accessory::kNosepiece:
      return &instrument.nosepiece;
    case accessory::kFilterCube:
      return &instrument.filterCubes;
    case accessory::kCondenser:
      return &instrument.condensers;
    default:
      return nullptr;
  }
}

// Nothing for a set of controllers that is no type.
std::optional<std::int32_t> TypeOf(const ConnectedMicroscope& microscope) {
  const bool body = microscope.Controller(controllerunit::kBody);
  const bool hub = microscope.Controller(controllerunit::kHub);
  const bool unit2 = microscope.Controller(controllerunit::kUnit2);
  if (unit2) return hub ? std::nullopt : std::optional(body ? 4 : 2);
  if (body) return hub ? 3 : 0;
  if (hub) return 1;
  if (!microscope.Controller(controllerunit::kUnit5)) return std::nullopt;
  return microscope.Controller(controllerunit::kRemote) ? 6 : 5;
}

std::int32_t MountedAs(const Instrument& instrument, std::int32_t accessory) {
  const auto& data = instrument.accessories.at(static_cast<std::size_t>(accessory - 1));
  const auto* const turret = TurretOf(instrument, accessory);
  if (data.state != 1 || (turret != nullptr && turret->empty())) return kNotMounted;
  return data.readOnly ? kSensorOnly : kControllable;
}

}  // namespace

BenchMicroscope::BenchMicroscope(controller::ControllerLibrary& library,
                                 const controller::Bench& bench, Prompts& prompts)
    : ConnectedMicroscope(prompts), library_(library), bench_(bench) {
  Mic = controller::Microscope(library_.Create("Microscope"));
}

void BenchMicroscope::Connect(std::int32_t device) {
  Mic = controller::Microscope(library_.Create("Microscope"));
  const controller::DeviceEntry entry = Mic.DeviceList().Item(device);
  Mic.PutCurrentDevice(entry);
  entry.Connect();
  lConnectDevice = device;
  Detect(bench_.instruments.at(static_cast<std::size_t>(device)));
  TakeCounts();
}

void BenchMicroscope::Disconnect() {
  Mic.DeviceList().Item(lConnectDevice).Disconnect();
  lConnectDevice = -1;
}

std::string BenchMicroscope::Receive() {
  std::string failures = ReadUnits();
  TakeCounts();
  return failures;
}

void BenchMicroscope::Detect(const Instrument& instrument) {
  for (std::size_t unit = 0; unit < controllers_.size(); ++unit) {
    controllers_[unit] = instrument.units.at(unit).present == 1;
  }
  for (std::int32_t number = 1; number <= accessory::kCount; ++number) {
    mounted_[static_cast<std::size_t>(number - 1)] = MountedAs(instrument, number);
  }
  curType = TypeOf(*this).value_or(curType);
}

std::int32_t BenchMicroscope::TurretCount(std::int32_t accessory) const {
  if (lConnectDevice < 0 || IsMounted(accessory) == kNotMounted) return 0;
  const Instrument& instrument = bench_.instruments.at(static_cast<std::size_t>(lConnectDevice));
  return static_cast<std::int32_t>(TurretOf(instrument, accessory)->size());
}

}  // namespace mortane::test

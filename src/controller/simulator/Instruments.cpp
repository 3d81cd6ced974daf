#include "controller/simulator/Instruments.h"

namespace mortane::controller::instruments {

void FitAccessories(Instrument& instrument, std::initializer_list<int> numbers, Fit fit) {
  for (const int number : numbers) {
    AccessoryData& accessory = instrument.Accessory(number);
    accessory.state = 1;
    accessory.readOnly = fit == Fit::Sensed;
    accessory.value = 1;
  }
}

void FitAllAccessories(Instrument& instrument, Fit fit) {
  for (int number = 1; number <= accessory::kCount; ++number) {
    FitAccessories(instrument, {number}, fit);
  }
}

void AddUnit(Instrument& instrument, std::int32_t unit, std::string_view version) {
  instrument.Unit(controllerunit::NumberInLibrary(unit)) = {1, std::string(version)};
}

TurretPlaces Places(std::initializer_list<std::int32_t> codes) {
  TurretPlaces places;
  std::int32_t position = 0;
  for (const std::int32_t code : codes) places.push_back({++position, code});
  return places;
}

}  // namespace mortane::controller::instruments

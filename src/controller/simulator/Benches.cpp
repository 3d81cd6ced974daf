#include "controller/simulator/Benches.h"

#include <algorithm>
#include <array>

#include "common/Failure.h"
#include "controller/simulator/Instruments.h"

namespace mortane::controller::benches {
namespace {

constexpr std::string_view kCrowd = "Crowd";

struct InstrumentRow {
  std::string_view name;
  Instrument (*make)();
};

constexpr std::array kInstruments{
    InstrumentRow{"Quay", instruments::Quay},
    InstrumentRow{"Harbour", instruments::Harbour},
    InstrumentRow{"Lantern", instruments::Lantern},
    InstrumentRow{"Hub", instruments::Hub},
    InstrumentRow{"Pair", instruments::Pair},
    InstrumentRow{"Outpost", instruments::Outpost},
    InstrumentRow{"Relay", instruments::Relay},
    InstrumentRow{"Deck", instruments::Deck},
    InstrumentRow{"DeckRemote", instruments::DeckRemote},
    InstrumentRow{"Watch", instruments::Watch},
    InstrumentRow{"Shell", instruments::Shell},
    InstrumentRow{"Hollow", instruments::Hollow},
    InstrumentRow{"Attic", instruments::Attic},
};

Instrument Renamed(Instrument instrument, std::string name) {
  instrument.name = std::move(name);
  return instrument;
}

// The names are plain, of a device that is not available, blank, and with blanks around.
std::vector<Instrument> Crowd() {
  std::vector<Instrument> devices{instruments::Quay(), Renamed(instruments::Harbour(), "Alpha"),
                                  Renamed(instruments::Harbour(), "Beta"),
                                  Renamed(instruments::Lantern(), "   "),
                                  Renamed(instruments::Hub(), "  Gamma  ")};
  devices[2].available = 0;
  return devices;
}

// Only the simulator's bench has a fiber illuminator, so that it shows every device.
FiberData QuayFiber() {
  FiberData fiber;
  fiber.installed = true;
  fiber.open = true;
  fiber.status = 1;
  fiber.switchEnable = 1;
  fiber.led = 2;
  return fiber;
}

}  // namespace

std::vector<std::string> Names() {
  std::vector<std::string> names;
  names.reserve(kInstruments.size() + 1);
  for (const InstrumentRow& row : kInstruments) names.emplace_back(row.name);
  names.emplace_back(kCrowd);
  return names;
}

Bench Named(std::string_view name) {
  if (name == kCrowd) return {Crowd(), {}};
  if (name == kInstruments.front().name) return {{instruments::Quay()}, QuayFiber()};
  return {{instruments::Quay(), InstrumentNamed(name)}, {}};
}

Instrument InstrumentNamed(std::string_view name) {
  const auto row = std::find_if(kInstruments.begin(), kInstruments.end(),
                                [&](const InstrumentRow& each) { return each.name == name; });
  if (row == kInstruments.end()) {
    RaiseOwnFailure(kSubscriptError, "No bench is named \"" + std::string(name) + "\".");
  }
  return row->make();
}

}  // namespace mortane::controller::benches

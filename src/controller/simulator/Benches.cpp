#include "controller/simulator/Benches.h"

#include <algorithm>
#include <array>

#include "common/Failure.h"
#include "controller/simulator/Rigs.h"

namespace mortane::controller::benches {
namespace {

constexpr std::string_view kCrowd = "Crowd";

struct RigRow {
  std::string_view name;
  Instrument (*make)();
};

constexpr std::array kRigs{
    RigRow{"Quay", rigs::Quay},
    RigRow{"Harbour", rigs::Harbour},
    RigRow{"Lantern", rigs::Lantern},
    RigRow{"Hub", rigs::Hub},
    RigRow{"Pair", rigs::Pair},
    RigRow{"Outpost", rigs::Outpost},
    RigRow{"Relay", rigs::Relay},
    RigRow{"Deck", rigs::Deck},
    RigRow{"DeckRemote", rigs::DeckRemote},
    RigRow{"Watch", rigs::Watch},
    RigRow{"Shell", rigs::Shell},
    RigRow{"Hollow", rigs::Hollow},
    RigRow{"Attic", rigs::Attic},
};

Instrument Renamed(Instrument instrument, std::string name) {
  instrument.name = std::move(name);
  return instrument;
}

// Names as a list may hold them: plain, of a device that is away, blank, with blanks around.
std::vector<Instrument> Crowd() {
  std::vector<Instrument> devices{rigs::Quay(), Renamed(rigs::Harbour(), "Alpha"),
                                  Renamed(rigs::Harbour(), "Beta"), Renamed(rigs::Lantern(), "   "),
                                  Renamed(rigs::Hub(), "  Gamma  ")};
  devices[2].available = 0;
  return devices;
}

// The only bench with a fiber illuminator: the simulator shows all that there is.
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
  names.reserve(kRigs.size() + 1);
  for (const RigRow& rig : kRigs) names.emplace_back(rig.name);
  names.emplace_back(kCrowd);
  return names;
}

Bench Named(std::string_view name) {
  if (name == kCrowd) return {Crowd(), {}};
  if (name == kRigs.front().name) return {{rigs::Quay()}, QuayFiber()};
  return {{rigs::Quay(), InstrumentNamed(name)}, {}};
}

Instrument InstrumentNamed(std::string_view name) {
  const auto rig =
      std::find_if(kRigs.begin(), kRigs.end(), [&](const RigRow& row) { return row.name == name; });
  if (rig == kRigs.end()) {
    RaiseOwnFailure(kSubscriptError, "No bench is named \"" + std::string(name) + "\".");
  }
  return rig->make();
}

}  // namespace mortane::controller::benches

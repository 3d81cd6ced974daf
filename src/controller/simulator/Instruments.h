// The instruments of the named benches, and functions that build them.
#pragma once

#include <initializer_list>
#include <string_view>

#include "controller/ControllerNumbers.h"
#include "controller/simulator/Bench.h"

namespace mortane::controller::instruments {

Instrument Quay();        // the simulator: body, hub and hand controller, all fitted
Instrument Harbour();     // body and hand controller, everything fitted and controllable
Instrument Lantern();     // old body, no condenser, some accessories only sensed
Instrument Hub();         // hub and hand controller without a body
Instrument Pair();        // body and hub that disagree on the buzzer
Instrument Outpost();     // controller unit 2 alone
Instrument Relay();       // body and controller unit 2, a stage without a nosepiece
Instrument Deck();        // controller unit 5 alone
Instrument DeckRemote();  // the same with the remote
Instrument Watch();       // everything only sensed
Instrument Shell();       // nothing answers
Instrument Hollow();      // turrets without addresses
Instrument Attic();       // odd values wherever a controller can hold them

enum class Fit { Sensed, Controllable };

// Makes these accessories, or all, fitted.
void FitAccessories(Instrument& instrument, std::initializer_list<int> numbers, Fit fit);
void FitAllAccessories(Instrument& instrument, Fit fit);

// Makes a controller unit answer; `unit` is one of controllerunit.
void AddUnit(Instrument& instrument, std::int32_t unit, std::string_view version);

// Addresses 1, 2, ... with these codes.
TurretPlaces Places(std::initializer_list<std::int32_t> codes);

// One character for each key, from the first.
template <std::size_t Count>
void SetSwitches(std::array<std::string, Count>& switches, std::string_view characters) {
  for (std::size_t i = 0; i < Count && i < characters.size(); ++i) {
    switches[i] = characters.substr(i, 1);
  }
}

}  // namespace mortane::controller::instruments

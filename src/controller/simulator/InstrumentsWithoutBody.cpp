#include "controller/simulator/DatabaseContent.h"
#include "controller/simulator/Instruments.h"

namespace mortane::controller::instruments {
namespace {

Instrument WithUnit(std::string name, std::int32_t unit) {
  Instrument instrument;
  instrument.name = std::move(name);
  AddUnit(instrument, unit, "V1.30");
  instrument.database = OrdinaryDatabase();
  return instrument;
}

}  // namespace

Instrument Hub() {
  Instrument hub = WithUnit("Hub", controllerunit::kHub);
  AddUnit(hub, controllerunit::kHandController, "V1.30");
  FitAccessories(hub,
                 {accessory::kFilterCube, accessory::kCondenser, accessory::kLightPath,
                  accessory::kOpticalZoom, accessory::kEpiFieldStop, accessory::kNDFilter,
                  accessory::kDiaFieldStop},
                 Fit::Controllable);
  hub.filterCubes = Places({2, 3, 4, 5, 6, 7, 8, 9, 10, 1});
  hub.condensers = Places({1, 2, 3, 4, 5, 6, 7});
  // There is no nosepiece: the dials drive cubes, zoom and field stop.
  SetSwitches(hub.handSwitches, "0BCKL6ODMN00000");
  return hub;
}

Instrument Outpost() {
  Instrument outpost = WithUnit("Outpost", controllerunit::kUnit2);
  FitAccessories(outpost, {accessory::kNosepiece}, Fit::Sensed);
  FitAccessories(outpost, {accessory::kFilterCube, accessory::kZFocusDrive}, Fit::Controllable);
  outpost.nosepiece = Places({1, 4, 7, 10, 14, 18});
  outpost.filterCubes = Places({2, 3, 5, 7, 8, 1});
  return outpost;
}

Instrument Deck() {
  Instrument deck = WithUnit("Deck", controllerunit::kUnit5);
  FitAccessories(
      deck,
      {accessory::kNosepiece, accessory::kFilterCube, accessory::kEpiShutter, accessory::kDiaLamp},
      Fit::Controllable);
  deck.nosepiece = Places({1, 4, 7, 10, 14, 18});
  deck.filterCubes = Places({2, 3, 5, 7, 8, 1});
  deck.buzzers.unit5 = 1;
  return deck;
}

Instrument DeckRemote() {
  Instrument deck = Deck();
  deck.name = "DeckRemote";
  AddUnit(deck, controllerunit::kRemote, "V1.30");
  deck.switches.remote = 1;
  deck.switches.remoteLed = 2;
  return deck;
}

Instrument Shell() {
  Instrument shell;
  shell.name = "Shell";
  return shell;
}

}  // namespace mortane::controller::instruments

#include "controller/simulator/DatabaseContent.h"
#include "controller/simulator/Instruments.h"

namespace mortane::controller::instruments {
namespace {

// The factory settings of the body's dials and switches, and of the hand controller in standard
// mode.
constexpr std::string_view kBodyDefaults = "33406D5012BC9A78";
constexpr std::string_view kHandDefaults = "0123P4Q5EF00000";

Instrument WithBody(std::string name, std::string_view version) {
  Instrument instrument;
  instrument.name = std::move(name);
  AddUnit(instrument, controllerunit::kBody, version);
  SetSwitches(instrument.bodySwitches, kBodyDefaults);
  instrument.database = OrdinaryDatabase();
  return instrument;
}

void SetOrdinaryOffsets(Instrument& instrument) {
  instrument.Accessory(accessory::kNDFilter).offsetCode = 5;
}

// Drives whose compensation and interlock agree, and a few interlocks of each kind.
void SetRelativeCompensation(Instrument& instrument) {
  instrument.zDrive.focusCompensation = 3;
  instrument.xyDrive.focusCompensation = 3;
  instrument.Interlock(accessory::kZFocusDrive, trigger::kNosepiece) = 1;
  instrument.Interlock(accessory::kXYStage, trigger::kNosepiece) = 1;
  instrument.Interlock(accessory::kDiaLamp, trigger::kObservation) = 1;
  instrument.Interlock(accessory::kFilterCube, trigger::kObservation) = 1;
  instrument.Interlock(accessory::kCondenser, trigger::kObservation) = 1;
  instrument.Interlock(accessory::kNDFilter, trigger::kNosepiece) = 1;
  instrument.Interlock(accessory::kDiaApertureStop, trigger::kNosepiece) = 1;
  instrument.Interlock(accessory::kEpiFieldStop, trigger::kLightPath) = 1;
  instrument.Interlock(accessory::kDiaFieldStop, trigger::kOpticalZoom) = 1;
}

}  // namespace

Instrument Quay() {
  constexpr std::string_view kVersion = "vDEMO";
  Instrument quay = WithBody("Lab 2 East", kVersion);
  AddUnit(quay, controllerunit::kHub, kVersion);
  AddUnit(quay, controllerunit::kHandController, kVersion);
  FitAllAccessories(quay, Fit::Controllable);
  quay.Accessory(accessory::kDiaLamp).value = 9;
  quay.Accessory(accessory::kOpticalZoom).value = 1.5;
  quay.nosepiece = Places({2, 5, 8, 12, 15, 241});
  quay.filterCubes = Places({2, 3, 4, 6, 9, 1});
  quay.condensers = Places({1, 2, 3, 9, 5, 6, 7});
  quay.limitation = 12;
  quay.escapeMode = 3;
  SetRelativeCompensation(quay);
  SetOrdinaryOffsets(quay);
  quay.buzzers = {1, 1, 1, 0};
  quay.switches.body = 1;
  quay.switches.handController = 1;
  quay.zDrive.position = 12000;
  quay.zDrive.knobAuto = 1;
  quay.xyDrive.positionX = 41500;
  quay.xyDrive.positionY = -26800;
  quay.xyDrive.knobSensitivity = 3;
  // The speed-change functions agree with the knobs: only the stage knob has one.
  SetSwitches(quay.bodySwitches, "OP406D5012BC9A78");
  SetSwitches(quay.handSwitches, "1124PQ5DBCfghij");
  return quay;
}

Instrument Harbour() {
  Instrument harbour = WithBody("Harbour", "V1.31");
  AddUnit(harbour, controllerunit::kHandController, "V1.30");
  FitAllAccessories(harbour, Fit::Controllable);
  harbour.nosepiece = Places({1, 4, 7, 10, 14, 18});
  harbour.filterCubes = Places({2, 3, 5, 7, 8, 1});
  harbour.condensers = Places({1, 2, 3, 4, 5, 6, 7});
  harbour.limitation = 1;
  harbour.escapeMode = 3;
  SetRelativeCompensation(harbour);
  SetOrdinaryOffsets(harbour);
  harbour.buzzers.body = 1;
  harbour.buzzers.handController = 1;
  harbour.switches.body = 1;
  harbour.switches.handController = 1;
  SetSwitches(harbour.handSwitches, kHandDefaults);
  return harbour;
}

Instrument Lantern() {
  Instrument lantern = WithBody("Lantern", "V1.20");
  FitAllAccessories(lantern, Fit::Controllable);
  lantern.Accessory(accessory::kCondenser) = {};
  lantern.Accessory(accessory::kEpiFieldStop) = {};
  FitAccessories(lantern, {accessory::kLightPath, accessory::kOpticalZoom, accessory::kXYStage},
                 Fit::Sensed);
  lantern.nosepiece = Places({1, 4, 7, 10, 14});
  lantern.filterCubes = Places({2, 3, 5, 7, 1});
  lantern.escapeMode = 1;
  lantern.zDrive.knobSensitivity = 2;
  lantern.zDrive.lowerLimit = 1;
  lantern.zDrive.upperLimit = 0;
  return lantern;
}

Instrument Pair() {
  Instrument pair = WithBody("Pair", "V1.30");
  AddUnit(pair, controllerunit::kHub, "V1.30");
  FitAccessories(pair, {accessory::kNosepiece, accessory::kFilterCube, accessory::kXYStage},
                 Fit::Controllable);
  FitAccessories(pair, {accessory::kZFocusDrive, accessory::kCondenser}, Fit::Sensed);
  pair.nosepiece = Places({1, 4, 7, 10, 14, 18, 20});
  pair.filterCubes = Places({2, 3, 5, 7, 8, 4, 1});
  pair.condensers = Places({1, 2, 3, 4, 5});
  pair.buzzers.body = 1;
  pair.xyDrive.knobAuto = 1;
  return pair;
}

Instrument Relay() {
  Instrument relay = WithBody("Relay", "V1.3");
  AddUnit(relay, controllerunit::kUnit2, "V1.3");
  AddUnit(relay, controllerunit::kHandController, "V1.3");
  FitAccessories(relay, {accessory::kXYStage, accessory::kZFocusDrive}, Fit::Controllable);
  FitAccessories(relay, {accessory::kCondenser}, Fit::Sensed);
  relay.condensers = Places({1, 2, 3, 4, 5, 6, 7});
  SetSwitches(relay.handSwitches, kHandDefaults);
  return relay;
}

Instrument Watch() {
  Instrument watch = WithBody("Watch", "V1.30");
  FitAllAccessories(watch, Fit::Sensed);
  watch.nosepiece = Places({1, 4, 7, 10, 14});
  watch.filterCubes = Places({2, 3, 5, 7, 1});
  watch.condensers = Places({1, 2, 3, 4, 5});
  return watch;
}

Instrument Hollow() {
  Instrument hollow = WithBody("Hollow", "V1.30");
  FitAllAccessories(hollow, Fit::Controllable);
  hollow.Accessory(accessory::kXYStage) = {};
  return hollow;
}

}  // namespace mortane::controller::instruments

// A simulated library with one root, for the tests of the controller room.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "controller/Microscope.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"

namespace mortane::controller::test {

inline Microscope NewRoot(ControllerLibrary& library) {
  return Microscope(library.Create("Microscope"));
}

// The root as a program gets it: the device chosen and connected.
inline Microscope ConnectedRoot(ControllerLibrary& library, std::int32_t index = 0) {
  Microscope root = NewRoot(library);
  root.PutCurrentDevice(root.DeviceList().Item(index));
  root.DeviceList().Item(index).Connect();
  return root;
}

// One instrument at index 0, connected.
struct SimulatedRig {
  explicit SimulatedRig(Instrument instrument) : library(Bench{{std::move(instrument)}, {}}) {}
  explicit SimulatedRig(std::string_view name) : SimulatedRig(benches::InstrumentNamed(name)) {}

  Instrument& instrument() { return library.bench().instruments.front(); }

  SimulatedLibrary library;
  Microscope root = ConnectedRoot(library);
  int changes = 0;

  void CountChanges() {
    library.OnChange([this](const Bench&) { ++changes; });
  }
};

}  // namespace mortane::controller::test

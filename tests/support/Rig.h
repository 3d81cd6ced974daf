// A microscope model on a simulated instrument, with every double that a core test needs.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "controller/Faults.h"
#include "controller/Journal.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "hub/clsK70.h"
#include "support/ScriptedPrompts.h"

namespace mortane::test {

using controller::Bench;
using controller::Instrument;
namespace benches = controller::benches;

// A device list of named instruments.
inline Bench List(std::initializer_list<std::string_view> names) {
  Bench bench;
  for (const std::string_view name : names) {
    bench.instruments.push_back(benches::InstrumentNamed(name));
  }
  return bench;
}

// The library as the program sees it: simulator, then faults, then the journal, so that the
// journal shows failed calls too. Faults and journal may be set up before the model is made.
struct RigLibrary {
  explicit RigLibrary(Bench bench) : simulated(std::move(bench)) {}

  controller::SimulatedLibrary simulated;
  controller::FaultPlan faults;
  controller::FaultyLibrary faulty{simulated, faults};
  controller::Journal journal;
  controller::JournalLibrary library{faulty, journal};
  ScriptedPrompts prompts;
};

// With the model made, and nothing connected yet.
struct Rig : RigLibrary {
  explicit Rig(Bench bench) : RigLibrary(std::move(bench)) {
    k70.Initialize();
    journal.Clear();
  }
  explicit Rig(std::string_view benchName) : Rig(benches::Named(benchName)) {}

  // Connects the instrument that a named bench is about: the last of its list.
  void Connect() {
    const auto last = static_cast<std::int32_t>(simulated.bench().instruments.size()) - 1;
    ASSERT_TRUE(k70.Connect(last));
    journal.Clear();
  }
  void ConnectAndReceive() {
    Connect();
    k70.Receive();
    journal.Clear();
  }
  Instrument& instrument() { return simulated.bench().instruments.back(); }

  clsK70 k70{library, prompts};
};

}  // namespace mortane::test

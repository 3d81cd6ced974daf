// The controller library as the program sees it, with every double that a core test needs.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controller/Faults.h"
#include "controller/Journal.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
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

// Simulator, then faults, then the journal, so that the journal shows failed calls too. Faults and
// journal may be set up before the model is made.
struct RigLibrary {
  explicit RigLibrary(Bench bench) : simulated(std::move(bench)) {}

  // The instrument that a named bench is about: the last of its list.
  Instrument& instrument() { return simulated.bench().instruments.back(); }
  std::int32_t LastDevice() {
    return static_cast<std::int32_t>(simulated.bench().instruments.size()) - 1;
  }

  controller::SimulatedLibrary simulated;
  controller::FaultPlan faults;
  controller::FaultyLibrary faulty{simulated, faults};
  controller::Journal journal;
  controller::JournalLibrary library{faulty, journal};
  ScriptedPrompts prompts;
};

}  // namespace mortane::test

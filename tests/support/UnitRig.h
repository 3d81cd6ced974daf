// The units of one room on a simulated instrument.
#pragma once

#include "support/BenchMicroscope.h"
#include "support/RigLibrary.h"

namespace mortane::test {

// `Units` derives from BenchMicroscope. Nothing is connected yet.
template <typename Units>
struct UnitRig : RigLibrary {
  explicit UnitRig(Bench bench) : RigLibrary(std::move(bench)) { journal.Clear(); }
  explicit UnitRig(std::string_view benchName) : UnitRig(benches::Named(benchName)) {}

  void Connect() {
    units.Connect(LastDevice());
    journal.Clear();
  }
  void ConnectAndReceive() {
    Connect();
    EXPECT_EQ(units.Receive(), "");
    journal.Clear();
  }

  Units units{library, simulated.bench(), prompts};
};

}  // namespace mortane::test

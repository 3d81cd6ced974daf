// The microscope object with all its units on a simulated instrument: for the hub and the windows.
// Tests of one room have its units alone, on a UnitRig.
#pragma once

#include "hub/clsK70.h"
#include "support/RigLibrary.h"

namespace mortane::test {

// With the model made, and nothing connected yet.
struct Rig : RigLibrary {
  explicit Rig(Bench bench) : RigLibrary(std::move(bench)) {
    k70.Initialize();
    journal.Clear();
  }
  explicit Rig(std::string_view benchName) : Rig(benches::Named(benchName)) {}

  void Connect() {
    ASSERT_TRUE(k70.Connect(LastDevice()));
    journal.Clear();
  }
  void ConnectAndReceive() {
    Connect();
    k70.Receive();
    journal.Clear();
  }

  clsK70 k70{library, prompts};
};

}  // namespace mortane::test

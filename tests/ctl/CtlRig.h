// The program of the command line with streams, time and terminal of a test's own.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "ctl/Program.h"
#include "support/Rig.h"
#include "support/TempFolder.h"

namespace mortane::test {

using ctl::Outcome;

// Hands on every creation to a library that lives longer.
class BorrowedLibrary : public controller::ControllerLibrary {
 public:
  explicit BorrowedLibrary(controller::ControllerLibrary& library) : library_(library) {}
  controller::ObjectRef Create(std::string_view className) override {
    return library_.Create(className);
  }

 private:
  controller::ControllerLibrary& library_;
};

// The program on a bench, which plays the library that is installed. Faults and the journal see
// every call.
struct CtlRig {
  explicit CtlRig(Bench bench) : simulated(std::move(bench)) {
    surroundings.backups = folder.Path("backups");
    surroundings.library = {{}, {}, [this] { return std::make_unique<BorrowedLibrary>(library); }};
    surroundings.now = [this] { return now; };
    surroundings.sleepMilliseconds = [this](int milliseconds) {
      sleptMs += milliseconds;
      if (onSleep) onSleep();
    };
    surroundings.endAsked = [this] { return endAsked && endAsked(); };
  }
  explicit CtlRig(std::string_view benchName) : CtlRig(benches::Named(benchName)) {}

  Outcome Run(const std::vector<std::string>& arguments) {
    out.str({});
    out.clear();
    err.str({});
    return ctl::Run(arguments, surroundings);
  }
  std::string Out() const { return out.str(); }
  std::string Err() const { return err.str(); }
  std::ptrdiff_t ErrLines() const {
    const std::string text = Err();
    return std::count(text.begin(), text.end(), '\n');
  }
  // What was written since the journal was cleared, but for the connection itself.
  std::vector<std::string> Written() const {
    std::vector<std::string> lines = journal.Writes();
    std::erase_if(lines, [](const std::string& line) {
      return line.starts_with("CurrentDevice = ") || line.find("onnect()") != std::string::npos;
    });
    return lines;
  }
  // The instrument that a named bench is about.
  Instrument& instrument() { return simulated.bench().instruments.back(); }
  // What the program would read from it, in a file.
  std::string Received(std::string_view name) {
    std::string path = folder.Path(name);
    EXPECT_EQ(Run({"receive", "-o", path}), Outcome::Done) << Err();
    return path;
  }

  TempFolder folder;
  controller::SimulatedLibrary simulated;
  controller::FaultPlan faults;
  controller::FaultyLibrary faulty{simulated, faults};
  controller::Journal journal;
  controller::JournalLibrary library{faulty, journal};
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  BackupTime now{std::chrono::sys_days{std::chrono::year{2026} / 11 / 22}};
  int sleptMs = 0;
  std::function<void()> onSleep;
  std::function<bool()> endAsked;
  ctl::Surroundings surroundings{in, out, err};
};

}  // namespace mortane::test

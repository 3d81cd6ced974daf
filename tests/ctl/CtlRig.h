// The program of the command line with streams, time and terminal of a test's own.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "controller/CallLine.h"
#include "controller/ControllerError.h"
#include "ctl/Program.h"
#include "record/ConfigurationItems.h"
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

// From one call on nothing answers any more.
class LostLibrary : public controller::DecoratedLibrary {
 public:
  // Whether the first call without an answer still reached the device.
  enum class Last { Missed, Reached };

  using DecoratedLibrary::DecoratedLibrary;
  void From(std::size_t call, Last last) {
    first_ = call;
    last_ = last;
  }
  // Which calls, counted from 1, were to change something.
  const std::vector<std::size_t>& Commands() const { return commands_; }

 protected:
  controller::Value Around(const controller::CallSite& site,
                           const controller::Proceed& proceed) override {
    const std::size_t call = ++calls_;
    if (controller::IsCommand(site)) commands_.push_back(call);
    if (call < first_) return proceed();
    if (call == first_ && last_ == Last::Reached) proceed();
    throw controller::ControllerError("LIB", -2147467259, "The device does not answer.");
  }
  controller::Value AroundNumber(const std::string& /*path*/,
                                 const controller::Proceed& proceed) override {
    if (calls_ < first_) return proceed();
    throw controller::ControllerError("LIB", -2147467259, "The device does not answer.");
  }

 private:
  std::size_t calls_ = 0;
  std::vector<std::size_t> commands_;
  std::size_t first_ = static_cast<std::size_t>(-1);
  Last last_ = Last::Missed;
};

// A path as a text of JSON has it.
std::string InJson(const std::string& path);

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
  // The keys in a list of the last answer, which was JSON.
  std::vector<ItemKey> Reported(const std::string& list) const;
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
  LostLibrary lost{faulty};
  controller::Journal journal;
  controller::JournalLibrary library{lost, journal};
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

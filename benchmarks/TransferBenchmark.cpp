// Receive, Send and Modify on the simulated microscope: calls made, and the program's own time.
#include <benchmark/benchmark.h>

#include <chrono>

#include "SilentPrompts.h"
#include "controller/Journal.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "hub/clsK70.h"

namespace mortane {
namespace {

using Clock = std::chrono::steady_clock;
using controller::Args;
using controller::ObjectRef;
using controller::Value;

// Adds up the time that is spent inside the library. Wrapping an answer is left to the
// program's share, which makes that share an upper bound.
class TimedObject : public controller::ControllerObject {
 public:
  TimedObject(ObjectRef inner, Clock::duration& inLibrary)
      : inner_(std::move(inner)), inLibrary_(inLibrary) {}

  Value Get(std::string_view member, Args args) override {
    return Timed([&] { return inner_->Get(member, args); });
  }
  void Put(std::string_view member, const Value& value, Args args) override {
    const auto* object = std::get_if<ObjectRef>(&value);
    const Value plain = object == nullptr ? value : Value(Inner(*object));
    Timed([&] {
      inner_->Put(member, plain, args);
      return Value();
    });
  }
  Value Call(std::string_view member, Args args) override {
    return Timed([&] { return inner_->Call(member, args); });
  }

 private:
  static ObjectRef Inner(const ObjectRef& object) {
    const auto* timed = dynamic_cast<const TimedObject*>(object.get());
    return timed == nullptr ? object : timed->inner_;
  }

  template <typename Step>
  Value Timed(Step step) {
    const Clock::time_point start = Clock::now();
    Value answer = step();
    inLibrary_ += Clock::now() - start;
    if (const auto* object = std::get_if<ObjectRef>(&answer); object != nullptr && *object) {
      return ObjectRef(std::make_shared<TimedObject>(*object, inLibrary_));
    }
    return answer;
  }

  ObjectRef inner_;
  Clock::duration& inLibrary_;
};

class TimedLibrary : public controller::ControllerLibrary {
 public:
  explicit TimedLibrary(controller::ControllerLibrary& inner) : inner_(inner) {}
  ObjectRef Create(std::string_view className) override {
    return std::make_shared<TimedObject>(inner_.Create(className), inLibrary);
  }

  Clock::duration inLibrary{};

 private:
  controller::ControllerLibrary& inner_;
};

using Transfer = void (*)(clsK70&);

std::size_t CountCalls(Transfer transfer) {
  controller::SimulatedLibrary simulated(controller::benches::Named("Quay"));
  controller::Journal journal;
  controller::JournalLibrary library(simulated, journal);
  SilentPrompts prompts;
  clsK70 k70(library, prompts);
  k70.Initialize();
  k70.Connect(0);
  k70.Receive();
  journal.Clear();
  transfer(k70);
  return journal.CallCount();
}

void MeasureTransfer(benchmark::State& state, Transfer transfer) {
  controller::SimulatedLibrary simulated(controller::benches::Named("Quay"));
  TimedLibrary library(simulated);
  SilentPrompts prompts;
  clsK70 k70(library, prompts);
  k70.Initialize();
  k70.Connect(0);
  k70.Receive();
  library.inLibrary = {};
  Clock::duration total{};
  for ([[maybe_unused]] auto _ : state) {
    const Clock::time_point start = Clock::now();
    transfer(k70);
    total += Clock::now() - start;
  }
  const auto calls = static_cast<double>(CountCalls(transfer));
  const double own = std::chrono::duration<double, std::nano>(total - library.inLibrary).count();
  state.counters["calls"] = calls;
  state.counters["own_ns_per_call"] = own / calls / static_cast<double>(state.iterations());
}

BENCHMARK_CAPTURE(MeasureTransfer, Receive, [](clsK70& k70) { k70.Receive(); });
BENCHMARK_CAPTURE(MeasureTransfer, Send, [](clsK70& k70) { k70.Send(); });
BENCHMARK_CAPTURE(MeasureTransfer, Modify, [](clsK70& k70) { k70.Modify(); });

}  // namespace
}  // namespace mortane

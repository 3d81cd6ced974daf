// Comparing two configurations, and the record of the largest bench.
#include <benchmark/benchmark.h>

#include <string>

#include "SilentPrompts.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "hub/clsK70.h"
#include "record/Differences.h"
#include "record/ModelItems.h"
#include "record/Report.h"
#include "switches/clsDbSwitch.h"

namespace mortane {
namespace {

// A state of that many items, every tenth of another value than `base` gives it.
std::vector<ConfigurationItem> Items(std::int64_t count, std::int64_t base) {
  std::vector<ConfigurationItem> items;
  items.reserve(static_cast<std::size_t>(count));
  for (std::int64_t i = 0; i < count; ++i) {
    ConfigurationItem item;
    item.key = {"SWITCH", "SWITCH", std::to_string(i), "FUNCTION"};
    item.kind = ItemKind::BodySwitch;
    item.value = std::to_string(i % 10 == 0 ? base + i : i);
    items.push_back(std::move(item));
  }
  return items;
}

// A settings file has some two hundred items; the time grows with their number.
void DifferencesOfItems(benchmark::State& state) {
  const auto first = Items(state.range(0), 0);
  const auto second = Items(state.range(0), 1);
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(DifferencesOf(first, second));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(DifferencesOfItems)->RangeMultiplier(10)->Range(100, 10000)->Complexity(benchmark::oN);

// Of the benches that are read without a box the one with the most items.
struct LargestBench {
  LargestBench() {
    k70.Initialize();
    k70.Connect(1);
    k70.Receive();
  }

  controller::SimulatedLibrary library{controller::benches::Named("Harbour")};
  SilentPrompts prompts;
  clsK70 k70{library, prompts};
};

// What the windows do after each input of a person, with that many items changed: compare the model
// with its state after the last Receive.
void ComparingTheModelWithItsStateBefore(benchmark::State& state) {
  LargestBench bench;
  const std::vector<ConfigurationItem> held = ItemsOf(bench.k70);
  const auto changed = static_cast<std::int16_t>(state.range(0));
  for (std::int16_t i = 1; i <= changed; ++i) bench.k70.curSwitch.Func(i, 40);
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(DifferencesOf(held, ItemsOf(bench.k70)));
}
BENCHMARK(ComparingTheModelWithItsStateBefore)->Arg(0)->Arg(1)->Arg(16);

// All items changed.
ReportContent LargestContent() {
  LargestBench bench;
  clsK70& k70 = bench.k70;
  ReportContent content{StateOf(k70),      {}, "Harbour", "2026-11-22 05:12:33 +0100", "1.0",
                        AccessoriesOf(k70)};
  content.before = content.state;
  for (ConfigurationItem& item : content.before->items) item.value += "1";
  return content;
}

template <std::string (*Form)(const ReportContent&)>
void RecordOfTheLargestBench(benchmark::State& state) {
  const ReportContent content = LargestContent();
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(Form(content));
}
BENCHMARK(RecordOfTheLargestBench<ReportAsHtml>)->Name("RecordAsHtml");
BENCHMARK(RecordOfTheLargestBench<ReportAsText>)->Name("RecordAsText");

}  // namespace
}  // namespace mortane

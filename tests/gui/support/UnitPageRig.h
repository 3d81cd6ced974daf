// A page on the units of its area.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "gui/support/PageWindow.h"
#include "support/BenchMicroscope.h"

namespace mortane::test {

// `Units` derives from BenchMicroscope.
template <typename Units>
class UnitPageRig : public PageWindow {
 public:
  // Connects the last instrument of the bench and receives, or leaves the units as they are made.
  explicit UnitPageRig(Bench bench, Link link = Link::Received) : PageWindow(std::move(bench)) {
    if (link != Link::None) {
      prompts.AcceptAnyBox(link == Link::Reported);
      units_.Connect(LastDevice());
      const std::string failures = units_.Receive();
      EXPECT_TRUE(link == Link::Reported || failures.empty()) << failures;
      prompts.AcceptAnyBox(false);
      prompts.ClearRecords();
    }
    journal.Clear();
  }
  explicit UnitPageRig(std::string_view benchName, Link link = Link::Received)
      : UnitPageRig(benches::Named(benchName), link) {}
  ~UnitPageRig() override { CloseWindow(); }

  // The microscope with the units.
  Units& k70() { return units_; }
  ConnectedMicroscope& microscope() override { return units_; }

 private:
  Units units_{library, simulated.bench(), prompts};
};

}  // namespace mortane::test

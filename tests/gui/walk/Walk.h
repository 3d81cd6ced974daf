// A random walk over a window on a bench, and what must hold after each of its events.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mortane::test {

enum class WalkedWindow { Main, Wizard };

struct WalkPlan {
  WalkedWindow window = WalkedWindow::Main;
  std::string bench;
  std::uint32_t seed = 1;
  int events = 0;
};

// The walk opens and saves files, those of other microscopes and broken ones among them; calls fail
// and take their time, with input that comes meanwhile; a second copy of the program works with
// other devices; a window that has closed is started anew. After each event only the control that
// was worked, or the command that was given, has changed the model and made calls; no setting is
// out of its range; no box is unknown.
//
// Gives what did not hold, at most ten lines, each with the event; the walk goes on behind it. The
// same plan makes the same walk but for what depends on real time: a row that is searched by
// letters, and when unsent edits are kept.
std::vector<std::string> Walk(const WalkPlan& plan);

}  // namespace mortane::test

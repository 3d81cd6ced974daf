// The named benches: instruments that together reach every branch of a set-up program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controller/simulator/Bench.h"

namespace mortane::controller::benches {

// "Quay" is the simulator alone; every other instrument stands at index 1 above it; "Crowd" is
// the simulator and four more, one of them not available.
std::vector<std::string> Names();

// Raises a failure for a name that is none of Names().
Bench Named(std::string_view name);

// One of the instruments alone: every name but "Crowd".
Instrument InstrumentNamed(std::string_view name);

}  // namespace mortane::controller::benches

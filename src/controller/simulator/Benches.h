// The named benches. Together they reach every branch of a set-up program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controller/simulator/Bench.h"

namespace mortane::controller::benches {

// "Quay" is the simulator alone. Every other bench has the simulator at index 0 and its instrument
// at index 1. "Crowd" is the simulator and four more, one of them not available.
std::vector<std::string> Names();

// Raises a failure for a name that is none of Names().
Bench Named(std::string_view name);

// One instrument by its name; any name but "Crowd".
Instrument InstrumentNamed(std::string_view name);

}  // namespace mortane::controller::benches

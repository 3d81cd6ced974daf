// Benches as files: what a device holds is there again at the next start.
#pragma once

#include <string>

#include "controller/simulator/Bench.h"

namespace mortane::controller {

// An XML file of root "Bench"; what it does not name has its default, text between the elements
// is passed over. Raises a Failure for anything wrong, its description naming the file, the
// element and what is wrong there: unknown or repeated elements and attributes, texts that are
// no numbers, values that do not fit their place, no instrument at all.
Bench ReadBenchFile(const std::string& path);

// Writes what differs from the defaults, so that reading gives an equal bench. Replaces the file
// in one step; a Failure leaves it as it was.
void WriteBenchFile(const std::string& path, const Bench& bench);

}  // namespace mortane::controller

// Benches as files, so that the next start finds what the instruments hold.
#pragma once

#include <string>

#include "controller/simulator/Bench.h"

namespace mortane::controller {

// Reads an XML file with the root "Bench". What the file does not name has its default; text
// between elements is ignored. Raises a Failure whose description names the file, the element and
// the error: an unknown or repeated element or attribute, a text that is no number, a value out of
// range, no instrument at all.
Bench ReadBenchFile(const std::string& path);

// Writes what differs from the defaults; reading gives an equal bench. Replaces the file in one
// step; after a Failure it is unchanged.
void WriteBenchFile(const std::string& path, const Bench& bench);
// The same as a text.
std::string BenchFileText(const Bench& bench);

}  // namespace mortane::controller

// Makes a bench of what a session's controller answered.
#pragma once

#include <string>
#include <vector>

#include "controller/replay/JournalReader.h"
#include "controller/simulator/Bench.h"

namespace mortane::controller {

struct SessionBench {
  Bench bench;
  // One line for each thing that the session did not tell, for which the bench has its default.
  std::vector<std::string> defaults;
};

// The instruments are as they were when the session began: of each thing the first answer counts.
// Raises a Failure that names the line for a line that is none of a journal, and one for a session
// that tells no device. A session that was cut off is taken as far as it goes, which is a line of
// the defaults.
SessionBench BenchOfSession(JournalReader& reader);

}  // namespace mortane::controller

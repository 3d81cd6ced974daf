// The program from its arguments to its exit code.
#pragma once

#include <string>
#include <vector>

#include "ctl/Outcome.h"
#include "ctl/Surroundings.h"

namespace mortane::ctl {

// `arguments` without the program's path.
Outcome Run(const std::vector<std::string>& arguments, Surroundings& surroundings);

// In the surroundings of the process. Answers the exit code.
int RunProcess(int argc, char** argv);

}  // namespace mortane::ctl

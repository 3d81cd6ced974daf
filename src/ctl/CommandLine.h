// The words of the command line, their help and their examples.
#pragma once

#include <iosfwd>
#include <string>
#include <variant>
#include <vector>

#include "ctl/Outcome.h"
#include "ctl/Request.h"

namespace mortane::ctl {

// `arguments` without the program's path. Help and version go to `out`, what is wrong to `err`; the
// outcome is then what the program ends with.
std::variant<Request, Outcome> ParseCommandLine(const std::vector<std::string>& arguments,
                                                std::ostream& out, std::ostream& err);

}  // namespace mortane::ctl

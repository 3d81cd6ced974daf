// Text from files, devices and the command line, made fit for a line on a terminal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mortane::ctl {

// Control characters as "\n", "\t" or "\x1B", and a byte that is no valid UTF-8 as "\xFF", so that
// no name breaks a line or commands a terminal. Everything else is unchanged.
std::string Shown(std::string_view text);

// The lines of a box or report, without their line breaks and without empty ones.
std::vector<std::string> LinesOf(std::string_view text);

// "1 item", "2 items".
std::string Counted(std::size_t count, std::string_view one, std::string_view many);

}  // namespace mortane::ctl

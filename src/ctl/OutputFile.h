// Where a command writes what it was asked to write.
#pragma once

#include <string>
#include <string_view>

#include "ctl/Surroundings.h"

namespace mortane::ctl {

// Replaces the file in one step, so that a failure leaves the old one; "-" is the standard output.
// Raises a Failure that names the file.
void WriteOutput(const std::string& path, std::string_view bytes, Surroundings& surroundings);

}  // namespace mortane::ctl

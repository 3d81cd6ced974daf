// Variables of the process's environment.
#pragma once

#include <string>

namespace mortane {

// In UTF-8; an empty text for a variable that is not set.
std::string EnvironmentVariable(const char* name);

}  // namespace mortane

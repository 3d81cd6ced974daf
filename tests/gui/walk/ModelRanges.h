// The ranges of what the model holds.
#pragma once

#include <string>

#include "hub/clsK70.h"

namespace mortane::test {

// The first setting that is out of its range, or nothing.
std::string OutOfRange(const clsK70& k70);

}  // namespace mortane::test

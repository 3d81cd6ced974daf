// What a screen reader finds on the objective pages of the bench "Harbour".
#pragma once

#include "gui/support/AccessibleTree.h"

namespace mortane::test {

std::vector<AccessibleControl> AccessibleNosepiece();
std::vector<AccessibleControl> AccessibleOptionalObjectives();
std::vector<AccessibleControl> AccessibleLimits();

}  // namespace mortane::test

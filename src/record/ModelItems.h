// The items of the model of a microscope.
#pragma once

#include <vector>

#include "record/ConfigurationItems.h"

namespace mortane {

class clsK70;

// What a settings file of the model would hold, with the exact values behind its texts. Raises a
// Failure for a text that XML cannot hold.
std::vector<ConfigurationItem> ItemsOf(const clsK70& k70);
// The same from `sections`, which the model has just written.
std::vector<ConfigurationItem> ItemsOf(const clsK70& k70, const DomDocument& sections);

}  // namespace mortane

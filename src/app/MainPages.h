// The pages that the main window shows.
#pragma once

#include "app/PageTable.h"

namespace mortane {

// In the order of the page buttons.
PageTable MainPages();

}  // namespace mortane

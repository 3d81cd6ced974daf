// How the programs look, and what screen readers are told.
#pragma once

#include <optional>

#include "widgets/Theme.h"

class QApplication;

namespace mortane {

// Sets the style, the palette and the accessible interfaces of our controls. Follows the system's
// scheme unless one is forced.
void ApplyTheme(QApplication& application, std::optional<Scheme> forced = {});

}  // namespace mortane

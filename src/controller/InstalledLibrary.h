// The controller library that is installed on this machine.
#pragma once

#include <memory>

#include "controller/ControllerObject.h"

namespace mortane::controller {

// Null on a system that such libraries are not made for. Raises a ControllerError when the library
// cannot give a microscope, which usually means that it is not installed.
std::unique_ptr<ControllerLibrary> OpenInstalledLibrary();

}  // namespace mortane::controller

// The controller library that is installed on this machine.
#pragma once

#include <memory>
#include <string>

#include "controller/ControllerObject.h"

namespace mortane::controller {

// Null on a system that such libraries are not made for. Raises a ControllerError when the library
// cannot give a microscope, which usually means that it is not installed.
std::unique_ptr<ControllerLibrary> OpenInstalledLibrary();

// What the system knows of that library: the class of its microscope, and its version where one is
// registered or its file tells one.
struct LibraryIdentity {
  std::string className;
  std::string version;
};
LibraryIdentity InstalledLibraryIdentity();

}  // namespace mortane::controller

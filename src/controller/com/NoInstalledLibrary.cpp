#include "controller/InstalledLibrary.h"

namespace mortane::controller {

std::unique_ptr<ControllerLibrary> OpenInstalledLibrary() {
  return nullptr;
}

LibraryIdentity InstalledLibraryIdentity() {
  return {};
}

}  // namespace mortane::controller

#include "controller/InstalledLibrary.h"

namespace mortane::controller {

std::unique_ptr<ControllerLibrary> OpenInstalledLibrary() {
  return nullptr;
}

}  // namespace mortane::controller

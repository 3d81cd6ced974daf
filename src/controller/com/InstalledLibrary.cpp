#include "controller/InstalledLibrary.h"

#include <windows.h>

#include <algorithm>
#include <string_view>

#include "controller/ControllerError.h"
#include "controller/com/ComLibrary.h"

namespace mortane::controller {
namespace {

constexpr std::string_view kRootClass = "Microscope";

std::string ProgIdOf(const std::vector<ComClass>& classes, std::string_view name) {
  const auto row = std::find_if(classes.begin(), classes.end(),
                                [&](const ComClass& known) { return known.name == name; });
  return row == classes.end() ? std::string(name) : row->progId;
}

// COM's own text for an unregistered class does not help the user.
std::string ReasonOf(const ControllerError& error) {
  const auto result = static_cast<HRESULT>(error.Number());
  const bool unknown = result == CO_E_CLASSSTRING || result == REGDB_E_CLASSNOTREG;
  return unknown ? "not registered" : error.Description();
}

}  // namespace

std::unique_ptr<ControllerLibrary> OpenInstalledLibrary() {
  const std::vector<ComClass> classes = InstalledClasses();
  auto library = std::make_unique<ComLibrary>(classes);
  try {
    library->Create(kRootClass);
  } catch (const ControllerError& error) {
    throw ControllerError(error.Source(), error.Number(),
                          ProgIdOf(classes, kRootClass) + ": " + ReasonOf(error));
  }
  return library;
}

}  // namespace mortane::controller

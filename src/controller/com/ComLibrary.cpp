#include "controller/com/ComLibrary.h"

#include <objbase.h>

#include <algorithm>
#include <array>
#include <utility>

#include "controller/com/ComError.h"
#include "controller/com/ComObject.h"
#include "controller/com/ComRoot.h"
#include "platform/Environment.h"

namespace mortane::controller {
namespace {

struct InstalledClass {
  const char* name;
  const char* progId;
  const char* variable;
};

constexpr std::array<InstalledClass, 3> kInstalledClasses{{
    {"Microscope", "LENSMIRLib.Microscope", "MORTANE_PROGID_MICROSCOPE"},
    {"FiberServer", "RAVLINCONTROLSERVERLib.FiberServer", "MORTANE_PROGID_FIBERSERVER"},
    {"FiberRemote", "RAVLINCONTROLSERVERLib.FiberRemote", "MORTANE_PROGID_FIBERREMOTE"},
}};

}  // namespace

std::vector<ComClass> InstalledClasses() {
  std::vector<ComClass> classes;
  for (const InstalledClass& row : kInstalledClasses) {
    const std::string other = EnvironmentVariable(row.variable);
    classes.push_back({row.name, other.empty() ? row.progId : other});
  }
  return classes;
}

ComLibrary::ComLibrary(std::vector<ComClass> classes, LibraryWays ways, std::wstring hostFile)
    : classes_(std::move(classes)),
      ways_(ways),
      host_(std::make_unique<HostProcess>(std::move(hostFile))),
      ids_(std::make_unique<MemberIds>()) {
  RequireSuccess(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
}

ComLibrary::~ComLibrary() {
  ids_.reset();  // holds type information
  host_.reset();
  CoUninitialize();
}

ObjectRef ComLibrary::Create(std::string_view className) {
  const auto row = std::find_if(classes_.begin(), classes_.end(),
                                [&](const ComClass& known) { return known.name == className; });
  if (row == classes_.end()) RaiseComError(REGDB_E_CLASSNOTREG);
  return std::make_shared<ComRoot>([this, row] { return MakeRoot(*row); });
}

ObjectRef ComLibrary::MakeRoot(const ComClass& row) {
  return MakeComObject(MakeByFirstWay(row.progId, ways_, *host_), *ids_);
}

}  // namespace mortane::controller

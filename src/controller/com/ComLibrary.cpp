#include "controller/com/ComLibrary.h"

#include <objbase.h>

#include <algorithm>
#include <array>
#include <utility>

#include "common/Failure.h"
#include "controller/com/ComError.h"
#include "controller/com/ComObject.h"
#include "controller/com/ComRoot.h"
#include "platform/Environment.h"
#include "platform/windows/Wide.h"

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

CLSID ClassIdOf(const std::string& progId) {
  const std::wstring text = ToWide(progId);
  CLSID id{};
  RequireSuccess(text.starts_with(L'{') ? CLSIDFromString(text.c_str(), &id)
                                        : CLSIDFromProgID(text.c_str(), &id));
  return id;
}

}  // namespace

std::vector<ComClass> InstalledClasses() {
  std::vector<ComClass> classes;
  for (const InstalledClass& row : kInstalledClasses) {
    const std::string other = EnvironmentVariable(row.variable);
    classes.push_back({row.name, other.empty() ? row.progId : other});
  }
  return classes;
}

ComLibrary::ComLibrary(std::vector<ComClass> classes)
    : classes_(std::move(classes)), ids_(std::make_unique<MemberIds>()) {
  RequireSuccess(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
}

ComLibrary::~ComLibrary() {
  ids_.reset();  // holds type information
  CoUninitialize();
}

ObjectRef ComLibrary::Create(std::string_view className) {
  const auto row = std::find_if(classes_.begin(), classes_.end(),
                                [&](const ComClass& known) { return known.name == className; });
  if (row == classes_.end()) RaiseComError(REGDB_E_CLASSNOTREG);
  return std::make_shared<ComRoot>([this, row] { return MakeRoot(*row); });
}

ObjectRef ComLibrary::MakeRoot(const ComClass& row) {
  const CLSID classId = ClassIdOf(row.progId);
  void* made = nullptr;
  RequireSuccess(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                  IID_IDispatch, &made));
  return MakeComObject(ComPointer<IDispatch>(static_cast<IDispatch*>(made)), *ids_);
}

}  // namespace mortane::controller

#include "platform/NamedMutex.h"

#include <windows.h>

#include <sddl.h>

#include "platform/windows/Handle.h"
#include "platform/windows/Wide.h"

namespace mortane {

// Every session of a user has names of its own; "Global\" has those of the machine. A device
// belongs to the machine, so the name is taken there, for users that are logged on beside each
// other. Other programs know a device by the session's name, so that is taken, too.
struct NamedMutex::Names {
  Handle machine;
  Handle session;
};

namespace {

// What opening, waiting and releasing need.
constexpr DWORD kAccess = SYNCHRONIZE | MUTEX_MODIFY_STATE;

// All to the owner and the system, kAccess to everyone: without this, opening fails for another
// user, and for the same one with a program that runs as administrator.
constexpr const wchar_t* kForEveryone = L"D:(A;;GA;;;OW)(A;;GA;;;SY)(A;;0x100001;;;WD)";

class Attributes {
 public:
  Attributes() {
    ConvertStringSecurityDescriptorToSecurityDescriptorW(kForEveryone, SDDL_REVISION_1,
                                                         &value_.lpSecurityDescriptor, nullptr);
  }
  ~Attributes() { LocalFree(value_.lpSecurityDescriptor); }
  Attributes(const Attributes&) = delete;
  Attributes& operator=(const Attributes&) = delete;

  SECURITY_ATTRIBUTES* Get() { return &value_; }

 private:
  SECURITY_ATTRIBUTES value_{sizeof(SECURITY_ATTRIBUTES), nullptr, FALSE};
};

struct Made {
  Handle mutex;
  bool existed = false;
};

Made Make(const std::string& name) {
  Attributes attributes;
  const std::wstring wide = ToWide(name);
  SetLastError(ERROR_SUCCESS);
  Handle mutex(CreateMutexExW(attributes.Get(), wide.c_str(), 0, kAccess));
  const bool existed = GetLastError() == ERROR_ALREADY_EXISTS;
  return {std::move(mutex), existed};
}

}  // namespace

NamedMutex::NamedMutex() = default;

NamedMutex::~NamedMutex() = default;

// The kernel object lives as long as any handle to it, also that of an object that came second.
NamedMutex::Opened NamedMutex::Open(std::string_view name) {
  Close();
  const std::string scoped = scope_ + std::string(name);
  Made machine = Make("Global\\" + scoped);
  Made session = Make(scoped);
  if (!machine.mutex.IsOpen() || !session.mutex.IsOpen()) return Opened::Failed;
  const bool existed = machine.existed || session.existed;
  names_ = std::make_unique<Names>(Names{std::move(machine.mutex), std::move(session.mutex)});
  return existed ? Opened::AlreadyExisted : Opened::First;
}

void NamedMutex::Close() {
  names_.reset();
}

bool NamedMutex::IsOpen() const {
  return names_ != nullptr;
}

void NamedMutex::Lock(int milliseconds) {
  if (!IsOpen()) return;
  WaitForSingleObject(names_->machine.Get(),
                      milliseconds < 0 ? INFINITE : static_cast<DWORD>(milliseconds));
}

void NamedMutex::Unlock() {
  if (IsOpen()) ReleaseMutex(names_->machine.Get());
}

}  // namespace mortane

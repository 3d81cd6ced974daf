#include "platform/NamedMutex.h"

#include "platform/windows/Handle.h"
#include "platform/windows/Wide.h"

namespace mortane {

struct NamedMutex::Handle {
  mortane::Handle mutex;
};

NamedMutex::NamedMutex() = default;

NamedMutex::~NamedMutex() = default;

// The kernel object lives as long as any handle to it, also that of an object that came second.
NamedMutex::Opened NamedMutex::Open(std::string_view name) {
  Close();
  SetLastError(ERROR_SUCCESS);
  const std::string scoped = scope_ + std::string(name);
  mortane::Handle mutex(CreateMutexW(nullptr, FALSE, ToWide(scoped).c_str()));
  if (!mutex.IsOpen()) return Opened::Failed;
  const bool existed = GetLastError() == ERROR_ALREADY_EXISTS;
  handle_ = std::make_unique<Handle>(Handle{std::move(mutex)});
  return existed ? Opened::AlreadyExisted : Opened::First;
}

void NamedMutex::Close() {
  handle_.reset();
}

bool NamedMutex::IsOpen() const {
  return handle_ != nullptr;
}

void NamedMutex::Lock(int milliseconds) {
  if (!IsOpen()) return;
  WaitForSingleObject(handle_->mutex.Get(),
                      milliseconds < 0 ? INFINITE : static_cast<DWORD>(milliseconds));
}

void NamedMutex::Unlock() {
  if (IsOpen()) ReleaseMutex(handle_->mutex.Get());
}

}  // namespace mortane

// An open Windows handle, closed with its owner.
#pragma once

#include <windows.h>

#include <utility>

namespace mortane {

class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~Handle() { Close(); }

  // CreateFile reports a failure by another value than the other calls.
  bool IsOpen() const { return handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }

  bool Close() {
    const bool open = IsOpen();
    const HANDLE handle = std::exchange(handle_, nullptr);
    return !open || CloseHandle(handle) != 0;
  }

 private:
  HANDLE handle_ = nullptr;
};

}  // namespace mortane

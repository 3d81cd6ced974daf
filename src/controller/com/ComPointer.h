// A counted reference to a COM interface.
#pragma once

#include <unknwn.h>

#include <utility>

namespace mortane::controller {

template <typename Interface>
class ComPointer {
 public:
  ComPointer() = default;
  // Takes over a reference that the caller owns.
  explicit ComPointer(Interface* owned) : interface_(owned) {}
  ComPointer(const ComPointer& other) : interface_(other.interface_) {
    if (interface_ != nullptr) interface_->AddRef();
  }
  ComPointer(ComPointer&& other) noexcept : interface_(std::exchange(other.interface_, nullptr)) {}
  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(interface_, other.interface_);
    return *this;
  }
  ~ComPointer() {
    if (interface_ != nullptr) interface_->Release();
  }

  explicit operator bool() const { return interface_ != nullptr; }
  Interface* operator->() const { return interface_; }
  Interface* get() const { return interface_; }

  // For a function that gives a reference away. Empty before the call.
  Interface** Out() {
    *this = ComPointer();
    return &interface_;
  }

  // Another interface of the same object; empty when the object has none.
  template <typename Other>
  ComPointer<Other> As() const {
    ComPointer<Other> other;
    if (interface_ != nullptr) {
      void* found = nullptr;
      if (SUCCEEDED(interface_->QueryInterface(__uuidof(Other), &found))) {
        other = ComPointer<Other>(static_cast<Other*>(found));
      }
    }
    return other;
  }

 private:
  Interface* interface_ = nullptr;
};

}  // namespace mortane::controller

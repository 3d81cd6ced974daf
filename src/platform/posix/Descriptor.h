// An open file descriptor, closed with its owner.
#pragma once

#include <unistd.h>

#include <utility>

namespace mortane {

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
  Descriptor(Descriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~Descriptor() { Close(); }

  bool IsOpen() const { return descriptor_ >= 0; }
  int Get() const { return descriptor_; }

  // Answers false when the last bytes could not be written (a quota, a network file system).
  bool Close() { return descriptor_ < 0 || ::close(std::exchange(descriptor_, -1)) == 0; }

 private:
  int descriptor_ = -1;
};

}  // namespace mortane

#include "fuzz/MemoryFile.h"

#include <sys/mman.h>
#include <unistd.h>

#include "fuzz/Promise.h"

namespace mortane {

MemoryFile::MemoryFile() : descriptor_(::memfd_create("fuzz", MFD_CLOEXEC)) {
  Require(descriptor_ >= 0, "the system gives a file in memory");
  path_ = "/proc/self/fd/" + std::to_string(descriptor_);
}

MemoryFile::~MemoryFile() {
  ::close(descriptor_);
}

void MemoryFile::Put(std::string_view bytes) {
  const auto size = static_cast<ssize_t>(bytes.size());
  Require(::ftruncate(descriptor_, 0) == 0 &&
              ::pwrite(descriptor_, bytes.data(), bytes.size(), 0) == size,
          "a file in memory can be written");
}

}  // namespace mortane

// A file without a disk, for readers that take a path.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mortane {

// Its content is replaced as often as wanted.
class MemoryFile {
 public:
  MemoryFile();
  ~MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  void Put(std::string_view bytes);
  [[nodiscard]] const std::string& Path() const { return path_; }

 private:
  int descriptor_;
  std::string path_;
};

}  // namespace mortane

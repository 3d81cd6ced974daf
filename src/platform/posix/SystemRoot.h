// Where the files of the system stand.
#pragma once

#include <string>
#include <string_view>

namespace mortane {

// Before the paths of the system's own files and folders ("/etc/os-release"). Empty in the
// programs; tests put a folder there that holds what they want the system to have.
class SystemRoot {
 public:
  static void Set(std::string_view folder) { folder_ = folder; }
  static std::string Path(std::string_view path) { return folder_ + std::string(path); }

 private:
  inline static std::string folder_;
};

}  // namespace mortane

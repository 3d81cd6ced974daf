#include "platform/Folder.h"

#include <sys/stat.h>

#include <filesystem>
#include <system_error>

namespace mortane {
namespace {

constexpr mode_t kForTheUserAlone = 0700;

bool IsFolder(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::is_directory(path, error);
}

bool Make(const std::filesystem::path& folder) {
  if (folder.empty() || IsFolder(folder)) return true;
  if (folder.has_relative_path() && !Make(folder.parent_path())) return false;
  // Another copy of the program may be quicker.
  return ::mkdir(folder.c_str(), kForTheUserAlone) == 0 || IsFolder(folder);
}

}  // namespace

bool MakeFolder(const std::string& utf8Path) {
  return !utf8Path.empty() && Make(utf8Path);
}

}  // namespace mortane

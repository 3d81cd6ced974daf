#include "platform/Folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "common/Failure.h"
#include "platform/AtomicFile.h"

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

std::vector<std::string> NamesInFolder(const std::string& utf8Path) {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(utf8Path, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    names.push_back(entry->path().filename().string());
  }
  return names;
}

void RemoveFile(const std::string& utf8Path) {
  if (::unlink(utf8Path.c_str()) == 0) return;
  const int error = errno;
  RaiseOwnFailure(error == ENOENT ? kMissingFileError : kFileError,
                  "Cannot remove " + utf8Path + ": " + std::generic_category().message(error));
}

}  // namespace mortane

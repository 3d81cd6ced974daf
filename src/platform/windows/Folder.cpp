#include "platform/Folder.h"

#include <filesystem>
#include <system_error>

#include "platform/windows/Wide.h"

namespace mortane {

bool MakeFolder(const std::string& utf8Path) {
  const std::filesystem::path folder = ToWide(utf8Path);
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return std::filesystem::is_directory(folder, error);
}

}  // namespace mortane

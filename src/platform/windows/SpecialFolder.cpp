#include "platform/SpecialFolder.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

#include "common/Text.h"
#include "platform/windows/Wide.h"

namespace mortane {

namespace {

std::string FolderOf(int folder) {
  std::array<wchar_t, MAX_PATH> path{};
  if (FAILED(SHGetFolderPathW(nullptr, folder, nullptr, 0, path.data()))) return {};
  return TruncateAtNul(ToUtf8({path.data(), path.size()}));
}

}  // namespace

std::string GetSpecialFolder(int folder) {
  return folder == kApplicationDataFolder ? FolderOf(folder) : std::string();
}

std::string UserDataFolder() {
  return GetSpecialFolder(kApplicationDataFolder);
}

std::string DocumentsFolder() {
  return FolderOf(CSIDL_PERSONAL);
}

}  // namespace mortane

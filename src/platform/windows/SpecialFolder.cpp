#include "platform/SpecialFolder.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

#include "common/Text.h"
#include "platform/windows/Wide.h"

namespace mortane {

std::string GetSpecialFolder(int folder) {
  if (folder != kApplicationDataFolder) return {};
  std::array<wchar_t, MAX_PATH> path{};
  if (FAILED(SHGetFolderPathW(nullptr, folder, nullptr, 0, path.data()))) return {};
  return TruncateAtNul(ToUtf8({path.data(), path.size()}));
}

std::string UserDataFolder() {
  return GetSpecialFolder(kApplicationDataFolder);
}

}  // namespace mortane

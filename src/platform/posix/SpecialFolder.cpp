#include "platform/SpecialFolder.h"

#include <pwd.h>
#include <unistd.h>

#include <fstream>
#include <string_view>

#include "platform/Environment.h"

namespace mortane {
namespace {

std::string HomeFolder() {
  std::string home = EnvironmentVariable("HOME");
  if (!home.empty()) return home;
  const struct passwd* user = ::getpwuid(::getuid());
  return user == nullptr || user->pw_dir == nullptr ? std::string() : std::string(user->pw_dir);
}

std::string WithoutSeparatorAtEnd(std::string folder) {
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  return folder;
}

std::string BaseFolder(const char* variable, const char* belowHome) {
  // A relative path there is invalid and to be ignored.
  const std::string configured = EnvironmentVariable(variable);
  if (configured.starts_with('/')) return WithoutSeparatorAtEnd(configured);
  const std::string home = HomeFolder();
  return home.empty() ? std::string() : WithoutSeparatorAtEnd(home) + belowHome;
}

// In the file that desktops write: XDG_DOCUMENTS_DIR="$HOME/Documents" or an absolute path.
constexpr std::string_view kDocumentsSetting = "XDG_DOCUMENTS_DIR=\"";
constexpr std::string_view kHomeVariable = "$HOME";

std::string NamedDocumentsFolder(const std::string& home) {
  std::ifstream file(GetSpecialFolder(kApplicationDataFolder) + "/user-dirs.dirs");
  std::string line;
  while (std::getline(file, line)) {
    if (!line.starts_with(kDocumentsSetting) || !line.ends_with('"')) continue;
    line = line.substr(kDocumentsSetting.size(), line.size() - kDocumentsSetting.size() - 1);
    if (line.starts_with(kHomeVariable)) line.replace(0, kHomeVariable.size(), home);
    return line;
  }
  return {};
}

}  // namespace

std::string GetSpecialFolder(int folder) {
  if (folder != kApplicationDataFolder) return {};
  return BaseFolder("XDG_CONFIG_HOME", "/.config");
}

std::string UserDataFolder() {
  return BaseFolder("XDG_DATA_HOME", "/.local/share");
}

std::string DocumentsFolder() {
  const std::string home = WithoutSeparatorAtEnd(HomeFolder());
  const std::string named = NamedDocumentsFolder(home);
  return named.starts_with('/') ? WithoutSeparatorAtEnd(named) : home;
}

}  // namespace mortane

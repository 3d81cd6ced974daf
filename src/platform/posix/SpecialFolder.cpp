#include "platform/SpecialFolder.h"

#include <pwd.h>
#include <unistd.h>

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

}  // namespace

std::string GetSpecialFolder(int folder) {
  if (folder != kApplicationDataFolder) return {};
  return BaseFolder("XDG_CONFIG_HOME", "/.config");
}

std::string UserDataFolder() {
  return BaseFolder("XDG_DATA_HOME", "/.local/share");
}

}  // namespace mortane

#include "platform/SystemDescription.h"

#include <sys/utsname.h>

#include <fstream>
#include <string_view>

#include "platform/posix/SystemRoot.h"

namespace mortane {
namespace {

constexpr char kReleaseFile[] = "/etc/os-release";
constexpr std::string_view kReleaseName = "PRETTY_NAME=";

// Empty where the file does not tell it.
std::string NameOfRelease() {
  std::ifstream file(SystemRoot::Path(kReleaseFile));
  std::string line;
  while (std::getline(file, line)) {
    if (!line.starts_with(kReleaseName)) continue;
    line.erase(0, kReleaseName.size());
    std::erase(line, '"');
    return line;
  }
  return {};
}

}  // namespace

std::string SystemDescription() {
  utsname kernel = {};
  ::uname(&kernel);
  const std::string release = NameOfRelease();
  const std::string name =
      release.empty() ? std::string(kernel.sysname) + " " + kernel.release : release;
  return name + ", " + kernel.machine;
}

}  // namespace mortane

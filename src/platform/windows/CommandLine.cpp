#include "platform/CommandLine.h"

#include <windows.h>

#include <shellapi.h>

#include "platform/windows/Wide.h"

namespace mortane {
namespace {

std::string ProgramPath() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return ToUtf8(path);
}

}  // namespace

// `argv` is in the code page of the system, which cannot hold every device's name.
std::vector<std::string> GetCommandLineArray(int /*argc*/, char** /*argv*/) {
  std::vector<std::string> arguments = {ProgramPath()};
  int count = 0;
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
  if (wide == nullptr) return arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(ToUtf8(wide[i]));
  LocalFree(wide);
  return arguments;
}

}  // namespace mortane

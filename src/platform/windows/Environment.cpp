#include "platform/Environment.h"

#include <windows.h>

#include "platform/windows/Wide.h"

namespace mortane {

// The run-time library's own copy is in the code page of the system, which cannot hold every path.
std::string EnvironmentVariable(const char* name) {
  const std::wstring wideName = ToWide(name);
  std::wstring value;
  DWORD length = GetEnvironmentVariableW(wideName.c_str(), nullptr, 0);
  // The answer counts the NUL at the end while the room is too small, and else does not.
  while (length > value.size()) {
    value.resize(length);
    length = GetEnvironmentVariableW(wideName.c_str(), value.data(), length);
  }
  value.resize(length);
  return ToUtf8(value);
}

}  // namespace mortane

#include "platform/StartNotice.h"

#include <windows.h>

#include <string>

#include "platform/windows/Wide.h"

namespace mortane {

void ShowStartNotice(const std::string& program, const std::string& text) {
  const HANDLE errors = GetStdHandle(STD_ERROR_HANDLE);
  if (errors == nullptr || errors == INVALID_HANDLE_VALUE) {
    MessageBoxW(nullptr, ToWide(text).c_str(), ToWide(program).c_str(), MB_OK | MB_ICONERROR);
    return;
  }
  const std::string line = program + ": " + text + "\r\n";
  DWORD written = 0;
  WriteFile(errors, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
}

}  // namespace mortane

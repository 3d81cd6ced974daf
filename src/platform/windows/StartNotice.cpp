#include "platform/StartNotice.h"

#include <windows.h>

#include <string>

#include "platform/windows/Wide.h"

namespace mortane {
namespace {

// Whether the process has that stream; what is written there may fail.
bool HasStream(HANDLE stream) {
  return stream != nullptr && stream != INVALID_HANDLE_VALUE;
}

bool Write(HANDLE stream, const std::string& text) {
  DWORD written = 0;
  return WriteFile(stream, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) != 0;
}

void ShowBox(const std::string& title, const std::string& text, UINT icon) {
  MessageBoxW(nullptr, ToWide(text).c_str(), ToWide(title).c_str(), MB_OK | icon);
}

}  // namespace

void ShowStartNotice(const std::string& program, const std::string& text) {
  const HANDLE errors = GetStdHandle(STD_ERROR_HANDLE);
  if (HasStream(errors)) {
    Write(errors, program + ": " + text + "\r\n");
  } else {
    ShowBox(program, text, MB_ICONERROR);
  }
}

bool ShowStartAnswer(const std::string& title, const std::string& text) {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  if (HasStream(output)) return Write(output, text + "\r\n");
  ShowBox(title, text, MB_ICONINFORMATION);
  return true;
}

}  // namespace mortane

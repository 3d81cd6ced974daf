// Failures of file calls, with Windows' reasons.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace mortane {

// What the calls say of a path that leads to nothing.
constexpr bool IsMissingError(DWORD error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

// "Cannot write C:\x.xml: Access is denied": the path as the user gave it, the system's text.
[[noreturn]] void RaiseFileFailure(std::string_view attempt, const std::string& shownPath,
                                   DWORD error);
[[noreturn]] void RaiseNoRegularFile(std::string_view attempt, const std::string& shownPath);

}  // namespace mortane

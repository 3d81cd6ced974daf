#include "support/ThisSystem.h"

#include <windows.h>

#include "support/Utf8Path.h"

namespace mortane::test {

bool IsUnderWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

std::string NativeLines(std::string_view text) {
  std::string lines;
  for (const char c : text) lines += c == '\n' ? "\r\n" : std::string(1, c);
  return lines;
}

// In UTF-16, with the mark that says so: a code page holds some letters only.
std::string NativeBytes(const std::string& utf8) {
  const std::filesystem::path text = PathOf(utf8);
  std::string bytes = "\xFF\xFE";
  for (const wchar_t c : text.native()) {
    bytes += static_cast<char>(c & 0xFF);
    bytes += static_cast<char>(c >> 8);
  }
  return bytes;
}

}  // namespace mortane::test

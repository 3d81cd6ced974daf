// Takes the host's place under its name: says what stands in the variable MORTANE_OTHER_HOST, with
// line ends for bars, and then waits.
#include <windows.h>

#include <array>
#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  std::array<char, 8192> text{};
  const DWORD size =
      GetEnvironmentVariableA("MORTANE_OTHER_HOST", text.data(), static_cast<DWORD>(text.size()));
  std::string said(text.data(), size);
  for (char& each : said) {
    if (each == '|') each = '\n';
  }
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), said.data(), static_cast<DWORD>(said.size()), &written,
            nullptr);
  Sleep(INFINITE);
  return 0;
}

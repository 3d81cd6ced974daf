#include "platform/Terminal.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <system_error>

namespace mortane {
namespace {

HANDLE HandleOf(StandardStream stream) {
  switch (stream) {
    case StandardStream::Input:
      return GetStdHandle(STD_INPUT_HANDLE);
    case StandardStream::Output:
      return GetStdHandle(STD_OUTPUT_HANDLE);
    default:
      return GetStdHandle(STD_ERROR_HANDLE);
  }
}

// A console writes no more than this at a time on older systems.
constexpr std::size_t kLargestPiece = 16 * 1024;

}  // namespace

void PrepareStandardStreams() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
  DWORD mode = 0;
  const HANDLE output = HandleOf(StandardStream::Output);
  if (GetConsoleMode(output, &mode) != 0) {
    SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }
}

bool IsTerminal(StandardStream stream) {
  DWORD mode = 0;
  return GetConsoleMode(HandleOf(stream), &mode) != 0;
}

std::string WriteStandardOutput(std::string_view bytes) {
  const HANDLE output = HandleOf(StandardStream::Output);
  while (!bytes.empty()) {
    const std::size_t size = std::min(bytes.size(), kLargestPiece);
    DWORD written = 0;
    if (WriteFile(output, bytes.data(), static_cast<DWORD>(size), &written, nullptr) == 0) {
      return std::system_category().message(static_cast<int>(GetLastError()));
    }
    bytes.remove_prefix(written);
  }
  return {};
}

}  // namespace mortane

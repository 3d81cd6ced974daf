#include "platform/Interrupts.h"

#include <windows.h>

#include <atomic>

namespace mortane {
namespace {

std::atomic<bool> asked = false;

// After the handler of a closed console returns the process ends, so it leaves the program the
// time that the system allows for an end in order.
constexpr DWORD kTimeToEndMs = 4500;

BOOL WINAPI Remember(DWORD event) {
  if (asked.exchange(true)) return FALSE;
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) Sleep(kTimeToEndMs);
  return TRUE;
}

}  // namespace

InterruptWatch::InterruptWatch() {
  asked = false;
  SetConsoleCtrlHandler(Remember, TRUE);
}

InterruptWatch::~InterruptWatch() {
  SetConsoleCtrlHandler(Remember, FALSE);
}

bool InterruptWatch::Asked() {
  return asked;
}

}  // namespace mortane

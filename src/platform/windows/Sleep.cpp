#include "platform/Sleep.h"

#include <windows.h>

namespace mortane {

void SleepMilliseconds(int milliseconds) {
  if (milliseconds > 0) Sleep(static_cast<DWORD>(milliseconds));
}

}  // namespace mortane

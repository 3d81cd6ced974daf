#include "platform/Sleep.h"

#include <chrono>
#include <thread>

namespace mortane {

void SleepMilliseconds(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace mortane

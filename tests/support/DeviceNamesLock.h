// Keeps tests that take device names from running beside each other.
#pragma once

#include "platform/NamedMutex.h"

namespace mortane::test {

// The names of devices are the machine's, so two test programs at once would find each other's
// devices in use. Held for the time of a test; the next one waits for it.
class DeviceNamesLock {
 public:
  DeviceNamesLock() {
    mutex_.Open("MortaneTests-DeviceNames");
    mutex_.Lock(-1);
  }

 private:
  NamedMutex mutex_;
};

}  // namespace mortane::test

// Keeps tests that start the program itself from running beside each other.
#pragma once

#include "platform/NamedMutex.h"

namespace mortane::test {

// The program's names of devices are the machine's, so two tests that start it would find each
// other's devices in use. Held for the time of a test; the next one waits for it.
class DeviceNamesLock {
 public:
  DeviceNamesLock() {
    const std::string scope = NamedMutex::Scope();
    NamedMutex::SetScope({});
    mutex_.Open("MortaneTests-DeviceNames");
    NamedMutex::SetScope(scope);
    mutex_.Lock(-1);
  }

 private:
  NamedMutex mutex_;
};

}  // namespace mortane::test

// Keeps tests that start the program itself from running beside each other.
#pragma once

#include "platform/NamedMutex.h"

namespace mortane::test {

// The program's device names are shared by the whole machine, so two tests that start it at the
// same time would find each other's devices in use. A test holds the lock; the next one waits for
// it.
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

// A name that the operating system refuses.
#pragma once

#include "platform/NamedMutex.h"

namespace mortane::test {

class RefusedMutex : public NamedMutex {
 public:
  Opened Open(std::string_view /*name*/) override {
    Close();
    return Opened::Failed;
  }
};

inline std::unique_ptr<NamedMutex> MakeRefusedMutex() {
  return std::make_unique<RefusedMutex>();
}

}  // namespace mortane::test

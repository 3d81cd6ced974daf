// A folder in which a test puts the files of its system.
#pragma once

#include <string>

#include "platform/posix/SystemRoot.h"
#include "support/TempFolder.h"

namespace mortane::test {

// In force while it lives.
class OwnSystemRoot : public TempFolder {
 public:
  OwnSystemRoot() { SystemRoot::Set(Path(".")); }
  OwnSystemRoot(const OwnSystemRoot&) = delete;
  OwnSystemRoot& operator=(const OwnSystemRoot&) = delete;
  ~OwnSystemRoot() { SystemRoot::Set({}); }
};

}  // namespace mortane::test

// Exclusive use of a device among the processes of a machine.
#pragma once

#include <memory>
#include <string>

#include "platform/NamedMutex.h"

namespace mortane {

// Holds at most one name. The use is exclusive because the name exists; nobody owns the mutex.
// LockMutex and UnlockMutex have no part in that.
class clsMutex {
 public:
  explicit clsMutex(std::unique_ptr<NamedMutex> name = MakeNamedMutex())
      : handle_(std::move(name)) {}

  // True for the first holder of the name, false when another holds it already. Raises error 55
  // while a name is held, error 52 when the system refuses the name.
  bool Create(const std::string& name);
  void Delete();
  void LockMutex(int dwMilliseconds);
  void UnlockMutex();

 private:
  std::unique_ptr<NamedMutex> handle_;
  bool held_ = false;
};

}  // namespace mortane

// Exclusive use of a device among the processes of a machine.
#pragma once

#include <memory>
#include <string>

#include "platform/NamedMutex.h"

namespace mortane {

// Holds at most one name, and gives it back when destroyed. The use is exclusive because the name
// exists; nobody owns the mutex.
class clsMutex {
 public:
  explicit clsMutex(std::unique_ptr<NamedMutex> name = MakeNamedMutex())
      : handle_(std::move(name)) {}

  // True for the first holder of the name, false when another holds it already. Raises error 55
  // while a name is held, error 52 when the system refuses the name.
  // After false the name is held, too, and has to be deleted before the next Create.
  bool Create(const std::string& name);
  // Gives the name back; without one it does nothing.
  void Delete();
  // Own the mutex of the held name, which has no part in the exclusive use. LockMutex waits without
  // a limit for a negative number, and does not report whether it was obtained. Without a name both
  // do nothing.
  void LockMutex(int dwMilliseconds);
  void UnlockMutex();

 private:
  std::unique_ptr<NamedMutex> handle_;
  bool held_ = false;
};

}  // namespace mortane

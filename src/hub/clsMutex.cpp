#include "hub/clsMutex.h"

#include "common/Failure.h"

namespace mortane {

bool clsMutex::Create(const std::string& name) {
  if (held_) RaiseOwnFailure(kAlreadyOpenError, "A device name is held already.");
  const NamedMutex::Opened opened = handle_->Open(name);
  if (opened == NamedMutex::Opened::Failed) {
    RaiseOwnFailure(kBadFileNameError, "The system refuses the device name " + name + ".");
  }
  held_ = true;
  return opened == NamedMutex::Opened::First;
}

void clsMutex::Delete() {
  handle_->Close();
  held_ = false;
}

void clsMutex::LockMutex(int dwMilliseconds) {
  handle_->Lock(dwMilliseconds);
}

void clsMutex::UnlockMutex() {
  handle_->Unlock();
}

}  // namespace mortane

// The program beside this one that makes objects of libraries of 32 bits.
#pragma once

#include <oaidl.h>

#include <memory>
#include <string>

#include "controller/com/ComPointer.h"

namespace mortane::controller {

// "mortane-host32.exe" in the folder of the program that runs.
std::wstring HostFile();

struct HostLimits {
  unsigned long startMs = 30000;
  // Some libraries look for their instruments when an object is made.
  unsigned long creationMs = 60000;
};

// One process, in which all objects are made; it is started with the first one, and again when it
// has ended. It ends with this object, and with the process that owns this object however that
// ends. Used by one thread, whose apartment is single-threaded.
class HostProcess {
 public:
  explicit HostProcess(std::wstring file = HostFile(), HostLimits limits = {});
  ~HostProcess();
  HostProcess(const HostProcess&) = delete;
  HostProcess& operator=(const HostProcess&) = delete;

  // Of a registered name or an identifier in braces. Raises a ControllerError with COM's number:
  // the one of the library's class, or of a process that did not start, has another version, did
  // not answer in time (and was ended), or ended.
  ComPointer<IDispatch> Create(const std::string& className);

 private:
  class Running;

  std::wstring file_;
  HostLimits limits_;
  std::unique_ptr<Running> running_;
};

}  // namespace mortane::controller

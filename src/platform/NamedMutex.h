// A name that one holder on this machine can have at a time.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace mortane {

// Exclusive use rests on the name: whoever opens it first has it until it closes it or its process
// ends, however it ends. Two objects in one process exclude each other too, and so do programs of
// users that are logged on beside each other. Windows keeps the name in use until an object that
// came second is closed, too. Owning the mutex (Lock, Unlock) is independent of all that.
class NamedMutex {
 public:
  enum class Opened { First, AlreadyExisted, Failed };

  // Names are shared by all processes of the machine. Test programs set a prefix of their own, so
  // that two that run at the same time do not find each other's devices in use.
  static void SetScope(std::string_view scope) { scope_ = scope; }
  static const std::string& Scope() { return scope_; }

  NamedMutex();
  virtual ~NamedMutex();  // closes
  NamedMutex(const NamedMutex&) = delete;
  NamedMutex& operator=(const NamedMutex&) = delete;

  // Closes first what is still open. After First and AlreadyExisted the object is open. Virtual, so
  // that a test can have a system that refuses the name.
  virtual Opened Open(std::string_view name);
  void Close();
  bool IsOpen() const;

  // Waits to own the open mutex, without a limit when `milliseconds` is negative. Whether it was
  // obtained is not reported. Both do nothing on a closed one.
  void Lock(int milliseconds);
  void Unlock();

 private:
  // What the system holds for the open name.
  struct Names;

  inline static std::string scope_;
  std::unique_ptr<Names> names_;
};

using NamedMutexMaker = std::function<std::unique_ptr<NamedMutex>()>;

inline std::unique_ptr<NamedMutex> MakeNamedMutex() {
  return std::make_unique<NamedMutex>();
}

}  // namespace mortane

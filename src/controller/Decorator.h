// A library around another one. It sees every call and the path of the object called.
#pragma once

#include <string>
#include <string_view>

#include "controller/ControllerObject.h"

namespace mortane::controller {

enum class CallKind { Create, Get, Put, Call, EnumeratorNext };

// One call. Its texts and values are borrowed for its duration.
struct CallSite {
  CallKind kind;
  std::string_view object;  // path of the object called; empty for the root and for a creation
  std::string_view member;  // for a creation the name of the class
  Args args;                // for a step of an enumerator its number, from 1
  const Value* written = nullptr;  // for a Put

  // The path from the root, whose own members have no prefix, with arguments in brackets:
  // "DeviceList.Item(1).Connect()". The item of an enumerator's third step is called
  // "NosepieceDevice.Positions(3)". The text is built by each call of Path.
  std::string Path() const;
};

// Numbers as they are, those of 16 bits as "int16(1)", texts in quotes, an object of a decorated
// library as its path.
std::string DescribeValue(const Value& value);

// The decorated call, borrowed for the duration of Around. Makes the call each time it is called.
class Proceed {
 public:
  template <typename Function>
  explicit Proceed(const Function& function)
      : function_(&function), run_([](const void* target) -> Value {
          return (*static_cast<const Function*>(target))();
        }) {}

  Value operator()() const { return run_(function_); }

 private:
  const void* function_;
  Value (*run_)(const void* target);
};

// Decorates the objects that it hands out, and theirs. They must not outlive it, nor it the
// inner library.
class DecoratedLibrary : public ControllerLibrary {
 public:
  explicit DecoratedLibrary(ControllerLibrary& inner) : inner_(inner) {}

  ObjectRef Create(std::string_view className) override;

 protected:
  // Called in place of each call; `proceed` makes the call.
  virtual Value Around(const CallSite& site, const Proceed& proceed) = 0;

  // Called in place of each reading of a state value's default member, which is not counted as a
  // call; `path` is the state value's.
  virtual Value AroundNumber(const std::string& /*path*/, const Proceed& proceed) {
    return proceed();
  }

 private:
  friend class DecoratedObject;

  ControllerLibrary& inner_;
};

}  // namespace mortane::controller

// A library around a library, which sees every call and where in the tree of objects it goes.
#pragma once

#include <string>
#include <string_view>

#include "controller/ControllerObject.h"

namespace mortane::controller {

enum class CallKind { Create, Get, Put, Call, EnumeratorNext };

// One call, borrowed for its duration.
struct CallSite {
  CallKind kind;
  std::string_view object;  // the path of the object called; empty for the root and for a creation
  std::string_view member;  // of a creation the name of the class
  Args args;                // of an enumerator's step its turn, from 1
  const Value* written = nullptr;  // of a Put

  // Leads from the root, whose members stand without a prefix, arguments in brackets:
  // "DeviceList.Item(1).Connect()". An item that an enumerator hands out is named after the
  // collection and its turn: "NosepieceDevice.Positions(3)". Built at each call.
  std::string Path() const;
};

// Numbers as they are, those of 16 bits as "int16(1)", texts in quotes, an object of a decorated
// library as its path.
std::string DescribeValue(const Value& value);

// The call that a decorator stands around, borrowed from the caller; makes it each time.
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
  // Called instead of each call; `proceed` makes it.
  virtual Value Around(const CallSite& site, const Proceed& proceed) = 0;

  // The default member of a state value was read: its number, which came with the value and is no
  // call of its own.
  virtual void TookNumber(const std::string& /*path*/, const Value& /*number*/) {}

 private:
  friend class DecoratedObject;

  ControllerLibrary& inner_;
};

}  // namespace mortane::controller

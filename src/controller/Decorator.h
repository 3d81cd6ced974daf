// A library around a library, which sees every call and where in the tree of objects it goes.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controller/ControllerObject.h"

namespace mortane::controller {

enum class CallKind { Create, Get, Put, Call, EnumeratorNext };

// One call. The path leads from the root, whose members stand without a prefix, arguments in
// brackets: "DeviceList.Item(1).Connect()". An item that an enumerator hands out is named
// after the collection and its turn: "NosepieceDevice.Positions(3)".
struct CallSite {
  CallKind kind;
  std::string path;
  std::string_view member;
  const Value* written = nullptr;  // of a Put
};

// Numbers as they are, those of 16 bits as "int16(1)", texts in quotes, an object of a decorated
// library as its path.
std::string DescribeValue(const Value& value);

// Decorates the objects that it hands out, and theirs. They must not outlive it, nor it the
// inner library.
class DecoratedLibrary : public ControllerLibrary {
 public:
  explicit DecoratedLibrary(ControllerLibrary& inner) : inner_(inner) {}

  ObjectRef Create(std::string_view className) override;

 protected:
  // Called instead of each call; `proceed` makes it.
  virtual Value Around(const CallSite& site, const std::function<Value()>& proceed) = 0;

  // The number of a state value was taken. No call of its own: it came with the value.
  virtual void TookNumber(const std::string& /*path*/, const Value& /*number*/) {}

 private:
  friend class DecoratedObject;

  ControllerLibrary& inner_;
};

}  // namespace mortane::controller

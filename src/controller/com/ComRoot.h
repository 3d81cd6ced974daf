// A root object of a COM library that outlives the process of its server.
#pragma once

#include <functional>

#include "controller/ControllerObject.h"

namespace mortane::controller {

// Calls go to the object that `make` made. When its server is gone they fail, each in its own way.
// The device list, with which every connection begins, is then asked of an object made anew: a
// device can be connected again once the server is there, and until then nothing reaches one.
class ComRoot : public ControllerObject {
 public:
  explicit ComRoot(std::function<ObjectRef()> make);

  Value Get(std::string_view member, Args args) override;
  void Put(std::string_view member, const Value& value, Args args) override;
  Value Call(std::string_view member, Args args) override;

 private:
  template <typename Use>
  auto Watched(Use use);

  std::function<ObjectRef()> make_;
  ObjectRef object_;
  bool lost_ = false;
};

}  // namespace mortane::controller

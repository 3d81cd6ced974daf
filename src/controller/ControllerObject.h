// The one transport to a controller library: objects with named, late-bound members.
#pragma once

#include <string_view>

#include "controller/Value.h"

namespace mortane::controller {

// An object of the library. Every call may raise a ControllerError.
//
// The empty member name is the object's default member: of a state value, the number that it
// stands for. A collection's member "_NewEnum" gives an enumerator of its items; the
// enumerator's member "Next" gives the following item, or nothing at the end.
class ControllerObject {
 public:
  virtual ~ControllerObject() = default;

  virtual Value Get(std::string_view member, Args args = {}) = 0;
  virtual void Put(std::string_view member, const Value& value, Args args = {}) = 0;
  virtual Value Call(std::string_view member, Args args = {}) = 0;
};

// A library that hands out root objects by class name: "Microscope", "FiberServer",
// "FiberRemote". Creation raises a ControllerError when the library has no such class.
class ControllerLibrary {
 public:
  virtual ~ControllerLibrary() = default;

  virtual ObjectRef Create(std::string_view className) = 0;
};

}  // namespace mortane::controller

// An object of the transport that stands for an object of a COM library.
#pragma once

#include <oaidl.h>

#include "controller/ControllerObject.h"

namespace mortane::controller {

class ComReference : public ControllerObject {
 public:
  // Lives as long as this object, without a reference of its own.
  virtual IDispatch& Dispatch() const = 0;
};

}  // namespace mortane::controller

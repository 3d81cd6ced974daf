// A failure that a controller library raised.
#pragma once

#include "common/Failure.h"

namespace mortane::controller {

// Source, number and description are the library's own, passed on unchanged.
class ControllerError : public Failure {
 public:
  using Failure::Failure;
};

}  // namespace mortane::controller

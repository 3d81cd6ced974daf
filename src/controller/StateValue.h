// A device's state: a number that is an object as well.
#pragma once

#include "controller/Proxy.h"

namespace mortane::controller {

// Carries what the device answered. Number() is that answer; IsReadOnly() asks the controller,
// and only when it is called.
class StateValue : private Proxy {
 public:
  // A plain number has no object and cannot be asked.
  explicit StateValue(Value value);

  std::int32_t Number() const { return ToLong(value_); }
  double Real() const { return ToDouble(value_); }

  // True when the value can only be seen, not commanded.
  bool IsReadOnly() const { return GetBoolean("IsReadOnly"); }

 private:
  Value value_;
};

}  // namespace mortane::controller

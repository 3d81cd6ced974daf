// A device's state: a number that is an object as well.
#pragma once

#include "controller/Proxy.h"

namespace mortane::controller {

// Number() and Real() give what the device answered; IsReadOnly() asks the controller each time.
class StateValue : private Proxy {
 public:
  // A plain number is no object: IsReadOnly() raises a failure then.
  explicit StateValue(Value value);

  std::int32_t Number() const { return ToLong(value_); }
  double Real() const { return ToDouble(value_); }

  // True when the value can be read but not commanded.
  bool IsReadOnly() const { return GetBoolean("IsReadOnly"); }

 private:
  Value value_;
};

}  // namespace mortane::controller

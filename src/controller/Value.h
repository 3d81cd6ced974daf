// The values that a controller library takes and gives.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <variant>

namespace mortane::controller {

class ControllerObject;
using ObjectRef = std::shared_ptr<ControllerObject>;

// Nothing, a boolean, a 16-bit or a 32-bit integer, a double, UTF-8 text, or a further object. The
// two integers are told apart because a library may refuse the wrong one: pass std::int16_t where
// a member is of 16 bits.
using Value =
    std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, std::string, ObjectRef>;

// The arguments of one call, borrowed for its duration.
class Args {
 public:
  Args() = default;
  Args(std::initializer_list<Value> values) : values_(values.begin(), values.size()) {}
  explicit Args(std::span<const Value> values) : values_(values) {}

  std::size_t size() const { return values_.size(); }
  bool empty() const { return values_.empty(); }
  const Value& operator[](std::size_t i) const { return values_[i]; }
  auto begin() const { return values_.begin(); }
  auto end() const { return values_.end(); }

 private:
  std::span<const Value> values_;
};

}  // namespace mortane::controller

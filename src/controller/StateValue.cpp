#include "controller/StateValue.h"

namespace mortane::controller {
namespace {

ObjectRef ObjectOf(const Value& value) {
  const auto* object = std::get_if<ObjectRef>(&value);
  return object == nullptr ? nullptr : *object;
}

}  // namespace

StateValue::StateValue(Value value) : Proxy(ObjectOf(value)), value_(std::move(value)) {}

}  // namespace mortane::controller

#include "controller/Proxy.h"

#include <limits>

#include "common/Failure.h"
#include "common/Numbers.h"

namespace mortane::controller {
namespace {

[[noreturn]] void RaiseConversion(std::string_view wanted) {
  RaiseOwnFailure(kConversionError, "The controller's answer is not " + std::string(wanted) + ".");
}

// The number of a state value; any other value unchanged.
Value Plain(const Value& value) {
  const auto* object = std::get_if<ObjectRef>(&value);
  return object != nullptr && *object != nullptr ? (*object)->Get("") : value;
}

}  // namespace

std::int32_t ToLong(const Value& value) {
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  const Value plain = Plain(value);
  if (const auto* number = std::get_if<std::int32_t>(&plain)) return *number;
  if (const auto* integer = std::get_if<std::int16_t>(&plain)) return *integer;
  if (const auto* flag = std::get_if<bool>(&plain)) return *flag ? -1 : 0;
  if (const auto* real = std::get_if<double>(&plain)) {
    if (const auto rounded = RoundToLong(*real)) return *rounded;
    RaiseOwnFailure(kOverflowError, "The controller's answer does not fit 32 bits.");
  }
  RaiseConversion("a whole number");
}

std::int16_t ToInteger(const Value& value) {
  const std::int32_t number = ToLong(value);
  if (number < std::numeric_limits<std::int16_t>::min() ||
      number > std::numeric_limits<std::int16_t>::max()) {
    RaiseOwnFailure(kOverflowError, "The controller's answer does not fit 16 bits.");
  }
  return static_cast<std::int16_t>(number);
}

double ToDouble(const Value& value) {
  const Value plain = Plain(value);
  if (const auto* real = std::get_if<double>(&plain)) return *real;
  if (const auto* integer = std::get_if<std::int16_t>(&plain)) return *integer;
  if (const auto* number = std::get_if<std::int32_t>(&plain)) return *number;
  RaiseConversion("a number");
}

bool ToBoolean(const Value& value) {
  const Value plain = Plain(value);
  if (const auto* flag = std::get_if<bool>(&plain)) return *flag;
  if (const auto* integer = std::get_if<std::int16_t>(&plain)) return *integer != 0;
  if (const auto* number = std::get_if<std::int32_t>(&plain)) return *number != 0;
  RaiseConversion("true or false");
}

std::string ToText(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  RaiseConversion("a text");
}

ObjectRef ToObject(const Value& value) {
  const auto* object = std::get_if<ObjectRef>(&value);
  if (object == nullptr || *object == nullptr) RaiseConversion("an object");
  return *object;
}

ControllerObject& Proxy::Target(std::string_view member) const {
  if (object_ == nullptr) {
    RaiseOwnFailure(kNoObjectError, "No controller object to ask for " + std::string(member) + ".");
  }
  return *object_;
}

Value Proxy::Get(std::string_view member, Args args) const {
  return Target(member).Get(member, args);
}

void Proxy::Put(std::string_view member, const Value& value, Args args) const {
  Target(member).Put(member, value, args);
}

Value Proxy::Call(std::string_view member, Args args) const {
  return Target(member).Call(member, args);
}

std::int32_t Proxy::GetLong(std::string_view member, Args args) const {
  return ToLong(Get(member, args));
}

std::int16_t Proxy::GetInteger(std::string_view member, Args args) const {
  return ToInteger(Get(member, args));
}

double Proxy::GetDouble(std::string_view member, Args args) const {
  return ToDouble(Get(member, args));
}

bool Proxy::GetBoolean(std::string_view member, Args args) const {
  return ToBoolean(Get(member, args));
}

std::string Proxy::GetText(std::string_view member, Args args) const {
  return ToText(Get(member, args));
}

ObjectRef Proxy::GetObject(std::string_view member, Args args) const {
  return ToObject(Get(member, args));
}

}  // namespace mortane::controller

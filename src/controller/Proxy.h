// Base of the typed facade, which turns members by name into typed calls.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controller/ControllerObject.h"

namespace mortane::controller {

// Conversions of what a library answered. A value of another kind raises a conversion failure.
// A state value gives its number through its default member.
std::int32_t ToLong(const Value& value);
// A number that does not fit 16 bits raises an overflow failure.
std::int16_t ToInteger(const Value& value);
double ToDouble(const Value& value);
bool ToBoolean(const Value& value);
std::string ToText(const Value& value);
ObjectRef ToObject(const Value& value);

// A typed view of one object, shared by its copies. Every call of an empty view raises a failure.
class Proxy {
 public:
  Proxy() = default;
  explicit Proxy(ObjectRef object) : object_(std::move(object)) {}

  bool IsEmpty() const { return object_ == nullptr; }
  const ObjectRef& Object() const { return object_; }

 protected:
  Value Get(std::string_view member, Args args = {}) const;
  void Put(std::string_view member, const Value& value, Args args = {}) const;
  Value Call(std::string_view member, Args args = {}) const;

  std::int32_t GetLong(std::string_view member, Args args = {}) const;
  std::int16_t GetInteger(std::string_view member, Args args = {}) const;
  double GetDouble(std::string_view member, Args args = {}) const;
  bool GetBoolean(std::string_view member, Args args = {}) const;
  std::string GetText(std::string_view member, Args args = {}) const;
  ObjectRef GetObject(std::string_view member, Args args = {}) const;

 private:
  ControllerObject& Target(std::string_view member) const;

  ObjectRef object_;
};

}  // namespace mortane::controller

#include "controller/simulator/MemberObject.h"

#include <algorithm>
#include <limits>

#include "common/Numbers.h"

namespace mortane::controller {
namespace {

constexpr std::int32_t kUnspecifiedError = -2147467259;

}  // namespace

void RaiseSimulated(const std::string& description) {
  throw ControllerError("Simulator", kUnspecifiedError, description);
}

std::int32_t LongArgument(const Value& value) {
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  if (const auto* integer = std::get_if<std::int16_t>(&value)) return *integer;
  if (const auto* real = std::get_if<double>(&value)) {
    if (const auto rounded = RoundToLong(*real)) return *rounded;
  }
  RaiseSimulated("A whole number is expected.");
}

std::int16_t IntegerArgument(const Value& value) {
  const std::int32_t number = LongArgument(value);
  if (number < std::numeric_limits<std::int16_t>::min() ||
      number > std::numeric_limits<std::int16_t>::max()) {
    RaiseSimulated("A whole number of 16 bits is expected.");
  }
  return static_cast<std::int16_t>(number);
}

double DoubleArgument(const Value& value) {
  if (const auto* real = std::get_if<double>(&value)) return *real;
  return LongArgument(value);
}

std::string TextArgument(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  RaiseSimulated("A text is expected.");
}

bool BooleanArgument(const Value& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag;
  return LongArgument(value) != 0;
}

template <typename Function>
const Function& MemberObject::Find(const Members<Function>& members, std::string_view name,
                                   Args args) {
  const auto member = std::find_if(members.begin(), members.end(),
                                   [&](const auto& candidate) { return candidate.name == name; });
  if (member == members.end()) RaiseSimulated("Unknown member \"" + std::string(name) + "\".");
  if (member->arguments != args.size()) {
    RaiseSimulated("Member \"" + std::string(name) + "\" takes " +
                   std::to_string(member->arguments) + " arguments, not " +
                   std::to_string(args.size()) + ".");
  }
  return member->function;
}

MemberObject& MemberObject::OnGet(std::string_view member, std::size_t arguments, Reader reader) {
  getters_.push_back({member, arguments, std::move(reader)});
  return *this;
}

MemberObject& MemberObject::OnPut(std::string_view member, std::size_t arguments, Writer writer) {
  putters_.push_back({member, arguments, std::move(writer)});
  return *this;
}

MemberObject& MemberObject::OnCall(std::string_view member, std::size_t arguments, Reader caller) {
  calls_.push_back({member, arguments, std::move(caller)});
  return *this;
}

Value MemberObject::Get(std::string_view member, Args args) {
  return Find(getters_, member, args)(args);
}

void MemberObject::Put(std::string_view member, const Value& value, Args args) {
  Find(putters_, member, args)(value, args);
}

Value MemberObject::Call(std::string_view member, Args args) {
  return Find(calls_, member, args)(args);
}

}  // namespace mortane::controller

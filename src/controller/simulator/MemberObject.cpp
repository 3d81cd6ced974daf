#include "controller/simulator/MemberObject.h"

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

void RaiseUnknownMember(std::string_view name) {
  RaiseSimulated("Unknown member \"" + std::string(name) + "\".");
}

void RaiseArgumentCount(std::string_view name, std::size_t wanted, std::size_t given) {
  RaiseSimulated("Member \"" + std::string(name) + "\" takes " + std::to_string(wanted) +
                 " arguments, not " + std::to_string(given) + ".");
}

}  // namespace mortane::controller

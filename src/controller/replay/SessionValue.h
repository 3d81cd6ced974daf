// The values of a session's calls as text, and back.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace mortane::controller {

// An object by its number: objects count from 1 in the order in which a session got them. 0 is no
// object.
struct ObjectNumber {
  std::uint64_t number = 0;

  bool operator==(const ObjectNumber&) const = default;
};

// A Value whose objects are numbers.
using SessionValue = std::variant<std::monostate, bool, std::int16_t, std::int32_t, double,
                                  std::string, ObjectNumber>;

// The kinds can be told apart: nothing, true, int16(12), 12, 12.0, "12", #12. A real number has as
// many digits as it takes to give the same number again. Within a text a quote and a backslash have
// a backslash in front; control characters are \n, \r, \t or \x and two digits.
void AppendValue(std::string& text, const SessionValue& value);
void AppendQuoted(std::string& text, std::string_view value);

// Takes the prefix off the beginning of the text; false when it begins with another.
bool TakePrefix(std::string_view& text, std::string_view prefix);

// Takes a value off the beginning of the text; nothing, and the text as it was or shorter, when it
// begins with none.
std::optional<SessionValue> TakeValue(std::string_view& text);
std::optional<std::string> TakeQuoted(std::string_view& text);

}  // namespace mortane::controller

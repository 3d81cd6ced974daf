// The types that members of the controller library are declared with.
#pragma once

#include <wtypes.h>

#include <cstddef>
#include <string_view>

namespace mortane::comserver {

// The type that an argument has, from 0, and the type of what is written.
VARTYPE ArgumentType(std::string_view member, std::size_t index);
VARTYPE WrittenType(std::string_view member);

}  // namespace mortane::comserver

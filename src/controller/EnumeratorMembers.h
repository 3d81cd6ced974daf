// The members by which a collection of the controller library is enumerated.
#pragma once

#include <string_view>

namespace mortane::controller {

// Of a collection: gives an enumerator of its items.
inline constexpr std::string_view kEnumeratorMember = "_NewEnum";

// Of an enumerator: gives the following item, or nothing at the end.
inline constexpr std::string_view kNextMember = "Next";

}  // namespace mortane::controller

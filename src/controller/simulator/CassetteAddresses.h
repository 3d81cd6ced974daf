// How many condensers a cassette holds.
#pragma once

#include <cstddef>

namespace mortane::controller {

// Addresses 1 to 10 of the condenser turret.
inline constexpr std::size_t kCassetteAddresses = 10;

}  // namespace mortane::controller

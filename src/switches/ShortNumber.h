// Numbers that have to fit 16 bits.
#pragma once

#include <cstdint>
#include <limits>

namespace mortane {

// 0 for a number that does not fit: cut to 16 bits it would be another one.
inline std::int16_t ShortOrZero(std::int32_t number) {
  using Limits = std::numeric_limits<std::int16_t>;
  const bool fits = number >= Limits::min() && number <= Limits::max();
  return fits ? static_cast<std::int16_t>(number) : std::int16_t{0};
}

}  // namespace mortane

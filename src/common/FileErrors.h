// The numbers of the Failures that files raise.
#pragma once

#include <cstdint>

namespace mortane {

inline constexpr std::int32_t kMissingFileError = 53;
inline constexpr std::int32_t kFileError = 57;

}  // namespace mortane

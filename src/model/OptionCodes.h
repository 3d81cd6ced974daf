// The codes and marks of the records that the user may define, as every list of the controller's
// database has them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace mortane {

// Positions of the user's records: 1 to 9.
inline constexpr std::int32_t kOptionPositions = 9;

inline bool IsOptionPosition(std::int32_t position) {
  return position >= 1 && position <= kOptionPositions;
}

// Position n of the user's objectives, cubes and filters is code kOptionBase + n, the last ones
// of their tables. Condensers have a base of their own.
inline constexpr std::int32_t kOptionBase = 240;
inline constexpr std::int32_t kHighestCode = kOptionBase + kOptionPositions;

// The longest name of a user's cube, filter or condenser, in characters.
inline constexpr std::size_t kOptionNameLength = 10;

// Shown instead of a blank name of these.
inline constexpr std::string_view kUnnamedMark = "----------";

// A record whose name begins like this is an unused place of the list.
inline bool IsVacant(std::string_view name) {
  return name.starts_with("-------");
}

}  // namespace mortane

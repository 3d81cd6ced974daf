// What a path leads to, without opening it for its content.
#pragma once

#include <cstdint>
#include <string>

#include "common/Numbers.h"

namespace mortane {

// The absolute path with links followed, and in one case where the system tells names apart
// without regard to case. The file need not be there. Made to be compared, not to be shown.
std::string ResolvedPath(const std::string& utf8Path);

// Sixteen digits that stand for the file, the same for all of its paths; a hash, because a path can
// be longer than a name may be.
inline std::string PathToken(const std::string& utf8Path) {
  std::uint64_t hash = 14695981039346656037U;  // FNV-1a
  for (const char c : ResolvedPath(utf8Path)) {
    hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  }
  return HexPadded(static_cast<std::int32_t>(hash >> 32U), 8) +
         HexPadded(static_cast<std::int32_t>(hash & 0xFFFFFFFFU), 8);
}

// True when nothing stands at the path for certain; false also when the system does not say.
bool IsMissing(const std::string& utf8Path);

}  // namespace mortane

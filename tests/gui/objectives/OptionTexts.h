// What a position of the user's objectives holds, for the tests of its page.
#pragma once

#include <string>

#include "gui/objectives/ObjectivePages.h"

namespace mortane::test {

// Everything that a position holds, in one text.
inline std::string StoredAt(ObjectiveUnits& k70, std::int32_t position) {
  std::string name;
  std::string magnification;
  std::string distance;
  std::string aperture;
  std::int32_t series = 0;
  std::int32_t type = 0;
  std::int32_t condenser = 0;
  k70.DbNosepiece.Get_DbNosepieceOption(position, name, series, type, magnification, distance,
                                        aperture, condenser);
  return name + "|" + std::to_string(series) + "|" + std::to_string(type) + "|" + magnification +
         "|" + distance + "|" + aperture + "|" + std::to_string(condenser);
}

inline std::string First(ObjectiveUnits& k70) {
  return StoredAt(k70, 1);
}

}  // namespace mortane::test

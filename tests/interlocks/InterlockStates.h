// Interlocks and their states as texts.
#pragma once

#include <string>
#include <utility>

#include "interlocks/clsInterLockOther.h"

namespace mortane::test {

// "-1 0 1": a unit's states of the accessories 1 to `count`.
template <typename StateOf>
std::string StatesOf(std::int32_t count, StateOf&& stateOf) {
  std::string states;
  for (std::int32_t k = 1; k <= count; ++k) {
    states += (states.empty() ? "" : " ") + std::to_string(stateOf(k));
  }
  return states;
}

// A table of fourteen in which nothing is known.
inline constexpr const char* kAllUnknown = "-1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1";

inline std::string NosepieceStates(const clsInterLockOther& unit) {
  return StatesOf(14, [&](std::int32_t k) { return unit.Status(k); });
}

inline std::string LightPathStates(const clsInterLockOther& unit) {
  return StatesOf(14, [&](std::int32_t k) { return unit.LightPathStatus(k); });
}

inline std::string ZoomStates(const clsInterLockOther& unit) {
  return StatesOf(14, [&](std::int32_t k) { return unit.ZoomStatus(k); });
}

// One in which nothing else is known.
inline std::string PathStates(std::int32_t ndFilter, std::int32_t fieldStop,
                              std::int32_t epiFieldStop) {
  return StatesOf(14, [&](std::int32_t k) {
    return k == 1 ? ndFilter : k == 2 ? fieldStop : k == 13 ? epiFieldStop : -1;
  });
}

// The journal's words for one interlock.
inline std::string Interlock(std::int32_t item, std::int32_t trigger) {
  return "ControllerSettings.Interlock(" + std::to_string(item) + ", " + std::to_string(trigger) +
         ")";
}

}  // namespace mortane::test

// What the tests of the interlock units share.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "interlocks/InterlockUnits.h"
#include "support/UnitText.h"

namespace mortane::test {

inline constexpr const char* kNoAnswer = "LIB:80004005)";

// The lines as a report joins them.
inline std::string Report(const Lines& lines) {
  std::string report;
  for (const std::string& line : lines) report += (report.empty() ? "" : "\r\n") + line;
  return report;
}

// Lets only these controller units answer, counted from 0.
inline void SetUnits(Instrument& instrument, const std::vector<int>& units) {
  for (int unit = 1; unit <= 7; ++unit) instrument.Unit(unit) = {};
  for (const int unit : units) instrument.Unit(unit + 1) = {1, "V1.30"};
}

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

// What a statement raises for an accessory number beyond the table.
template <typename Statement>
std::string RaisedBy(Statement&& statement) {
  try {
    statement();
    return "nothing";
  } catch (const Failure& failure) {
    return failure.Source() + ":" + std::to_string(failure.Number());
  }
}

}  // namespace mortane::test

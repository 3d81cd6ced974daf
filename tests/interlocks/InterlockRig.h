// What the tests of the interlock units share.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/Failure.h"
#include "interlocks/InterlockStates.h"
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

// Which answers of a controller tell which fields of an instrument.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controller/replay/SessionValue.h"
#include "controller/simulator/Bench.h"

namespace mortane::controller {

// What one member answered; the arguments of its path in their order.
struct Fact {
  std::vector<SessionValue> args;
  SessionValue value;
};

struct FactRow {
  // The path without arguments: "NosepieceDevice.Positions.Code".
  std::string name;
  // Sets the field; false when the arguments or the value are of another kind or out of range.
  std::function<bool(Instrument& instrument, const Fact& fact)> set;
  // How many answers tell all that the instrument has; 0 for an accessory that is not fitted.
  std::function<std::size_t(const Instrument& instrument)> expected;
};

// The most entries of a list; a higher number is taken for an error and passed over.
inline constexpr std::size_t kLongestList = 1000;

const std::vector<FactRow>& FactRows();
// Null for a path that tells nothing.
const FactRow* FindFactRow(std::string_view name);

// Sets a field of the kinds that a bench has; false for a value of another kind.
bool SetField(std::int32_t& field, const SessionValue& value);
bool SetField(std::int16_t& field, const SessionValue& value);
bool SetField(double& field, const SessionValue& value);
bool SetField(bool& field, const SessionValue& value);
bool SetField(std::string& field, const SessionValue& value);

}  // namespace mortane::controller

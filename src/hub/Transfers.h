// Rows of the table of transfers.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/ConfigurationUnit.h"

namespace mortane {

// One unit's operations. Receive reads every unit; Send and Modify call a unit only while its
// `gate` is true.
struct TransferStep {
  std::string_view unit;  // its name, for the line of a failure that it did not catch
  std::function<std::string()> read;
  std::function<std::string(std::string&)> modify;
  std::function<std::string()> write;
  std::function<bool()> gate;
};

// The row of a unit that follows the pattern ReadSdk, ModifySdk, WriteSdk.
template <ConfigurationUnit Unit>
TransferStep MakeTransferStep(std::string_view name, Unit& unit, std::function<bool()> gate) {
  return {name, [&unit] { return unit.ReadSdk(); },
          [&unit](std::string& list) { return unit.ModifySdk(list); },
          [&unit] { return unit.WriteSdk(); }, std::move(gate)};
}

// The same with the unit's own IsEnable as its gate.
template <EnabledUnit Unit>
TransferStep MakeEnabledStep(std::string_view name, Unit& unit) {
  return MakeTransferStep(name, unit, [&unit] { return unit.IsEnable(); });
}

// The report of one operation of a unit. A failure that the unit did not catch is an error of the
// program: it becomes the line "Unit ", the unit's name and the failure, and the transfer goes on.
std::string ReportOf(std::string_view unit, const std::function<std::string()>& operation);

// The step before those of the units.
inline constexpr std::string_view kSystemNameTransfer = "SystemName";

// Steps in the order of Send and Modify.
using TransferTable = std::vector<TransferStep>;

}  // namespace mortane

// The one table of configuration units, and the three walks over it.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace mortane {

// One unit as the transfers see it. A unit's `gate` decides whether Send and Modify call it;
// reading asks every unit.
struct TransferStep {
  std::function<std::string()> read;
  std::function<std::string(std::string&)> modify;
  std::function<std::string()> write;
  std::function<bool()> gate;
};

// The row of a unit that follows the pattern ReadSdk, ModifySdk, WriteSdk.
template <typename Unit>
TransferStep MakeTransferStep(Unit& unit, std::function<bool()> gate) {
  return {[&unit] { return unit.ReadSdk(); },
          [&unit](std::string& list) { return unit.ModifySdk(list); },
          [&unit] { return unit.WriteSdk(); }, std::move(gate)};
}

// Steps in the order of Send and Modify.
using TransferTable = std::vector<TransferStep>;

}  // namespace mortane

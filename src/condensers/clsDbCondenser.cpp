#include "condensers/clsDbCondenser.h"

#include "common/Failure.h"

namespace mortane {
namespace {

// Kept: the labels of a difference and of a failed write differ.
constexpr NameListKind kCondensers{
    accessory::kCondenser,
    [](const controller::AccessoryDatabase& database) {
      return controller::RecordList<controller::DatabaseRecord>(database.Condensers().Object());
    },
    kCondenserOptionBase,
    clsDbCondenser::kElement,
    "Condenser Option (",
    "Optional Condenser[",
    "Condenser Option[",
    &controller::AccessoryDatabase::CondenserCount,
};

constexpr std::int32_t kSuits = 1;

using Records = controller::RecordList<controller::CondenserRecord>;

bool Suits(const Records& records, std::int32_t code, std::int32_t address) {
  try {
    // The index of a fixed record is its code.
    return records.Item(code).SuitsAddress(address) == kSuits;
  } catch (const Failure&) {
    return false;
  }
}

}  // namespace

clsDbCondenser::clsDbCondenser(ConnectedMicroscope& microscope)
    : parent(microscope), names_(kCondensers) {}

std::vector<std::int32_t> clsDbCondenser::FixedCodesFor(std::int32_t address) const {
  std::vector<std::int32_t> codes;
  try {
    const controller::AccessoryDatabase database = parent.Mic.AccessoryDatabase();
    const std::int32_t count = database.CondenserCount();
    const Records records = database.Condensers();
    for (std::int32_t code = 1; code <= count; ++code) {
      if (Suits(records, code, address)) codes.push_back(code);
    }
  } catch (const Failure&) {
    return {};
  }
  return codes;
}

}  // namespace mortane

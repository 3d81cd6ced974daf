#include "condensers/clsCondenser.h"

#include "model/OptionCodes.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

// Kept: four spellings of one label.
constexpr TurretKind kCassette{
    accessory::kCondenser, kCondenserOptionBase + kOptionPositions,
    "Condenser Casset (",  "Condenser[",
    "Condenser Casset[",
};
constexpr std::string_view kRefused = "Condenser Caset[";

}  // namespace

clsCondenser::clsCondenser(ConnectedMicroscope& microscope, const clsDbCondenser& database)
    : parent(microscope), database_(database), codes_(kCassette) {}

std::string clsCondenser::ReadSdk() {
  TurretCodes::Reading reading = codes_.Read(parent);
  if (reading.count) Count = *reading.count;
  if (!reading.failure.empty()) Count = 0;
  return reading.failure;
}

std::string clsCondenser::ModifySdk(std::string& list) const {
  return codes_.Modify(parent, list, [this](std::int32_t code) { return database_.Name(code); });
}

std::string clsCondenser::ReadDom(const DomNode& node) {
  const TurretCodes::FileItem item = codes_.ReadDom(node);
  if (item.taken) return {};
  return ItemLine(kRefused, item.position) + " CODE=" + std::to_string(item.code);
}

void clsCondenser::WriteDom(DomDocument& document, DomNode section) const {
  codes_.WriteDom(document, section, Count);
}

}  // namespace mortane

#include "objectives/clsNosepiece.h"

#include "common/Failure.h"
#include "common/Numbers.h"
#include "model/OptionCodes.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

constexpr TurretKind kNosepiece{
    accessory::kNosepiece, kHighestCode, "Nosepiece (", "Nosepiece[", "Nosepiece[",
};

}  // namespace

clsNosepiece::clsNosepiece(ConnectedMicroscope& microscope, const clsDbNosepiece& database)
    : parent(microscope), database_(database), codes_(kNosepiece) {}

std::int32_t clsNosepiece::Series(std::int32_t address) const {
  if (address < 1 || address > TurretCodes::kAddresses) return -1;
  const std::string name = database_.Series(codes_.Code(address));
  const std::optional<double> number = ParseNumber(name, PointFormat());
  if (!number) RaiseOwnFailure(kConversionError, "Series \"" + name + "\" is no number.");
  const std::optional<std::int32_t> rounded = RoundToLong(*number);
  if (!rounded) RaiseOwnFailure(kOverflowError, "Series \"" + name + "\" does not fit 32 bits.");
  return *rounded;
}

std::string clsNosepiece::ReadSdk() {
  TurretCodes::Reading reading = codes_.Read(parent);
  if (reading.count) Count = *reading.count;
  return reading.failure;
}

std::string clsNosepiece::ModifySdk(std::string& list) const {
  return codes_.Modify(parent, list, [this](std::int32_t code) {
    return FirstCharacters(database_.Name(code), kObjectiveNameLength);
  });
}

std::string clsNosepiece::ReadDom(const DomNode& node) {
  const TurretCodes::FileItem item = codes_.ReadDom(node);
  return item.taken ? std::string() : ItemLine(kNosepiece.writeLabel, item.position);
}

void clsNosepiece::WriteDom(DomDocument& document, DomNode section) const {
  codes_.WriteDom(document, section, Count);
}

}  // namespace mortane

#include "filters/clsFilter.h"

#include "model/OptionCodes.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

constexpr TurretKind kFilterTurret{
    accessory::kFilterCube, kHighestCode, "Filter Cube (", "Filter Cube[", "Filter Cube[",
};

}  // namespace

clsFilter::clsFilter(ConnectedMicroscope& microscope, const clsDbFilter& database)
    : parent(microscope), database_(database), codes_(kFilterTurret) {}

std::string clsFilter::ModifySdk(std::string& list) const {
  return codes_.Modify(parent, list, [this](std::int32_t code) {
    return FirstCharacters(database_.Name(code), kOptionNameLength);
  });
}

std::string clsFilter::ReadDom(const DomNode& node) {
  const TurretCodes::FileItem item = codes_.ReadDom(node);
  return item.taken ? std::string() : ItemLine(kFilterTurret.writeLabel, item.position);
}

void clsFilter::WriteDom(DomDocument& document, DomNode section) const {
  codes_.WriteDom(document, section, Count);
}

}  // namespace mortane

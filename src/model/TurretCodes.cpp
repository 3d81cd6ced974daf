#include "model/TurretCodes.h"

#include "common/CheckedIndex.h"
#include "model/ElementFields.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

bool IsAddress(std::int32_t address) {
  return address >= 1 && address <= TurretCodes::kAddresses;
}

template <typename Visit>
void ForEachItem(const controller::TurretPositions& positions, Visit&& visit) {
  const controller::TurretEnumerator enumerator = positions.Enumerate();
  while (const auto item = enumerator.Next()) visit(*item);
}

}  // namespace

std::int32_t TurretCodes::Code(std::int32_t address) const {
  return IsAddress(address) ? Stored(address) : -1;
}

void TurretCodes::Code(std::int32_t address, std::int32_t code) {
  if (IsAddress(address)) codes_[static_cast<std::size_t>(address - 1)] = code;
}

// The code at an address that the controller named. Raises a failure for any other number.
const std::int32_t& TurretCodes::Stored(std::int32_t address) const {
  return codes_[CheckedIndex(address, 1, codes_.size())];
}

TurretCodes::Reading TurretCodes::Read(const ConnectedMicroscope& microscope) {
  codes_.fill(0);
  if (microscope.IsMounted(kind_.accessory) == kNotMounted) return {};
  std::int32_t count = 0;
  std::string failure = FailureOf(kind_.failureLabel, [&] {
    ForEachItem(microscope.Mic.Turret(kind_.accessory).Positions(),
                [&](const controller::TurretPosition& item) {
                  const std::size_t index = CheckedIndex(item.Position(), 1, codes_.size());
                  codes_[index] = item.Code();
                  ++count;
                });
  });
  if (!failure.empty()) return {std::move(failure), std::nullopt};
  return {{}, count};
}

std::string TurretCodes::Modify(const ConnectedMicroscope& microscope, std::string& list,
                                const NameOf& nameOf) const {
  if (microscope.IsMounted(kind_.accessory) == kNotMounted) return {};
  return CollectDifferences(list, kind_.failureLabel, [&](std::string& lines) {
    ForEachItem(microscope.Mic.Turret(kind_.accessory).Positions(),
                [&](const controller::TurretPosition& item) {
                  const std::int32_t position = item.Position();
                  const std::int32_t stored = Stored(position);
                  if (item.Code() == stored) return;
                  lines = AppendLine(
                      lines, ItemLine(kind_.differenceLabel, position) + " " + nameOf(stored));
                });
  });
}

std::string TurretCodes::Write(const ConnectedMicroscope& microscope) const {
  if (microscope.IsMounted(kind_.accessory) == kNotMounted) return {};
  WriteReport report(kind_.failureLabel);
  report.Run([&] {
    ForEachItem(microscope.Mic.Turret(kind_.accessory).Positions(),
                [&](const controller::TurretPosition& item) {
                  report.Run([&] { WriteItem(item, report); });
                });
  });
  return report.Lines();
}

void TurretCodes::WriteItem(const controller::TurretPosition& item, WriteReport& report) const {
  const std::int32_t position = item.Position();
  report.Add(LineIfFailed(ItemLine(kind_.writeLabel, position), [&] {
    const std::int32_t stored = Stored(position);
    if (item.Code() != stored) item.PutCode(stored);
  }));
}

TurretCodes::FileItem TurretCodes::ReadDom(const DomNode& node) {
  const ElementFields fields(node);
  FileItem item{fields.Number("POSITION"), fields.Number("CODE"), false};
  item.taken = IsAddress(item.position) && item.code >= 0 && item.code <= kind_.highestCode;
  if (item.taken) Code(item.position, item.code);
  return item;
}

void TurretCodes::WriteDom(DomDocument& document, DomNode section, std::int32_t count) const {
  for (std::int32_t address = 1; address <= count; ++address) {
    DomNode element = document.CreateElement(kElement);
    element.SetAttribute("POSITION", std::to_string(address));
    element.SetAttribute("CODE", std::to_string(Code(address)));
    section.Append(element);
  }
}

}  // namespace mortane

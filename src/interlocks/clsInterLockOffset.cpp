#include "interlocks/clsInterLockOffset.h"

#include <algorithm>

#include "controller/ControllerNumbers.h"
#include "interlocks/Interlock.h"
#include "model/ElementFields.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

constexpr std::string_view kFailure = "InterLock Offset (";
constexpr std::int32_t kHighestCode = 9;

controller::OffsetDevice DeviceOf(const clsInterLockOffset& unit, const OffsetAccessory& row) {
  return (unit.parent.Mic.*row.device)();
}

// The body alone compensates.
template <typename Visit>
void ForEachMounted(const ConnectedMicroscope& microscope, Visit&& visit) {
  if (!microscope.Controller(controllerunit::kBody)) return;
  for (const OffsetAccessory& row : kOffsetAccessories) {
    if (microscope.IsControllable(row.number)) visit(row);
  }
}

// Those whose value may be compared and written.
template <typename Visit>
void ForEachKnown(const clsInterLockOffset& unit, Visit&& visit) {
  ForEachMounted(unit.parent, [&](const OffsetAccessory& row) {
    if (unit.*row.value != kUnknown) visit(row);
  });
}

}  // namespace

bool clsInterLockOffset::IsEnable() const {
  bool enabled = false;
  ForEachKnown(*this, [&](const OffsetAccessory&) { enabled = true; });
  return enabled;
}

std::string clsInterLockOffset::ReadSdk() {
  for (const OffsetAccessory& row : kOffsetAccessories) this->*row.value = kUnknown;
  return FailureOf(kFailure, [this] {
    ForEachMounted(parent, [this](const OffsetAccessory& row) {
      this->*row.value = DeviceOf(*this, row).OffsetCode();
    });
  });
}

std::string clsInterLockOffset::ModifySdk(std::string& list) const {
  return CollectWhenComplete(list, kFailure, [this](std::string& lines) {
    ForEachKnown(*this, [&](const OffsetAccessory& row) {
      if (DeviceOf(*this, row).OffsetCode() == this->*row.value) return;
      lines = AppendLine(lines, row.difference);
    });
  });
}

std::string clsInterLockOffset::WriteSdk() const {
  std::string lines;
  ForEachKnown(*this, [&](const OffsetAccessory& row) {
    AppendIfFailed(lines, row.failed, [&] {
      const controller::OffsetDevice device = DeviceOf(*this, row);
      if (device.OffsetCode() != this->*row.value) device.PutOffsetCode(this->*row.value);
    });
  });
  return lines;
}

std::string clsInterLockOffset::ReadDom(const DomNode& node) {
  const ElementFields fields(node);
  const std::int32_t code = fields.Number("CODE");
  if (code < 0 || code > kHighestCode) return {};
  const std::string position = fields.Text("POSITION");
  for (const OffsetAccessory& row : kOffsetAccessories) {
    if (EqualsIgnoringCase(row.word, position)) this->*row.value = code;
  }
  return {};
}

void clsInterLockOffset::WriteDom(DomDocument& document, DomNode section) const {
  for (const OffsetAccessory& row : kOffsetAccessories) {
    DomNode element = document.CreateElement(kElement);
    element.SetAttribute("POSITION", row.word);
    element.SetAttribute("CODE", std::to_string(this->*row.value));
    section.Append(element);
  }
}

}  // namespace mortane

#include "interlocks/clsInterLockObservation.h"

#include <algorithm>

#include "controller/ControllerNumbers.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

constexpr std::string_view kFailure = "InterLock Observation (";
constexpr std::string_view kRefused = "InterLock Observation[";
constexpr std::int32_t kCause = trigger::kObservation;

bool HasBody(const ConnectedMicroscope& microscope) {
  return microscope.Controller(controllerunit::kBody);
}

bool HasUnit5Or6(const ConnectedMicroscope& microscope) {
  return microscope.Controller(controllerunit::kUnit5) ||
         microscope.Controller(controllerunit::kRemote);
}

template <typename Visit>
void ForEachMounted(const ConnectedMicroscope& microscope, Visit&& visit) {
  for (const ObservationAccessory& row : kObservationAccessories) {
    if (microscope.IsControllable(row.number)) visit(row);
  }
}

// The walk of the body, then that of the units 5 and 6: both on a microscope that has both. `visit`
// gets a row, and whether the reports of its walk name it.
template <typename Visit>
void ForEachWalk(const ConnectedMicroscope& microscope, Visit&& visit) {
  if (HasBody(microscope)) {
    ForEachMounted(microscope, [&](const ObservationAccessory& row) { visit(row, true); });
  }
  if (HasUnit5Or6(microscope)) {
    ForEachMounted(microscope,
                   [&](const ObservationAccessory& row) { visit(row, row.namedByUnits5And6); });
  }
}

}  // namespace

bool clsInterLockObservation::IsEnable() const {
  if (!HasBody(parent) && !HasUnit5Or6(parent)) return false;
  return std::any_of(kObservationAccessories.begin(), kObservationAccessories.end(),
                     [this](const ObservationAccessory& row) {
                       return parent.IsControllable(row.number) && Status(row.number) != kUnknown;
                     });
}

std::string clsInterLockObservation::ReadSdk() {
  states_.Forget();
  if (!HasBody(parent) && !HasUnit5Or6(parent)) return {};
  return FailureOf(kFailure, [this] {
    ForEachMounted(parent, [this](const ObservationAccessory& row) {
      states_.Set(row.number, ReadInterlock(parent, row.number, kCause));
    });
  });
}

std::string clsInterLockObservation::ModifySdk(std::string& list) const {
  return CollectWhenComplete(list, kFailure, [this](std::string& lines) {
    ForEachWalk(parent, [&](const ObservationAccessory& row, bool named) {
      const std::int32_t state = Status(row.number);
      if (state == kUnknown) return;
      if (state == ReadInterlock(parent, row.number, kCause) || !named) return;
      lines = AppendLine(lines, row.line);
    });
  });
}

std::string clsInterLockObservation::WriteSdk() const {
  std::string lines;
  ForEachWalk(parent, [&](const ObservationAccessory& row, bool named) {
    AppendIfFailed(lines, named ? row.line : std::string_view(), [&] {
      // Read for an unknown state too: a controller that gives no answer is reported.
      const std::int32_t present = ReadInterlock(parent, row.number, kCause);
      const std::int32_t state = Status(row.number);
      if (state == kUnknown || state == present) return;
      WriteInterlock(parent, row.number, kCause, state);
    });
  });
  return lines;
}

std::string clsInterLockObservation::ReadDom(const DomNode& node) {
  const InterlockElement element = ReadInterlockElement(node);
  const auto* const row = std::find_if(
      kObservationAccessories.begin(), kObservationAccessories.end(),
      [&](const auto& known) { return EqualsIgnoringCase(known.word, element.position); });
  if (row == kObservationAccessories.end() || !element.state) {
    return std::string(kRefused) + element.position + "]";
  }
  if (*element.state != kUnknown) states_.Set(row->number, *element.state);
  return {};
}

void clsInterLockObservation::WriteDom(DomDocument& document, DomNode section) const {
  for (const ObservationAccessory& row : kObservationAccessories) {
    AppendInterlockElement(document, section, kElement, row.word, Status(row.number));
  }
}

}  // namespace mortane

#include "switches/clsDbSwitch.h"

#include "common/DigitCode.h"
#include "controller/ControllerNumbers.h"
#include "model/ElementFields.h"
#include "model/UnitReport.h"
#include "switches/SwitchFunctions.h"

namespace mortane {
namespace {

constexpr std::string_view kFailure = "Switch Function (";
// Kept: the hand controller's word also in the reports of the body.
constexpr std::string_view kRefused = "Tactor[";
// Kept: one more than there are. Position 17 passes the check of the file and fails in the table.
constexpr std::int32_t kLastPositionInFile = clsDbSwitch::SwitchCount + 1;

std::string Label(std::int16_t position) {
  return "Switch Function[" + DigitToChar(position) + "]";
}

constexpr SwitchUnit kSwitches{switchunit::kBody, clsDbSwitch::SwitchCount, Label,
                               [](std::int16_t position, std::int16_t code) {
                                 return Label(position) + " " + DigitToChar(code);
                               }};

}  // namespace

clsDbSwitch::clsDbSwitch(ConnectedMicroscope& microscope) : parent(microscope), codes_(kSwitches) {}

std::string clsDbSwitch::ReadSdk() {
  codes_.Clear();
  if (!parent.Controller(controllerunit::kBody)) return {};
  return FailureOf(kFailure, [this] { codes_.Read(parent); });
}

std::string clsDbSwitch::ModifySdk(std::string& list) const {
  if (!parent.Controller(controllerunit::kBody)) return {};
  return CollectWhenComplete(list, kFailure,
                             [this](std::string& lines) { codes_.ListDifferences(parent, lines); });
}

std::string clsDbSwitch::WriteSdk() const {
  if (!parent.Controller(controllerunit::kBody)) return {};
  std::string failures;
  codes_.Write(parent, failures);
  return failures;
}

std::string clsDbSwitch::ReadDom(const DomNode& node) {
  const ElementFields fields(node);
  const std::int32_t position = fields.Number("POSITION");
  const std::int32_t code = fields.Number("FUNCTION");
  if (position < 1 || position > kLastPositionInFile || !IsSwitchFunction(code)) {
    return ItemLine(kRefused, position);
  }
  codes_.StoreChecked(position, static_cast<std::int16_t>(code));
  return {};
}

void clsDbSwitch::WriteDom(DomDocument& document, DomNode section) const {
  codes_.WriteDom(document, section);
}

}  // namespace mortane

#include "switches/clsControlTactor.h"

#include <array>

#include "common/Numbers.h"
#include "controller/ControllerNumbers.h"
#include "model/ElementFields.h"
#include "model/UnitReport.h"
#include "switches/ShortNumber.h"

namespace mortane {
namespace {

// The key of the mode; those of the positions are "1" to "E".
constexpr const char* kModeKey = "0";

constexpr std::string_view kFailure = "TactorController SW Function (";
constexpr std::string_view kRefused = "Tactor[";
constexpr std::string_view kSettingElement = "SETTING";

// Kept: one more than the last function, which the controller takes as it takes the others.
constexpr std::int32_t kHighestCodeInFile = 52;

std::string Label(std::int16_t position) {
  return ItemLine("TactorSwitch Function[", position);
}

constexpr SwitchUnit kSwitches{
    switchunit::kHandController, clsControlTactor::SwitchCount, Label,
    [](std::int16_t position, std::int16_t /*code*/) { return Label(position); }};

std::string_view NameOf(std::int16_t mode, std::string_view zero, std::string_view other) {
  return mode == 0 ? zero : other;
}

bool IsMode(std::int32_t value) {
  return value == 0 || value == 1;
}

}  // namespace

clsControlTactor::clsControlTactor(ConnectedMicroscope& microscope)
    : parent(microscope), codes_(kSwitches) {}

bool clsControlTactor::IsPresent() const {
  return parent.Controller(controllerunit::kHandController);
}

// The mode is a decimal number, not a character as the codes are; 0 for a text that is no number of
// 16 bits.
std::int16_t clsControlTactor::HeldMode() const {
  const std::string text =
      parent.Mic.ControllerSettings().SwitchFunction(switchunit::kHandController, kModeKey);
  return ShortOrZero(ToLong(text, PointFormat()));
}

std::string clsControlTactor::ReadSdk() {
  codes_.Clear();
  if (!IsPresent()) return {};
  return FailureOf(kFailure, [this] { ReadAll(); });
}

void clsControlTactor::ReadAll() {
  ControlMode = HeldMode();
  if (parent.IsControllable(accessory::kXYStage)) {
    HandleMode = parent.Mic.XYDriveDevice().HandleMode();
  }
  codes_.Read(parent);
}

std::string clsControlTactor::ModifySdk(std::string& list) const {
  if (!IsPresent()) return {};
  return CollectWhenComplete(list, kFailure,
                             [this](std::string& lines) { ListDifferences(lines); });
}

void clsControlTactor::ListDifferences(std::string& lines) const {
  if (ControlMode != HeldMode()) {
    lines = "TactorSwitch Function[Mode] : ";
    lines += NameOf(ControlMode, "Standard", "Extend");
  }
  if (parent.IsControllable(accessory::kXYStage) &&
      HandleMode != parent.Mic.XYDriveDevice().HandleMode()) {
    std::string line = "TactorSwitch Function[XY Knob] : ";
    line += NameOf(HandleMode, "Right", "Left");
    lines = AppendLine(std::move(lines), line);
  }
  codes_.ListDifferences(parent, lines);
}

std::string clsControlTactor::WriteSdk() const {
  if (!IsPresent()) return {};
  std::string failures;
  AppendIfFailed(failures, ItemLine("TactorSwitch Control Mode[", ControlMode), [this] {
    if (ControlMode == HeldMode()) return;
    parent.Mic.ControllerSettings().SetSwitchFunction(switchunit::kHandController, kModeKey,
                                                      std::to_string(ControlMode));
  });
  if (parent.IsControllable(accessory::kXYStage)) {
    AppendIfFailed(failures, ItemLine("TactorSwitch Handle Mode[", HandleMode), [this] {
      const controller::XYDriveDevice stage = parent.Mic.XYDriveDevice();
      if (stage.HandleMode() != HandleMode) stage.PutHandleMode(HandleMode);
    });
  }
  codes_.Write(parent, failures);
  return failures;
}

std::string clsControlTactor::ReadDom(const DomNode& node) {
  std::string refused;
  for (const DomNode& child : node.Children()) {
    if (!child.IsElement()) continue;
    const std::string name = child.Name();
    if (EqualsIgnoringCase(name, kSettingElement)) refused += ReadSetting(child);
    if (EqualsIgnoringCase(name, kElement)) refused += ReadSwitch(child);
  }
  return refused;
}

std::string clsControlTactor::ReadSetting(const DomNode& node) {
  struct Row {
    std::string_view attribute;
    std::int16_t clsControlTactor::*mode;
    std::string_view refused;
  };
  constexpr std::array<Row, 2> kRows{
      {{"MODE", &clsControlTactor::ControlMode, "Tactor[ Mode ]"},
       {"HANDLE", &clsControlTactor::HandleMode, "Tactor[ Handle ]"}}};
  const ElementFields fields(node);
  std::string refused;
  for (const Row& row : kRows) {
    // Kept: an attribute that is not there counts as 0 here.
    const std::int32_t value = ToLong(fields.Text(row.attribute), PointFormat());
    if (IsMode(value)) {
      this->*row.mode = static_cast<std::int16_t>(value);
    } else {
      refused += row.refused;
    }
  }
  return refused;
}

std::string clsControlTactor::ReadSwitch(const DomNode& node) {
  const ElementFields fields(node);
  const std::int32_t position = fields.Number("POSITION");
  const std::int32_t code = fields.Number("FUNCTION");
  if (position < 1 || position > SwitchCount || code < 0 || code > kHighestCodeInFile) {
    return ItemLine(kRefused, position);
  }
  codes_.StoreChecked(position, static_cast<std::int16_t>(code));
  return {};
}

void clsControlTactor::WriteDom(DomDocument& document, DomNode section) const {
  DomNode element = document.CreateElement(kElement);
  DomNode setting = document.CreateElement(kSettingElement);
  setting.SetAttribute("MODE", std::to_string(ControlMode));
  setting.SetAttribute("HANDLE", std::to_string(HandleMode));
  element.Append(setting);
  codes_.WriteDom(document, element);
  section.Append(element);
}

}  // namespace mortane

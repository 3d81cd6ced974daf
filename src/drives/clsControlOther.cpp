#include "drives/clsControlOther.h"

#include <algorithm>
#include <array>

#include "controller/ControllerNumbers.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

using controller::Microscope;

constexpr std::string_view kFailure = "Control Other (";
constexpr std::int32_t kUnknown = -1;

struct Knob {
  std::int32_t accessory;
  std::int32_t clsControlOther::*automatic;
  std::int32_t clsControlOther::*sensitivity;
  std::int32_t (*getAuto)(const Microscope& mic);
  void (*putAuto)(const Microscope& mic, std::int32_t automatic);
  std::int32_t (*getSensitivity)(const Microscope& mic);
  std::string_view difference;
  std::string_view refused;
};

constexpr std::array<Knob, 2> kKnobs{{
    {accessory::kZFocusDrive, &clsControlOther::curAutoZ, &clsControlOther::curSensitivityZ,
     [](const Microscope& mic) { return mic.ZDriveDevice().KnobAuto(); },
     [](const Microscope& mic, std::int32_t value) { mic.ZDriveDevice().PutKnobAuto(value); },
     [](const Microscope& mic) { return mic.ZDriveDevice().KnobSensitivity(); },
     "Control Other[FocusDrive Auto]", "Control Other FocusDrive Auto"},
    {accessory::kXYStage, &clsControlOther::curAutoXY, &clsControlOther::curSensitivityXY,
     [](const Microscope& mic) { return mic.XYDriveDevice().KnobAuto(); },
     [](const Microscope& mic, std::int32_t value) { mic.XYDriveDevice().PutKnobAuto(value); },
     [](const Microscope& mic) { return mic.XYDriveDevice().KnobSensitivity(); },
     "Control Other[XYStage Auto]", "Control Other XY Stage Auto"},
}};

// Which of the states that were read a buzzer fills.
enum Slot : std::size_t { kBodySlot, kHubSlot, kHandSlot, kSlots };
using BuzzerStates = std::array<std::int32_t, kSlots>;

struct ReadBuzzer {
  std::int32_t unit;
  std::int32_t code;
  Slot slot;
};

// In this order: the fifth kind of controller takes the place of the hub. The hand controller's
// buzzer is asked, and its answer not used.
constexpr std::array<ReadBuzzer, 4> kReadBuzzers{{
    {controllerunit::kBody, buzzer::kBody, kBodySlot},
    {controllerunit::kHub, buzzer::kHub, kHubSlot},
    {controllerunit::kHandController, buzzer::kHandController, kHandSlot},
    {controllerunit::kFifthKind, buzzer::kFifthKind, kHubSlot},
}};

struct WrittenBuzzer {
  std::int32_t unit;
  std::int32_t code;
  std::string_view refused;
};

constexpr std::array<WrittenBuzzer, 3> kWrittenBuzzers{{
    {controllerunit::kBody, buzzer::kBody, "Control Other Buzzer K70"},
    {controllerunit::kHub, buzzer::kHub, "Control Other Buzzer QH_R"},
    {controllerunit::kHandController, buzzer::kHandController, "Control Other Buzzer Tactor"},
}};
// The remote's buzzer answers to the hub's code.
constexpr WrittenBuzzer kRemoteBuzzer{controllerunit::kRemote, buzzer::kHub,
                                      "Control Other Buzzer QH_R"};

// Their buzzer is compared: more units than WriteSdk commands.
constexpr std::initializer_list<std::int32_t> kBuzzerUnits{
    controllerunit::kBody, controllerunit::kHub, controllerunit::kFifthKind,
    controllerunit::kRemote};

constexpr std::int32_t kBuzzersDiffer = 2;

// Whose buzzer speaks for the microscope, by its type from 0.
enum class Speaker { Nobody, Body, Hub, BodyAndHub };
constexpr std::array kSpeakers{Speaker::Body, Speaker::Hub, Speaker::Nobody, Speaker::BodyAndHub,
                               Speaker::Body, Speaker::Hub, Speaker::Hub};

struct SwitchGroup {
  std::int32_t unit;
  std::int32_t switches;  // their number in the controller, which is not the unit's
  std::int32_t clsControlOther::*enabled;
  std::string_view difference;
  std::string_view refused;
};

constexpr SwitchGroup kBodySwitches{controllerunit::kBody, switchunit::kBody,
                                    &clsControlOther::curSwEnable, "Control Other[Switch]",
                                    "Control Other Switch"};
constexpr SwitchGroup kHandSwitches{controllerunit::kHandController, switchunit::kHandController,
                                    &clsControlOther::curTactorSwEnable,
                                    "Control Other[Tactor Switch]", "Control Other TactorSwitch"};
constexpr SwitchGroup kRemoteSwitches{
    controllerunit::kRemote, switchunit::kRemote, &clsControlOther::curR_TLPOSwEnable,
    "Control Other[B_KM_R Switch]", "Control Other B_KM_R Switch"};
constexpr std::array kSwitchGroups{kBodySwitches, kHandSwitches, kRemoteSwitches};

bool HasAnyOf(const ConnectedMicroscope& microscope, std::initializer_list<std::int32_t> units) {
  return std::any_of(units.begin(), units.end(),
                     [&](std::int32_t unit) { return microscope.Controller(unit); });
}

bool HasDrive(const ConnectedMicroscope& microscope, const Knob& knob) {
  return microscope.IsMounted(knob.accessory) == kControllable;
}

bool KnobDiffers(const clsControlOther& unit, const Knob& knob) {
  const std::int32_t automatic = unit.*knob.automatic;
  return HasDrive(unit.parent, knob) && automatic != kUnknown &&
         automatic != knob.getAuto(unit.parent.Mic);
}

std::string WriteKnob(const clsControlOther& unit, const Knob& knob) {
  return LineIfFailed(knob.refused, [&] {
    if (KnobDiffers(unit, knob)) knob.putAuto(unit.parent.Mic, unit.*knob.automatic);
  });
}

std::string WriteBuzzer(const clsControlOther& unit, const WrittenBuzzer& row) {
  if (unit.curBuzzer == kUnknown || !unit.parent.Controller(row.unit)) return {};
  return LineIfFailed(row.refused, [&] {
    if (unit.curBuzzer == 0) {
      unit.parent.Mic.BuzzerOn(row.code);
    } else {
      unit.parent.Mic.BuzzerOff(row.code);
    }
  });
}

// Asks the controller also when there is nothing to write, so that one that does not answer is
// reported.
std::string WriteSwitches(const clsControlOther& unit, const SwitchGroup& group) {
  if (!unit.parent.Controller(group.unit)) return {};
  return LineIfFailed(group.refused, [&] {
    const std::int32_t enabled = unit.*group.enabled;
    const std::int32_t held = unit.parent.Mic.SwitchEnabled(group.switches);
    if (enabled == kUnknown || enabled == held) return;
    if (enabled == 1) {
      unit.parent.Mic.EnableSwitch(group.switches);
    } else {
      unit.parent.Mic.DisableSwitch(group.switches);
    }
  });
}

// Off, dark or bright.
bool IsLed(std::int32_t value) {
  return value >= 0 && value <= 2;
}

// The controller says 1 for a buzzer that is on, the unit 0.
std::int32_t Inverted(std::int32_t state) {
  return state == 0 || state == 1 ? 1 - state : kUnknown;
}

std::int32_t BuzzerOfType(std::int32_t type, const BuzzerStates& states) {
  const Speaker speaker = kSpeakers[CheckedIndex(type, 0, kSpeakers.size())];
  if (speaker == Speaker::Nobody) return kUnknown;
  if (speaker == Speaker::BodyAndHub && states[kBodySlot] != states[kHubSlot]) {
    return kBuzzersDiffer;
  }
  return Inverted(states[speaker == Speaker::Hub ? kHubSlot : kBodySlot]);
}

}  // namespace

bool clsControlOther::IsEnable() const {
  const auto knobKnown = [this](const Knob& knob) {
    return HasDrive(parent, knob) && this->*knob.automatic != kUnknown;
  };
  const auto switchKnown = [this](const SwitchGroup& group) {
    return parent.Controller(group.unit) && this->*group.enabled != kUnknown;
  };
  return std::any_of(kKnobs.begin(), kKnobs.end(), knobKnown) ||
         (HasAnyOf(parent, {controllerunit::kBody, controllerunit::kHub}) && curBuzzer >= 0) ||
         parent.Controller(controllerunit::kFifthKind) ||
         std::any_of(kSwitchGroups.begin(), kSwitchGroups.end(), switchKnown);
}

std::string clsControlOther::ReadSdk() {
  for (const Knob& knob : kKnobs) this->*knob.automatic = this->*knob.sensitivity = kUnknown;
  for (const SwitchGroup& group : kSwitchGroups) this->*group.enabled = kUnknown;
  curBuzzer = curR_TLPOLED = kUnknown;
  return FailureOf(kFailure, [this] { ReadControls(); });
}

void clsControlOther::ReadControls() {
  for (const Knob& knob : kKnobs) {
    if (!HasDrive(parent, knob)) continue;
    this->*knob.automatic = knob.getAuto(parent.Mic);
    if (this->*knob.automatic == 0) this->*knob.sensitivity = knob.getSensitivity(parent.Mic);
  }
  BuzzerStates states{};
  states.fill(kUnknown);
  for (const ReadBuzzer& row : kReadBuzzers) {
    if (parent.Controller(row.unit)) states[row.slot] = parent.Mic.BuzzerEnabled(row.code);
  }
  for (const SwitchGroup& group : kSwitchGroups) {
    if (parent.Controller(group.unit)) {
      this->*group.enabled = parent.Mic.SwitchEnabled(group.switches);
    }
  }
  if (parent.Controller(controllerunit::kRemote)) curR_TLPOLED = parent.Mic.RemoteLED();
  curBuzzer = readBuzzer_ = BuzzerOfType(parent.curType, states);
}

std::string clsControlOther::ModifySdk(std::string& list) const {
  return CollectDifferences(list, kFailure, [this](std::string& lines) { ListDifferences(lines); });
}

// An item that is still unknown is not compared: the controller is not even asked for it.
void clsControlOther::ListDifferences(std::string& lines) const {
  const auto list = [&lines](bool differs, std::string_view line) {
    if (differs) lines = AppendLine(lines, line);
  };
  for (const Knob& knob : kKnobs) list(KnobDiffers(*this, knob), knob.difference);
  list(BuzzerDiffers(), "Control Other[Buzzer]");
  for (const SwitchGroup& group : kSwitchGroups) {
    const std::int32_t enabled = this->*group.enabled;
    list(parent.Controller(group.unit) && enabled != kUnknown &&
             enabled != parent.Mic.SwitchEnabled(group.switches),
         group.difference);
  }
  list(parent.Controller(controllerunit::kRemote) && LedDiffers() && IsLed(curR_TLPOLED),
       "Control Other[B_KM_R SwitchLED]");
}

bool clsControlOther::BuzzerDiffers() const {
  return HasAnyOf(parent, kBuzzerUnits) && readBuzzer_ != kUnknown && curBuzzer != kUnknown &&
         curBuzzer != readBuzzer_;
}

bool clsControlOther::LedDiffers() const {
  return curR_TLPOLED != kUnknown && curR_TLPOLED != parent.Mic.RemoteLED();
}

std::string clsControlOther::WriteSdk() const {
  std::string report;
  for (const Knob& knob : kKnobs) report = AppendLine(report, WriteKnob(*this, knob));
  if (HasAnyOf(parent, {controllerunit::kBody, controllerunit::kHub})) {
    for (const WrittenBuzzer& row : kWrittenBuzzers) {
      report = AppendLine(report, WriteBuzzer(*this, row));
    }
  }
  for (const SwitchGroup& group : {kBodySwitches, kHandSwitches}) {
    report = AppendLine(report, WriteSwitches(*this, group));
  }
  return AppendLine(report, WriteRemote());
}

std::string clsControlOther::WriteRemote() const {
  if (!parent.Controller(controllerunit::kRemote)) return {};
  std::string report = WriteBuzzer(*this, kRemoteBuzzer);
  report = AppendLine(report, WriteSwitches(*this, kRemoteSwitches));
  return AppendLine(report, LineIfFailed("Control Other B_KM_R SwitchLED", [this] {
                      if (LedDiffers()) parent.Mic.PutRemoteLED(curR_TLPOLED);
                    }));
}

}  // namespace mortane

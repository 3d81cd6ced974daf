#include "drives/clsControlOther.h"

#include <algorithm>
#include <array>

#include "common/CheckedIndex.h"
#include "controller/ControllerNumbers.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

using controller::Microscope;

constexpr std::string_view kFailure = "Control Other (";

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
  std::int32_t controller;
  std::int32_t code;
  Slot slot;
};

// In this order: controller unit 5 takes the place of the hub. Kept: the hand controller's buzzer
// is asked, and its answer not used.
constexpr std::array<ReadBuzzer, 4> kReadBuzzers{{
    {controllerunit::kBody, buzzer::kBody, kBodySlot},
    {controllerunit::kHub, buzzer::kHub, kHubSlot},
    {controllerunit::kHandController, buzzer::kHandController, kHandSlot},
    {controllerunit::kUnit5, buzzer::kUnit5, kHubSlot},
}};

struct WrittenBuzzer {
  std::int32_t controller;
  std::int32_t code;
  std::string_view refused;
};

constexpr std::array<WrittenBuzzer, 3> kWrittenBuzzers{{
    {controllerunit::kBody, buzzer::kBody, "Control Other Buzzer K70"},
    {controllerunit::kHub, buzzer::kHub, "Control Other Buzzer QH_R"},
    {controllerunit::kHandController, buzzer::kHandController, "Control Other Buzzer Tactor"},
}};
// Kept: the remote's buzzer answers to the hub's code, and its line is the hub's.
constexpr WrittenBuzzer kRemoteBuzzer{controllerunit::kRemote, buzzer::kHub,
                                      "Control Other Buzzer QH_R"};

// The controllers whose buzzer is compared. Kept: more than WriteSdk commands.
constexpr std::initializer_list<std::int32_t> kComparedBuzzers{
    controllerunit::kBody, controllerunit::kHub, controllerunit::kUnit5, controllerunit::kRemote};

// The controller whose buzzer is shown, by microscope type 0 to 6.
enum class BuzzerSource { Nobody, Body, Hub, BodyAndHub };
constexpr std::array kBuzzerSources{
    BuzzerSource::Body, BuzzerSource::Hub, BuzzerSource::Nobody, BuzzerSource::BodyAndHub,
    BuzzerSource::Body, BuzzerSource::Hub, BuzzerSource::Hub};

struct SwitchGroup {
  std::int32_t controller;
  std::int32_t switches;  // their number in the library, another than the controller's
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

bool HasAnyOf(const ConnectedMicroscope& microscope,
              std::initializer_list<std::int32_t> controllers) {
  return std::any_of(controllers.begin(), controllers.end(),
                     [&](std::int32_t index) { return microscope.Controller(index); });
}

bool KnobDiffers(const clsControlOther& other, const Knob& knob) {
  const std::int32_t automatic = other.*knob.automatic;
  return other.parent.IsControllable(knob.accessory) && automatic != kUnknown &&
         automatic != knob.getAuto(other.parent.Mic);
}

std::string WriteKnob(const clsControlOther& other, const Knob& knob) {
  return LineIfFailed(knob.refused, [&] {
    if (KnobDiffers(other, knob)) knob.putAuto(other.parent.Mic, other.*knob.automatic);
  });
}

std::string WriteBuzzer(const clsControlOther& other, const WrittenBuzzer& row) {
  if (other.curBuzzer == kUnknown || !other.parent.Controller(row.controller)) return {};
  return LineIfFailed(row.refused, [&] {
    if (other.curBuzzer == 0) {
      other.parent.Mic.BuzzerOn(row.code);
    } else {
      other.parent.Mic.BuzzerOff(row.code);
    }
  });
}

// Asks the controller also when there is nothing to write, so that one that does not answer is
// reported.
std::string WriteSwitches(const clsControlOther& other, const SwitchGroup& group) {
  if (!other.parent.Controller(group.controller)) return {};
  return LineIfFailed(group.refused, [&] {
    const std::int32_t enabled = other.*group.enabled;
    const std::int32_t held = other.parent.Mic.SwitchEnabled(group.switches);
    if (enabled == kUnknown || enabled == held) return;
    if (enabled == 1) {
      other.parent.Mic.EnableSwitch(group.switches);
    } else {
      other.parent.Mic.DisableSwitch(group.switches);
    }
  });
}

// Off, dark or bright.
bool IsLed(std::int32_t value) {
  return value >= 0 && value <= 2;
}

// The library says 1 for a buzzer that is on, the model 0.
std::int32_t Inverted(std::int32_t state) {
  return state == 0 || state == 1 ? 1 - state : kUnknown;
}

std::int32_t BuzzerOfType(std::int32_t type, const BuzzerStates& states) {
  const BuzzerSource source = kBuzzerSources[CheckedIndex(type, 0, kBuzzerSources.size())];
  if (source == BuzzerSource::Nobody) return kUnknown;
  if (source == BuzzerSource::BodyAndHub && states[kBodySlot] != states[kHubSlot]) {
    return clsControlOther::kBuzzersDiffer;
  }
  return Inverted(states[source == BuzzerSource::Hub ? kHubSlot : kBodySlot]);
}

}  // namespace

bool clsControlOther::IsEnable() const {
  const auto knobKnown = [this](const Knob& knob) {
    return parent.IsControllable(knob.accessory) && this->*knob.automatic != kUnknown;
  };
  const auto switchKnown = [this](const SwitchGroup& group) {
    return parent.Controller(group.controller) && this->*group.enabled != kUnknown;
  };
  return std::any_of(kKnobs.begin(), kKnobs.end(), knobKnown) ||
         (HasAnyOf(parent, {controllerunit::kBody, controllerunit::kHub}) && curBuzzer >= 0) ||
         parent.Controller(controllerunit::kUnit5) ||
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
    if (!parent.IsControllable(knob.accessory)) continue;
    this->*knob.automatic = knob.getAuto(parent.Mic);
    if (this->*knob.automatic == 0) this->*knob.sensitivity = knob.getSensitivity(parent.Mic);
  }
  BuzzerStates states{};
  states.fill(kUnknown);
  for (const ReadBuzzer& row : kReadBuzzers) {
    if (parent.Controller(row.controller)) states[row.slot] = parent.Mic.BuzzerEnabled(row.code);
  }
  for (const SwitchGroup& group : kSwitchGroups) {
    if (parent.Controller(group.controller)) {
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
    list(parent.Controller(group.controller) && enabled != kUnknown &&
             enabled != parent.Mic.SwitchEnabled(group.switches),
         group.difference);
  }
  list(parent.Controller(controllerunit::kRemote) && LedDiffers() && IsLed(curR_TLPOLED),
       "Control Other[B_KM_R SwitchLED]");
}

bool clsControlOther::BuzzerDiffers() const {
  return HasAnyOf(parent, kComparedBuzzers) && readBuzzer_ != kUnknown && curBuzzer != kUnknown &&
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

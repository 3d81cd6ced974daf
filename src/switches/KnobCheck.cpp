#include "switches/KnobCheck.h"

#include <array>

#include "switches/SwitchFunctions.h"

namespace mortane {
namespace {

constexpr std::int32_t kManual = 0;
constexpr std::int32_t kAuto = 1;

struct Knob {
  std::int16_t code;  // of the function that changes its speed
  std::int32_t& (*mode)(const KnobModes& modes);
  const char* nowAuto;
  const char* nowManual;
};

constexpr std::array<Knob, 2> kKnobs{{
    {switchfunction::kFocusKnobSpeed,
     [](const KnobModes& modes) -> std::int32_t& { return modes.curAutoZ; },
     "Focus Knob Setting is changed to Auto mode.",
     "Focus Knob Setting is changed to Manual mode."},
    {switchfunction::kXYKnobSpeed,
     [](const KnobModes& modes) -> std::int32_t& { return modes.curAutoXY; },
     "XYstage Knob Setting is changed to Auto mode.",
     "XYstage Knob Setting is changed to Manual mode."},
}};

template <typename Unit>
bool HasCode(const Unit& unit, std::int16_t code) {
  for (std::int16_t i = 1; i <= Unit::SwitchCount; ++i) {
    if (unit.Func(i) == code) return true;
  }
  return false;
}

}  // namespace

KnobCheck::KnobCheck(const clsDbSwitch& body, const clsControlTactor& tactor, KnobModes modes,
                     TactorSearch search, Prompts& prompts)
    : body_(body), tactor_(tactor), modes_(modes), search_(search), prompts_(prompts) {}

bool KnobCheck::Choose(std::int16_t code) const {
  for (const Knob& knob : kKnobs) {
    std::int32_t& mode = knob.mode(modes_);
    if (code != knob.code || mode != kAuto) continue;
    if (!Tell(knob.nowManual)) return false;
    mode = kManual;
  }
  return true;
}

void KnobCheck::Run() const {
  for (const Knob& knob : kKnobs) {
    std::int32_t& mode = knob.mode(modes_);
    const bool found = IsOnSwitch(knob.code);
    if (mode == kManual && !found) {
      mode = kAuto;
      if (!Tell(knob.nowAuto)) return;
    } else if (mode == kAuto && found) {
      mode = kManual;
      if (!Tell(knob.nowManual)) return;
    }
  }
}

bool KnobCheck::Tell(const char* text) const {
  const std::weak_ptr<const bool> alive = alive_;
  prompts_.MsgBox(text, box::kOk);
  return !alive.expired();
}

bool KnobCheck::IsOnSwitch(std::int16_t code) const {
  if (HasCode(body_, code)) return true;
  const bool searched = search_ == TactorSearch::Always || tactor_.IsPresent();
  return searched && HasCode(tactor_, code);
}

}  // namespace mortane

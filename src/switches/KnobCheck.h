// Keeps the modes of the two knobs in step with the switches that change a knob's speed.
#pragma once

#include <cstdint>
#include <memory>

#include "common/Prompts.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"

namespace mortane {

// Fields of the unit of the drives' controls: 1 automatic, 0 manual, -1 unknown.
struct KnobModes {
  std::int32_t& curAutoZ;
  std::int32_t& curAutoXY;
};

// When the hand controller's switches are searched, where the body has none for a knob: the body's
// page asks for the hand controller first, the hand controller's page does not.
enum class TactorSearch { IfPresent, Always };

// A knob whose speed a switch changes is a manual one; without such a switch it is automatic. Each
// change is told in a box. A mode that is unknown stays so. The page that the check belongs to may
// be destroyed while a box stands; the check then ends there.
class KnobCheck {
 public:
  // The units and modes must live as long.
  KnobCheck(const clsDbSwitch& body, const clsControlTactor& tactor, KnobModes modes,
            TactorSearch search, Prompts& prompts);

  // For a function that a push switch was just given: makes the knob that it is for manual. False
  // when the page was destroyed meanwhile.
  [[nodiscard]] bool Choose(std::int16_t code) const;

  // Compares all switches with both knobs, the focus knob first.
  void Run() const;

 private:
  // False when the check is gone after the box: nothing of it may be read then.
  [[nodiscard]] bool Tell(const char* text) const;
  [[nodiscard]] bool IsOnSwitch(std::int16_t code) const;

  const clsDbSwitch& body_;
  const clsControlTactor& tactor_;
  KnobModes modes_;
  TactorSearch search_;
  Prompts& prompts_;
  std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

}  // namespace mortane

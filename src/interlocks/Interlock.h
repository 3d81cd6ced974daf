// What the interlock units share: the state of one interlock in the model, in the controller and
// in a settings file.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common/CheckedIndex.h"
#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

// Whether an accessory follows. Unknown was not read, or the accessory takes no part.
inline constexpr std::int32_t kInterlockOff = 0;
inline constexpr std::int32_t kInterlockOn = 1;

// The states of accessories 1 to kCount, unknown at first. Any other accessory number raises
// kSubscriptError.
template <std::size_t kCount>
class InterlockStates {
 public:
  InterlockStates() { Forget(); }

  void Forget() { states_.fill(kUnknown); }

  std::int32_t Get(std::int32_t item) const { return states_[CheckedIndex(item, 1, kCount)]; }
  void Set(std::int32_t item, std::int32_t state) {
    states_[CheckedIndex(item, 1, kCount)] = state;
  }
  // Leaves an unknown state as it is.
  void SetKnown(std::int32_t item, std::int32_t state) {
    if (Get(item) != kUnknown) Set(item, state);
  }

 private:
  std::array<std::int32_t, kCount> states_;
};

// The controller's interlock of accessory `item`; `cause` is one of namespace trigger. Both raise
// what the library raises.
std::int32_t ReadInterlock(const ConnectedMicroscope& microscope, std::int32_t item,
                           std::int32_t cause);
void WriteInterlock(const ConnectedMicroscope& microscope, std::int32_t item, std::int32_t cause,
                    std::int32_t state);

// An element of a settings file; `state` is nothing when its CODE is none of the three words.
struct InterlockElement {
  std::string position;  // as it stands in the file
  std::optional<std::int32_t> state;
};
InterlockElement ReadInterlockElement(const DomNode& node);
// A state that is neither on nor off is written as unknown.
void AppendInterlockElement(DomDocument& document, DomNode section, std::string_view element,
                            std::string_view position, std::int32_t state);

}  // namespace mortane

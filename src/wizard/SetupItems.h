// The items of the wizard's sequence that a person may leave out, and where each is offered.
#pragma once

#include <array>
#include <cstdint>

namespace mortane {

class clsK70;

// Types of the microscope (clsK70::curType) as a set of bits.
inline constexpr std::uint32_t kEveryType = 0xFFFFFFFF;
template <typename... Type>
constexpr std::uint32_t TypeSet(Type... type) {
  return ((std::uint32_t{1} << type) | ...);
}

struct SetupItem {
  const char* name;
  std::uint32_t types;
  // Whether the connected microscope has it, on a type that may.
  bool (*isFound)(clsK70& k70);
  // Whether the standard sequence goes through it.
  bool isStandard;
  const char* whyNotOffered;
};

inline constexpr std::size_t kSetupItemCount = 7;

// The number of an item is its place here; its step of the wizard is two further.
extern const std::array<SetupItem, kSetupItemCount> kSetupItems;

// Asks the controller for firmware versions where the item depends on them; a unit that does not
// answer has none, and nothing is raised.
bool IsOffered(const SetupItem& item, clsK70& k70);

}  // namespace mortane

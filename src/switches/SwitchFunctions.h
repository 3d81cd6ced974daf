// The one table of switch functions, from which all lists, names and defaults are made.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace mortane {

// Codes of the functions that a rule speaks of.
namespace switchfunction {
inline constexpr std::int16_t kNone = 0;
inline constexpr std::int16_t kFocusKnobSpeed = 3;
inline constexpr std::int16_t kXYKnobSpeed = 25;
}  // namespace switchfunction

// An entry of a list that is shown; the code is its item data.
struct SwitchFunction {
  std::string_view name;
  std::int16_t code;

  bool operator==(const SwitchFunction&) const = default;
};
using SwitchFunctionList = std::vector<SwitchFunction>;

// Every function of body and hand controller, each at the place of its code, 0 to 51.
const SwitchFunctionList& AllSwitchFunctions();
// Those on offer for dials. A dial's two directions take a pair of codes: the one that stands
// here and SecondOfPair of it.
const SwitchFunctionList& DialFunctions();
// Those on offer for push switches.
const SwitchFunctionList& PushFunctions();
// A joypad's functions, each at the place of its code, 0 to 46. From 41 on they are its own.
const SwitchFunctionList& JoypadFunctions();

// The entry of that code in a list; empty when it has none.
std::string_view FunctionName(const SwitchFunctionList& list, std::int32_t code);

// The code of a dial's other direction; a dial without a function has none in either.
std::int16_t SecondOfPair(std::int16_t firstCode);

// What the units' reports call a function: as in AllSwitchFunctions; "Nothing" for a code outside 0
// to 51. Kept: the names of codes 3 and 4 are exchanged.
std::string_view ReportedName(std::int32_t code);
// Whether a function has that code.
bool IsSwitchFunction(std::int32_t code);

// A dial takes its position and the next, a push switch one.
enum class SwitchKind { Dial, Push };

// The controls of the body and the controller's position of each. No control has 4 and 8.
struct BodyRow {
  std::string_view name;
  std::int16_t position;
  SwitchKind kind;
  std::int16_t defaultCode;  // of a dial the first of its pair
};
inline constexpr std::array<BodyRow, 10> kBodyRows{{
    {"CW/CCW_1", 13, SwitchKind::Dial, 9},
    {"CW/CCW_2", 15, SwitchKind::Dial, 7},
    {"CW/CCW_3", 11, SwitchKind::Dial, 11},
    {"CW/CCW_4", 9, SwitchKind::Dial, 1},
    {"SW_1", 1, SwitchKind::Push, 3},
    {"SW_2", 6, SwitchKind::Push, 13},
    {"SW_3", 7, SwitchKind::Push, 5},
    {"SW_4", 5, SwitchKind::Push, 6},
    {"SW_5", 2, SwitchKind::Push, 3},
    {"SW_6", 3, SwitchKind::Push, 4},
}};

// Default codes of the positions 1 to 16.
using BodyCodes = std::array<std::int16_t, 16>;
BodyCodes BodyDefaults();

// The controls of the hand controller on its two pages, A and B.
struct TactorRow {
  std::string_view name;
  std::int16_t position;
  SwitchKind kind;
};
using TactorPage = std::array<TactorRow, 6>;
inline constexpr std::array<TactorPage, 2> kTactorPages{{
    {{{"CW/CCW(A)", 1, SwitchKind::Dial},
      {"L (A)", 3, SwitchKind::Push},
      {"R (A)", 4, SwitchKind::Push},
      {"1 (A)", 5, SwitchKind::Push},
      {"2 (A)", 6, SwitchKind::Push},
      {"3 (A)", 7, SwitchKind::Push}}},
    {{{"CW/CCW(B)", 8, SwitchKind::Dial},
      {"L (B)", 10, SwitchKind::Push},
      {"R (B)", 11, SwitchKind::Push},
      {"1 (B)", 12, SwitchKind::Push},
      {"2 (B)", 13, SwitchKind::Push},
      {"3 (B)", 14, SwitchKind::Push}}},
}};

// Default codes of the positions 1 to 14 by the microscope's type; all 0 for a type that has none.
using TactorCodes = std::array<std::int16_t, 14>;
TactorCodes TactorDefaults(std::int32_t microscopeType);

}  // namespace mortane

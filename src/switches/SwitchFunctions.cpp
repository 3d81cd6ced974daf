#include "switches/SwitchFunctions.h"

#include <algorithm>

namespace mortane {
namespace {

// Whether a push switch may have the function.
enum class OnPush { No, Yes };

struct FunctionRow {
  std::string_view name;
  OnPush onPush = OnPush::No;
  std::string_view dialName = {};  // of the pair that begins here, if dials may have it
};

constexpr std::string_view kDashes = "-----------------";

// A function's code is its place. Kept: the blank behind "Image Capture" belongs to the name.
constexpr std::array<FunctionRow, 52> kFunctions{{
    {kDashes, OnPush::Yes, kDashes},
    {"Objective CW", OnPush::No, "Objective CW/CCW"},
    {"Objective CCW"},
    {"Z Focus Knob Speed Change", OnPush::Yes},
    {"Z Escape", OnPush::Yes},
    {"DIA Lamp Preset", OnPush::Yes},
    {"LightPath Change", OnPush::Yes},
    {"DIA Field Stop OPEN", OnPush::No, "DIA Field Stop OPEN/CLOSE"},
    {"DIA Field Stop CLOSE"},
    {"DIA Aperture Stop OPEN", OnPush::No, "DIA Aperture Stop OPEN/CLOSE"},
    {"DIA Aperture Stop CLOSE"},
    {"Filter Cube CW", OnPush::No, "Filter Cube CW/CCW"},
    {"Filter Cube CCW"},
    {"Shutter OPEN/CLOSE", OnPush::Yes},
    {"Condenser CW", OnPush::No, "Condenser CW/CCW"},
    {"Condenser CCW"},
    {"ND Filter BRIGHT", OnPush::No, "ND Filter BRIGHT/DARK"},
    {"ND Filter DARK"},
    {"DIA Lamp UP", OnPush::No, "DIA Lamp UP/DOWN"},
    {"DIA Lamp DOWN"},
    {"Optical Zoom UP", OnPush::Yes, "Optical Zoom UP/DOWN"},
    {"Optical Zoom DOWN", OnPush::Yes},
    {"Epi Field Stop OPEN", OnPush::No, "Epi Field Stop OPEN/CLOSE"},
    {"Epi Field Stop CLOSE"},
    {"Analyzer IN/OUT", OnPush::Yes},
    {"XYstage Knob Speed Change", OnPush::Yes},
    {"DIA Lamp ON/OFF", OnPush::Yes},
    {"Auto Focus", OnPush::Yes},
    {"Image Capture ", OnPush::Yes},
    {"Observation Brightfield"},
    {"Observation DIC"},
    {"Observation DIC/FL"},
    {"Observation Fluorescence"},
    {"Observation Phase Contrast"},
    {"Observation Darkfield"},
    {"Optional Observation 1"},
    {"Optional Observation 2"},
    {"Optional Observation 3"},
    {"Optional Observation 4"},
    {"Optional Observation 5"},
    {"Optional Observation 6"},
    {"DIC <-> Brightfield", OnPush::Yes},
    {"DIC/FL <-> Brightfield", OnPush::Yes},
    {"Fluorescence <-> Brightfield", OnPush::Yes},
    {"Phase Contrast <-> Brightfield", OnPush::Yes},
    {"Darkfield <-> Brightfield", OnPush::Yes},
    {"Option 1 <-> Brightfield", OnPush::Yes},
    {"Option 2 <-> Brightfield", OnPush::Yes},
    {"Option 3 <-> Brightfield", OnPush::Yes},
    {"Option 4 <-> Brightfield", OnPush::Yes},
    {"Option 5 <-> Brightfield", OnPush::Yes},
    {"Option 6 <-> Brightfield", OnPush::Yes},
}};

// A joypad has the functions up to code 40, and from 41 on its own, which move the drives.
constexpr std::size_t kSharedWithJoypad = 41;
constexpr std::array<std::string_view, 6> kJoypadOwn{
    "Z Focus Position Up",  "Z Focus Position Down", "X Position Move(X>0)",
    "X Position Move(X<0)", "Y Position Move(Y>0)",  "Y Position Move(Y<0)"};

// Kept: reports give each of these the name of the other.
constexpr std::int32_t kExchanged = 3;
constexpr std::int32_t kExchangedWith = 4;

struct TypeDefaults {
  std::int32_t microscopeType;
  std::array<std::int16_t, 9> codes;  // of the positions from 1 on; the others have none
};

constexpr std::array<TypeDefaults, 4> kTactorDefaults{{
    {0, {1, 2, 3, 25, 4, 26, 5, 14, 15}},
    {1, {11, 12, 20, 21, 6, 24, 13, 22, 23}},
    {3, {1, 2, 3, 25, 46, 26, 13, 11, 12}},
    {4, {1, 2, 3, 25, 4, 26, 13, 14, 15}},
}};

// The functions that `nameOf` gives a name, in the order of their codes.
template <typename NameOf>
SwitchFunctionList ListOf(NameOf nameOf) {
  SwitchFunctionList list;
  std::int16_t code = 0;
  for (const FunctionRow& row : kFunctions) {
    const std::string_view name = nameOf(row);
    if (!name.empty()) list.push_back({name, code});
    ++code;
  }
  return list;
}

SwitchFunctionList MakeJoypadFunctions() {
  SwitchFunctionList list = AllSwitchFunctions();
  list.resize(kSharedWithJoypad);
  for (const std::string_view name : kJoypadOwn) {
    list.push_back({name, static_cast<std::int16_t>(list.size())});
  }
  return list;
}

}  // namespace

const SwitchFunctionList& AllSwitchFunctions() {
  static const SwitchFunctionList list = ListOf([](const FunctionRow& row) { return row.name; });
  return list;
}

const SwitchFunctionList& DialFunctions() {
  static const SwitchFunctionList list =
      ListOf([](const FunctionRow& row) { return row.dialName; });
  return list;
}

const SwitchFunctionList& PushFunctions() {
  static const SwitchFunctionList list = ListOf([](const FunctionRow& row) {
    return row.onPush == OnPush::Yes ? row.name : std::string_view();
  });
  return list;
}

const SwitchFunctionList& JoypadFunctions() {
  static const SwitchFunctionList list = MakeJoypadFunctions();
  return list;
}

std::string_view FunctionName(const SwitchFunctionList& list, std::int32_t code) {
  const auto entry = std::find_if(list.begin(), list.end(), [code](const SwitchFunction& function) {
    return function.code == code;
  });
  return entry == list.end() ? std::string_view() : entry->name;
}

std::int16_t SecondOfPair(std::int16_t firstCode) {
  return firstCode == switchfunction::kNone ? switchfunction::kNone
                                            : static_cast<std::int16_t>(firstCode + 1);
}

bool IsSwitchFunction(std::int32_t code) {
  return code >= 0 && code < static_cast<std::int32_t>(kFunctions.size());
}

std::string_view ReportedName(std::int32_t code) {
  if (!IsSwitchFunction(code)) return "Nothing";
  if (code == kExchanged) {
    code = kExchangedWith;
  } else if (code == kExchangedWith) {
    code = kExchanged;
  }
  return kFunctions[static_cast<std::size_t>(code)].name;
}

BodyCodes BodyDefaults() {
  BodyCodes codes{};
  for (const BodyRow& row : kBodyRows) {
    const auto index = static_cast<std::size_t>(row.position - 1);
    codes[index] = row.defaultCode;
    if (row.kind == SwitchKind::Dial) codes[index + 1] = SecondOfPair(row.defaultCode);
  }
  return codes;
}

TactorCodes TactorDefaults(std::int32_t microscopeType) {
  TactorCodes codes{};
  for (const TypeDefaults& row : kTactorDefaults) {
    if (row.microscopeType == microscopeType) {
      std::copy(row.codes.begin(), row.codes.end(), codes.begin());
    }
  }
  return codes;
}

}  // namespace mortane

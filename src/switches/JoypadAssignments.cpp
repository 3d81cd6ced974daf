#include "switches/JoypadAssignments.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

#include "common/CheckedIndex.h"
#include "platform/Folder.h"
#include "switches/ShortNumber.h"

namespace mortane {
namespace {

struct Direction {
  std::string_view key;
  std::string_view rowName;
};

// Kept: "Right" goes with the row "X(<0)", as the program that reads the file pairs them.
constexpr std::array<Direction, 4> kDirections{{
    {"Right", "Axis X(<0)"},
    {"Left", "Axis X(>0)"},
    {"Up", "Axis Y(<0)"},
    {"Down", "Axis Y(>0)"},
}};
constexpr auto kDirectionCount = static_cast<std::int32_t>(kDirections.size());

constexpr std::string_view kSection = "JoyPad";
constexpr std::int32_t kNotThere = -1;

// Empty when the system names no folder for it.
std::string SetupFile(const std::string& applicationData) {
  if (applicationData.empty()) return {};
  const std::string separator(1, static_cast<char>(std::filesystem::path::preferred_separator));
  const std::string folder = applicationData + separator + "Tarvex" + separator + "OrmanaTools";
  MakeFolder(folder);
  return folder + separator + "Setup.ini";
}

std::string KeyOf(std::int32_t row) {
  if (row > kDirectionCount) return "Button" + std::to_string(row - kDirectionCount);
  return std::string(kDirections[static_cast<std::size_t>(row - 1)].key);
}

std::string NameOf(std::int32_t row) {
  if (row > kDirectionCount) return "Button " + std::to_string(row - kDirectionCount);
  return std::string(kDirections[static_cast<std::size_t>(row - 1)].rowName);
}

}  // namespace

JoypadAssignments::JoypadAssignments(Joystick& joystick, const std::string& applicationData) {
  ini_.IniFilePath = SetupFile(applicationData);
  TakeButtons(joystick);
}

bool JoypadAssignments::TakeButtons(Joystick& joystick) {
  const std::int32_t buttons = GetJoyButtonCount(joystick);
  CheckedIndex(kDirectionCount + std::max(buttons, 0), 1, codes_.size());
  const bool changed = buttons != buttonCount_;
  buttonCount_ = buttons;
  while (rowsRead_ < RowCount()) Read(++rowsRead_);
  return changed;
}

void JoypadAssignments::Read(std::int32_t row) {
  const std::int32_t number =
      ini_.IniFilePath.empty() ? kNotThere : ini_.GetInt(kSection, KeyOf(row), kNotThere);
  Code(row, number == kNotThere ? std::int16_t{0} : ShortOrZero(number));
}

std::int32_t JoypadAssignments::RowCount() const {
  return kDirectionCount + std::max(buttonCount_, 0);
}

std::vector<std::string> JoypadAssignments::RowNames() const {
  std::vector<std::string> names;
  for (std::int32_t row = 1; row <= RowCount(); ++row) names.push_back(NameOf(row));
  return names;
}

std::int32_t JoypadAssignments::CodeCount() const {
  return kDirectionCount + buttonCount_;
}

std::int16_t JoypadAssignments::Code(std::int32_t row) const {
  return codes_[CheckedIndex(row, 1, codes_.size())];
}

void JoypadAssignments::Code(std::int32_t row, std::int16_t code) {
  codes_[CheckedIndex(row, 1, codes_.size())] = code;
}

void JoypadAssignments::Clear() {
  for (std::int32_t row = 1; row <= CodeCount(); ++row) Code(row, 0);
}

void JoypadAssignments::Save() const {
  if (ini_.IniFilePath.empty()) return;
  std::vector<ProfileValue> values;
  for (std::int32_t row = 1; row <= RowCount(); ++row) {
    values.push_back({KeyOf(row), std::to_string(Code(row))});
  }
  ini_.WriteStrings(kSection, values);
}

}  // namespace mortane

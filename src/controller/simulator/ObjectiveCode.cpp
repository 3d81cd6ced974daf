#include "controller/simulator/ObjectiveCode.h"

#include <algorithm>
#include <charconv>

#include "common/DigitCode.h"
#include "common/Numbers.h"
#include "controller/simulator/MemberObject.h"

namespace mortane::controller {
namespace {

constexpr std::string_view kReadCommand = "rONR";
constexpr std::string_view kWriteCommand = "cONS";
constexpr std::size_t kCodeLength = 12;
constexpr double kMagnificationUnits = 10;
constexpr double kDistanceUnits = 100;
constexpr double kApertureUnits = 1000;

std::string HexOf(double value, double units) {
  return HexPadded(RoundToLong(value * units).value_or(0), 3);
}

std::optional<double> ValueOf(std::string_view digits, double units) {
  int number = 0;
  const char* end = digits.data() + digits.size();
  const auto parsed = std::from_chars(digits.data(), end, number, 16);
  if (parsed.ec != std::errc() || parsed.ptr != end || number < 0) return std::nullopt;
  return number / units;
}

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

// The option that a command names by one digit from 1 to 9 behind its opening.
template <typename Objectives>
auto& OptionOf(Objectives& objectives, std::string_view opening, std::string_view command) {
  const bool named = command.starts_with(opening) && command.size() > opening.size() &&
                     IsDigit(command[opening.size()]) && command[opening.size()] != '0';
  if (!named) RaiseSimulated("Unknown command \"" + std::string(command) + "\".");
  const std::int32_t code = kFirstOption + (command[opening.size()] - '1');
  const auto objective = std::find_if(objectives.begin(), objectives.end(),
                                      [&](const auto& each) { return each.code == code; });
  if (objective == objectives.end()) {
    RaiseSimulated("No optional objective " + std::to_string(code) + ".");
  }
  return *objective;
}

}  // namespace

std::string ObjectiveCode(const ObjectiveData& objective) {
  return DigitToChar(objective.series) + DigitToChar(objective.type) +
         HexOf(objective.magnification, kMagnificationUnits) +
         HexOf(objective.workingDistance, kDistanceUnits) +
         HexOf(objective.numericalAperture, kApertureUnits) + std::to_string(objective.adoptive);
}

bool ApplyObjectiveCode(ObjectiveData& objective, std::string_view code) {
  if (code.size() != kCodeLength || !IsDigit(code.back())) return false;
  const std::int32_t series = CharToDigit(code.substr(0, 1));
  const std::int32_t type = CharToDigit(code.substr(1, 1));
  const auto magnification = ValueOf(code.substr(2, 3), kMagnificationUnits);
  const auto distance = ValueOf(code.substr(5, 3), kDistanceUnits);
  const auto aperture = ValueOf(code.substr(8, 3), kApertureUnits);
  if (series < 0 || type < 0 || !magnification || !distance || !aperture) return false;
  objective.series = series;
  objective.type = type;
  objective.magnification = *magnification;
  objective.workingDistance = *distance;
  objective.numericalAperture = *aperture;
  objective.adoptive = code.back() - '0';
  objective.answer.reset();
  return true;
}

std::string AnswerQuery(const DatabaseData& database, std::string_view command) {
  const ObjectiveData& objective = OptionOf(database.objectives, kReadCommand, command);
  if (command.size() != kReadCommand.size() + 1) {
    RaiseSimulated("Unknown command \"" + std::string(command) + "\".");
  }
  if (objective.answer) return *objective.answer;
  return "ONR" + std::string(command.substr(kReadCommand.size())) + ObjectiveCode(objective);
}

bool ApplyCommand(DatabaseData& database, std::string_view command) {
  ObjectiveData& objective = OptionOf(database.objectives, kWriteCommand, command);
  const ObjectiveData before = objective;
  if (!ApplyObjectiveCode(objective, command.substr(kWriteCommand.size() + 1))) {
    RaiseSimulated("Bad objective code in \"" + std::string(command) + "\".");
  }
  return !(objective == before);
}

}  // namespace mortane::controller

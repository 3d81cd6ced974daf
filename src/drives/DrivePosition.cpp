#include "drives/DrivePosition.h"

#include "common/Numbers.h"

namespace mortane {

std::optional<std::int32_t> StepsOfText(std::string_view text) {
  return RoundToLong(ToDouble(text) * kStepsPerMicrometre);
}

std::string TextOfSteps(std::int32_t steps) {
  return ShortestGeneral(steps / kStepsPerMicrometre);
}

bool IsMicrometres(std::string_view text, double lowest, double highest) {
  const std::optional<double> value = ParseNumber(text);
  return value && *value >= lowest && *value <= highest;
}

}  // namespace mortane

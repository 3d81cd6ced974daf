// The twelve characters in which controllers and settings files hold an optional objective.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mortane {

// Series and type are indices into the controller's lists; the distance is in millimetres.
struct ObjectiveValues {
  std::int32_t series = 0;
  std::int32_t type = 0;
  double magnification = 0;
  double workingDistance = 0;
  double numericalAperture = 0;

  bool operator==(const ObjectiveValues&) const = default;
};

inline constexpr std::size_t kObjectiveCodeLength = 12;

// One character each for series and type, three hexadecimal digits each for magnification times
// 10, distance times 100 and aperture times 1000, and the condenser in decimal. Values beyond
// the limits of an objective give another length than twelve; a product that does not fit 32
// bits raises a failure.
std::string EncodeObjective(const ObjectiveValues& values, std::int32_t condenser);

// The values of the first eleven characters. A character that is no hexadecimal digit ends its
// number. A series or type that is no digit of CharToDigit is negative.
ObjectiveValues DecodeObjective(std::string_view code);

// The last character; raises a conversion failure when it is no digit or there is none.
std::int32_t CondenserDigit(std::string_view code);

}  // namespace mortane

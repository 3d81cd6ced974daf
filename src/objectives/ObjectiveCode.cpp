#include "objectives/ObjectiveCode.h"

#include <charconv>
#include <optional>

#include "common/DigitCode.h"
#include "common/Failure.h"
#include "common/Numbers.h"
#include "common/Text.h"

namespace mortane {
namespace {

constexpr int kNumberWidth = 3;
constexpr double kMagnificationUnits = 10;
constexpr double kDistanceUnits = 100;
constexpr double kApertureUnits = 1000;

std::string EncodeNumber(double value, double units) {
  const std::optional<std::int32_t> product = RoundToLong(value * units);
  if (!product) {
    RaiseOwnFailure(kOverflowError,
                    "An objective code cannot hold " + ShortestGeneral(value, PointFormat()) + ".");
  }
  return HexPadded(*product, kNumberWidth);
}

// A division, because a multiplication by 0.1 gives another double than the controller's.
double DecodeNumber(std::string_view text, double units) {
  const std::string digits = Trim(text);
  std::uint32_t number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
  return number / units;
}

// Takes characters from the front of a text.
class CharacterReader {
 public:
  explicit CharacterReader(std::string_view text) : rest_(text) {}

  std::string Take(std::size_t count) {
    std::string taken = FirstCharacters(rest_, count);
    rest_.remove_prefix(taken.size());
    return taken;
  }

 private:
  std::string_view rest_;
};

}  // namespace

std::string EncodeObjective(const ObjectiveValues& values, std::int32_t condenser) {
  return Trim(DigitToChar(values.series)) + Trim(DigitToChar(values.type)) +
         EncodeNumber(values.magnification, kMagnificationUnits) +
         EncodeNumber(values.workingDistance, kDistanceUnits) +
         EncodeNumber(values.numericalAperture, kApertureUnits) + std::to_string(condenser);
}

ObjectiveValues DecodeObjective(std::string_view code) {
  CharacterReader reader(code);
  ObjectiveValues values;
  values.series = CharToDigit(reader.Take(1));
  values.type = CharToDigit(reader.Take(1));
  values.magnification = DecodeNumber(reader.Take(kNumberWidth), kMagnificationUnits);
  values.workingDistance = DecodeNumber(reader.Take(kNumberWidth), kDistanceUnits);
  values.numericalAperture = DecodeNumber(reader.Take(kNumberWidth), kApertureUnits);
  return values;
}

std::int32_t CondenserDigit(std::string_view code) {
  const char last = code.empty() ? '\0' : code.back();
  if (last < '0' || last > '9') {
    RaiseOwnFailure(kConversionError,
                    "No condenser digit ends the objective code \"" + std::string(code) + "\".");
  }
  return last - '0';
}

}  // namespace mortane

// Positions of the drives as a person types and reads them: micrometres instead of steps.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mortane {

// A step is 0.05 micrometres.
inline constexpr double kStepsPerMicrometre = 20.0;

// The steps that a text in the user's number format stands for, ties to the even one. A text that
// is no number stands for 0; nothing for a number whose steps lie outside 32 bits.
std::optional<std::int32_t> StepsOfText(std::string_view text);

// Micrometres in the user's number format, as many decimals as they need.
std::string TextOfSteps(std::int32_t steps);

// Whether the text is a number of micrometres from `lowest` to `highest`, before any rounding.
bool IsMicrometres(std::string_view text, double lowest, double highest);

}  // namespace mortane

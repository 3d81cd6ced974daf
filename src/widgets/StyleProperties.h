// Properties of single controls that the style draws.
#pragma once

namespace mortane {

// Property of a field whose text was refused; the style draws its red line and background.
inline constexpr char kRefusedProperty[] = "refused";
// Property of a push button that is the main one of its dialog without being its default.
inline constexpr char kMainProperty[] = "mainCommand";
// Property of a control with the dot of a value that is not sent: what is told of it.
inline constexpr char kNotSentProperty[] = "notSent";

}  // namespace mortane

#include "gui/support/Contrast.h"

#include <algorithm>
#include <cmath>

namespace mortane::test {
namespace {

double Luminance(const QColor& color) {
  const auto part = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

}  // namespace mortane::test

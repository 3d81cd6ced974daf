// How well one colour can be told from another.
#pragma once

#include <QColor>

namespace mortane::test {

// The ratio of their luminances, from 1 to 21, after the accessibility guidelines for the web.
double Contrast(const QColor& one, const QColor& other);

}  // namespace mortane::test

// Which way the arrow keys go along a drawing.
#pragma once

#include <Qt>

namespace mortane {

// 1 forward, by Right and Down; -1 back, by Left and Up; 0 for any other key.
constexpr int ArrowSteps(int key) {
  switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
      return 1;
    case Qt::Key_Left:
    case Qt::Key_Up:
      return -1;
    default:
      return 0;
  }
}

}  // namespace mortane

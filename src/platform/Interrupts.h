// The wish of the person or the system that the program ends.
#pragma once

namespace mortane {

// While one lives, the first Ctrl-C, closed terminal or request to end is remembered and nothing
// else happens; the second ends the process at once. One at a time.
class InterruptWatch {
 public:
  InterruptWatch();
  ~InterruptWatch();
  InterruptWatch(const InterruptWatch&) = delete;
  InterruptWatch& operator=(const InterruptWatch&) = delete;

  static bool Asked();
};

}  // namespace mortane

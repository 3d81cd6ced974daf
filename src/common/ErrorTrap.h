// Lets a sequence of calls go on after one of them failed.
#pragma once

#include <utility>

#include "common/Failure.h"

namespace mortane {

// Runs statements one by one and remembers that one of them failed. A later success does not clear
// the mark, only TakeFailed does.
class ErrorTrap {
 public:
  // Runs the statement; true when it raised no Failure.
  template <typename Statement>
  bool Run(Statement&& statement) {
    try {
      std::forward<Statement>(statement)();
      return true;
    } catch (const Failure&) {
      failed_ = true;
      return false;
    }
  }

  // True when a statement failed since the last call; clears the mark.
  bool TakeFailed() { return std::exchange(failed_, false); }

 private:
  bool failed_ = false;
};

}  // namespace mortane

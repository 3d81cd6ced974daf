// A bench file that several programs use at a time.
#pragma once

#include <string>

#include "controller/simulator/Bench.h"

namespace mortane::controller {

// The parts of a bench are its instruments, by index, and the fiber server. Programs that run at
// the same time use different instruments. So a part that this program changed since the last
// exchange is written to the file, and every other part is taken from it. When both changed the
// same part, the file's change is lost.
class SharedBench {
 public:
  // Reads the file; raises a Failure for one that is wrong.
  explicit SharedBench(const std::string& path);

  // The bench at the last exchange.
  const Bench& Known() const { return known_; }

  // Makes file and `bench` equal, under a lock that the programs of this machine share. A missing
  // file is created if anything changed here. Raises a Failure when the file is wrong or cannot be
  // written; both are unchanged then, and the next exchange includes these changes.
  void Exchange(Bench& bench);

  // Name of the lock, a NamedMutex. Different paths of one file have the same name.
  static std::string LockName(const std::string& path);

 private:
  Bench Merged(const Bench& ours, const Bench& theirs) const;

  std::string path_;
  std::string lockName_;
  Bench known_;
};

}  // namespace mortane::controller

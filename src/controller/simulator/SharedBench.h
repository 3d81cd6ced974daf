// A bench file that several programs use at a time.
#pragma once

#include <string>

#include "controller/simulator/Bench.h"

namespace mortane::controller {

// A bench has parts: each instrument, by its place, and the fiber server. Programs that run side by
// side use different instruments, so a part that this program changed since the last exchange goes
// to the file, and every other part comes from it. Only when both changed one part, the file's
// change is lost.
class SharedBench {
 public:
  // Reads the file; raises a Failure for one that is wrong.
  explicit SharedBench(const std::string& path);

  // The bench as of the last exchange.
  const Bench& Known() const { return known_; }

  // Makes file and `bench` equal, under a lock that the programs of this machine share. A file that
  // went away is made anew, unless nothing changed here. Raises a Failure when the file is wrong or
  // cannot be written; both are then as they were, and the next exchange takes everything along.
  void Exchange(Bench& bench);

  // The lock's name, a NamedMutex: the same for all ways to write the path of one file.
  static std::string LockName(const std::string& path);

 private:
  Bench Merged(const Bench& ours, const Bench& theirs) const;

  std::string path_;
  std::string lockName_;
  Bench known_;
};

}  // namespace mortane::controller

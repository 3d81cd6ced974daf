// The simulated instruments that the program works on.
#pragma once

#include <string>

#include "controller/simulator/SimulatedLibrary.h"

namespace mortane {

// Instruments come from a bench file, or are the simulated microscope alone where no file is
// named. What is written to the instruments goes back to the file, so that the next start finds
// it there: as a whole, when the program comes to rest and at the latest when the session ends.
class BenchSession {
 public:
  // An empty path names no file. Raises a Failure for a file that is wrong.
  explicit BenchSession(const std::string& path);
  ~BenchSession();
  BenchSession(const BenchSession&) = delete;
  BenchSession& operator=(const BenchSession&) = delete;

  // Drives move in real time.
  controller::ControllerLibrary& Library() { return library_; }

  // Writes what changed since the last time. A file that cannot be written keeps its old content;
  // one line on standard error tells it.
  void Keep();

 private:
  std::string path_;
  controller::SimulatedLibrary library_;
  bool changed_ = false;
};

}  // namespace mortane

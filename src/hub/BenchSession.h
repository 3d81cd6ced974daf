// The simulated instruments that the program works on.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "controller/simulator/SharedBench.h"
#include "controller/simulator/SimulatedLibrary.h"

namespace mortane {

// Instruments come from a bench file, or are the simulated microscope alone where no file is
// named. What is written to the instruments goes back to the file, so that the next start finds
// it there: when the program comes to rest, when a device is disconnected, and at the latest when
// the session ends. Programs may share a file; an instrument that another one changed is up to
// date once it is connected.
class BenchSession {
 public:
  // Says in one line what went wrong.
  using Notice = std::function<void(const std::string&)>;

  // An empty path names no file. Raises a Failure for a file that is wrong. Without a `notice` a
  // line goes to standard error.
  explicit BenchSession(const std::string& path, Notice notice = {});
  ~BenchSession();
  BenchSession(const BenchSession&) = delete;
  BenchSession& operator=(const BenchSession&) = delete;

  // Drives move in real time.
  controller::ControllerLibrary& Library() { return library_; }

  // Writes what changed since the last time. A file that cannot be written keeps its old content;
  // one line tells it, and the next change or the end of the session tries again.
  void Keep();
  // The same, and takes what other programs wrote to the file, also for connected instruments.
  void Renew();

 private:
  void Exchange();

  std::optional<controller::SharedBench> file_;
  controller::SimulatedLibrary library_;
  Notice notice_;
  bool changed_ = false;
  bool failed_ = false;
};

}  // namespace mortane

// A second process of the test program, which plays a part in a test.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace mortane::test {

using Words = std::vector<std::string>;

// The test and its second process tell each other "go on", so that no test sleeps. What the process
// is to know, it gets as words: it may share nothing else with the test.
class SecondProcess {
 public:
  // The second process's side: say that a point was reached, or wait there for the test. Both raise
  // when the test has ended.
  class Side {
   public:
    virtual ~Side() = default;
    virtual void Tell() const = 0;
    virtual void AwaitTest() const = 0;
  };

  // Answers the exit code; an exception makes it 99.
  using Play = int (*)(const Side& test, const Words& words);

  // Known by its name in both processes, so it is a constant of its file.
  struct Part {
    Part(const char* name, Play play);

    const char* name;
    Play play;
  };

  explicit SecondProcess(const Part& part, const Words& words = {});
  ~SecondProcess();  // kills what still runs
  SecondProcess(const SecondProcess&) = delete;
  SecondProcess& operator=(const SecondProcess&) = delete;

  void Await() const;
  void Tell() const;
  void Kill();
  int Wait();  // the exit code

 private:
  struct Process;

  std::unique_ptr<Process> process_;
};

// Plays the part that the program was started for and answers its exit code; nothing in a program
// that is to run its tests.
std::optional<int> PlayPart();

}  // namespace mortane::test

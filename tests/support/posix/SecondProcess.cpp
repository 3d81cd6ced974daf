#include "support/SecondProcess.h"

#include "support/posix/ChildProcess.h"

namespace mortane::test {

// The second process begins as a copy of the test's.
struct SecondProcess::Process {
  ChildProcess child;
};

namespace {

struct ChildSide : SecondProcess::Side {
  explicit ChildSide(const ChildProcess::Side& side) : side_(side) {}
  void Tell() const override { side_.Tell(); }
  void AwaitTest() const override { side_.AwaitParent(); }

  const ChildProcess::Side& side_;
};

}  // namespace

SecondProcess::Part::Part(const char* partName, Play partPlay) : name(partName), play(partPlay) {}

SecondProcess::SecondProcess(const Part& part, const Words& words)
    : process_(new Process{ChildProcess(
          [&](const ChildProcess::Side& side) { return part.play(ChildSide(side), words); })}) {}

SecondProcess::~SecondProcess() = default;

void SecondProcess::Await() const {
  process_->child.AwaitChild();
}

void SecondProcess::Tell() const {
  process_->child.Tell();
}

void SecondProcess::Kill() {
  process_->child.Kill();
}

int SecondProcess::Wait() {
  return process_->child.Wait();
}

std::optional<int> PlayPart() {
  return std::nullopt;
}

}  // namespace mortane::test

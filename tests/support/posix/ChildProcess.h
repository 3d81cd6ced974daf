// A process of its own that runs one function of a test.
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>

namespace mortane::test {

// The parent and its child tell each other "go on" through two pipes, so that no test sleeps.
class ChildProcess {
 public:
  // The child's side: say that a point was reached, or wait there for the parent.
  class Side {
   public:
    Side(int in, int out) : in_(in), out_(out) {}
    void Tell() const;
    void AwaitParent() const;

   private:
    int in_;
    int out_;
  };

  // Runs `body` in a child, whose exit code is what `body` answers; an exception makes it 99. A
  // child that does not end is ended by SIGALRM after twenty seconds.
  explicit ChildProcess(const std::function<int(const Side&)>& body);
  ~ChildProcess();  // kills and reaps what still runs
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  pid_t Id() const { return child_; }
  void AwaitChild() const;
  // Waits until a signal has stopped the child, and lets it go on.
  void AwaitStop() const;
  void Continue() const;
  void Tell() const;
  void Kill();
  // The exit code; minus the signal's number for a child that a signal ended.
  int Wait();

 private:
  pid_t child_ = -1;
  int in_ = -1;
  int out_ = -1;
};

// Makes the calling process, a child of a test, one that the permissions of files bind.
void DropPrivileges();

// Makes `folder` the root of all paths of the calling process, a child of a test.
void EnterRoot(const std::string& folder);
// Whether the system lets a child do so: it lets root, and most let everybody.
bool MayEnterRoot();

}  // namespace mortane::test

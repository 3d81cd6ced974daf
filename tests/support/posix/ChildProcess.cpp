#include "support/posix/ChildProcess.h"

#include <grp.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <exception>
#include <stdexcept>
#include <utility>

namespace mortane::test {
namespace {

constexpr int kExceptionCode = 99;
constexpr uid_t kNobody = 65534;
constexpr unsigned kLongestSeconds = 20;

void Check(bool succeeded, const char* what) {
  if (!succeeded) throw std::runtime_error(what);
}

void SendByte(int descriptor) {
  const char byte = '.';
  Check(::write(descriptor, &byte, 1) == 1, "write");
}

void ReceiveByte(int descriptor) {
  char byte = 0;
  Check(::read(descriptor, &byte, 1) == 1, "the other process ended");
}

int RunBody(const std::function<int(const ChildProcess::Side&)>& body,
            const ChildProcess::Side& side) {
  try {
    return body(side);
  } catch (const std::exception&) {
    return kExceptionCode;
  }
}

}  // namespace

void ChildProcess::Side::Tell() const {
  SendByte(out_);
}

void ChildProcess::Side::AwaitParent() const {
  ReceiveByte(in_);
}

ChildProcess::ChildProcess(const std::function<int(const Side&)>& body) {
  std::array<int, 2> toChild{};
  std::array<int, 2> toParent{};
  Check(::pipe(toChild.data()) == 0 && ::pipe(toParent.data()) == 0, "pipe");
  child_ = ::fork();
  Check(child_ >= 0, "fork");
  if (child_ == 0) {
    ::close(toChild[1]);
    ::close(toParent[0]);
    ::alarm(kLongestSeconds);
    // No exit handlers: they belong to the test program.
    ::_exit(RunBody(body, Side(toChild[0], toParent[1])));
  }
  ::close(toChild[0]);
  ::close(toParent[1]);
  in_ = toParent[0];
  out_ = toChild[1];
}

ChildProcess::~ChildProcess() {
  if (child_ > 0) {
    ::kill(child_, SIGKILL);
    ::waitpid(child_, nullptr, 0);
  }
  ::close(in_);
  ::close(out_);
}

void ChildProcess::AwaitChild() const {
  ReceiveByte(in_);
}

void ChildProcess::AwaitStop() const {
  int status = 0;
  Check(::waitpid(child_, &status, WUNTRACED) == child_ && WIFSTOPPED(status), "not stopped");
}

void ChildProcess::Continue() const {
  Check(::kill(child_, SIGCONT) == 0, "kill");
}

void ChildProcess::Tell() const {
  SendByte(out_);
}

void ChildProcess::Kill() {
  Check(::kill(child_, SIGKILL) == 0, "kill");
  Wait();
}

int ChildProcess::Wait() {
  int status = 0;
  Check(::waitpid(std::exchange(child_, -1), &status, 0) > 0, "waitpid");
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

void DropPrivileges() {
  if (::geteuid() != 0) return;
  Check(::setgroups(0, nullptr) == 0 && ::setgid(kNobody) == 0 && ::setuid(kNobody) == 0,
        "cannot become nobody");
}

void EnterRoot(const std::string& folder) {
  // In a user namespace of its own a process of any user may change its root.
  const bool entered = ::chroot(folder.c_str()) == 0 ||
                       (::unshare(CLONE_NEWUSER) == 0 && ::chroot(folder.c_str()) == 0);
  Check(entered && ::chdir("/") == 0, "cannot change the root");
}

bool MayEnterRoot() {
  ChildProcess child([](const ChildProcess::Side&) {
    EnterRoot("/");
    return 0;
  });
  return child.Wait() == 0;
}

}  // namespace mortane::test

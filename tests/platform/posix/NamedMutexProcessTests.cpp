// What holds for a name that a file stands for.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "platform/NamedMutex.h"
#include "support/UniqueName.h"
#include "support/posix/ChildProcess.h"

namespace mortane {
namespace {

using Opened = NamedMutex::Opened;

int OpenInChild(const std::string& name, bool asNobody = false) {
  test::ChildProcess child([&](const test::ChildProcess::Side&) {
    if (asNobody) test::DropPrivileges();
    return static_cast<int>(NamedMutex().Open(name));
  });
  return child.Wait();
}

// The file behind a name; empty when there is none.
std::filesystem::path LockFile(const std::string& name) {
  for (const char* folder : {"/run/lock", "/tmp"}) {
    auto path = std::filesystem::path(folder) / ("mortane-" + NamedMutex::Scope() + name + ".lock");
    if (std::filesystem::exists(std::filesystem::symlink_status(path))) return path;
  }
  return {};
}

TEST(NamedMutexAcrossProcesses, IsNotKeptAliveByALoser) {
  const test::UniqueName unique;
  const std::string& name = unique.Text();
  // Made before the holder opens, whose descriptor it would inherit otherwise.
  test::ChildProcess loser([&](const test::ChildProcess::Side& parent) {
    parent.AwaitParent();
    NamedMutex mutex;
    if (mutex.Open(name) != Opened::AlreadyExisted) return 1;
    parent.Tell();
    parent.AwaitParent();
    return 0;
  });
  NamedMutex holder;
  ASSERT_EQ(holder.Open(name), Opened::First);
  loser.Tell();
  loser.AwaitChild();
  holder.Close();
  EXPECT_EQ(NamedMutex().Open(name), Opened::First);
  loser.Tell();
  EXPECT_EQ(loser.Wait(), 0);
}

TEST(NamedMutexAcrossProcesses, HoldsForAnotherUserToo) {
  const test::UniqueName unique;
  const std::string& name = unique.Text();
  NamedMutex holder;
  const mode_t old = ::umask(077);
  ASSERT_EQ(holder.Open(name), Opened::First);
  ::umask(old);
  EXPECT_EQ(OpenInChild(name, true), static_cast<int>(Opened::AlreadyExisted));
  holder.Close();
  EXPECT_EQ(OpenInChild(name, true), static_cast<int>(Opened::First));
}

TEST(NamedMutex, FailsUnderANameThatTheSystemCannotHold) {
  NamedMutex mutex;
  EXPECT_EQ(mutex.Open(std::string(40000, 'x')), Opened::Failed);
  EXPECT_FALSE(mutex.IsOpen());
}

TEST(NamedMutexAcrossProcesses, FollowsNoLinkInTheFilesPlace) {
  const test::UniqueName unique;
  const std::string& name = unique.Text();
  ASSERT_EQ(NamedMutex().Open(name), Opened::First);
  const std::filesystem::path file = LockFile(name);
  ASSERT_FALSE(file.empty());
  std::filesystem::remove(file);
  const std::filesystem::path victim = file.string() + ".victim";
  std::filesystem::create_symlink(victim, file);
  EXPECT_EQ(NamedMutex().Open(name), Opened::Failed);
  EXPECT_FALSE(std::filesystem::exists(victim));
  std::filesystem::remove(file);
}

// A folder of another kind would let one user shut the others out.
TEST(NamedMutexFolder, IsTheFirstThatAllUsersShare) {
  const test::UniqueName unique;
  NamedMutex mutex;
  ASSERT_EQ(mutex.Open(unique.Text()), NamedMutex::Opened::First);
  struct stat status = {};
  const bool shared = ::stat("/run/lock", &status) == 0 && (status.st_mode & 01777U) == 01777U;
  EXPECT_EQ(LockFile(unique.Text()).parent_path(), shared ? "/run/lock" : "/tmp");
}

TEST(NamedMutexWait, LastsAsLongAsItWasAskedTo) {
  const test::UniqueName unique;
  NamedMutex owner;
  NamedMutex waiter;
  ASSERT_EQ(owner.Open(unique.Text()), NamedMutex::Opened::First);
  ASSERT_EQ(waiter.Open(unique.Text()), NamedMutex::Opened::AlreadyExisted);
  owner.Lock(0);
  const auto start = std::chrono::steady_clock::now();
  waiter.Lock(60);
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(60));
}

}  // namespace
}  // namespace mortane

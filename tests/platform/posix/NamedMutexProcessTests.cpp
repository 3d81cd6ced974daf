// What holds for a name that a file stands for.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "platform/NamedMutex.h"
#include "support/TempFolder.h"
#include "support/UniqueName.h"
#include "support/posix/ChildProcess.h"
#include "support/posix/OwnSystemRoot.h"

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

struct FolderRow {
  const char* meaning;
  int runLock;  // the mode of /run/lock and of /tmp; 0 for none
  int tmp;
  const char* used;  // empty when the name cannot be opened
};

constexpr FolderRow kFolderRows[] = {
    {"both", 01777, 01777, "run/lock"},
    {"no /run/lock", 0, 01777, "tmp"},
    {"no sticky bit", 0777, 01777, "tmp"},
    {"nothing for others", 01770, 01777, "tmp"},
    {"no other that is shared", 0755, 0755, "tmp"},
    {"neither", 0, 0, ""},
};

TEST(NamedMutexFolder, IsChosenByWhoMayWriteThere) {
  const std::string scope = NamedMutex::Scope();
  NamedMutex::SetScope("");
  for (const FolderRow& row : kFolderRows) {
    const test::OwnSystemRoot root;
    const auto make = [&root](const char* name, int mode) {
      if (mode == 0) return;
      std::filesystem::create_directories(root.Path(name));
      std::filesystem::permissions(root.Path(name), static_cast<std::filesystem::perms>(mode));
    };
    make("run/lock", row.runLock);
    make("tmp", row.tmp);
    const std::string used = row.used;
    EXPECT_EQ(NamedMutex().Open("a"), used.empty() ? Opened::Failed : Opened::First) << row.meaning;
    for (const char* folder : {"run/lock", "tmp"}) {
      EXPECT_EQ(std::filesystem::exists(root.Path(std::string(folder) + "/mortane-a.lock")),
                folder == used)
          << row.meaning << ", " << folder;
    }
  }
  NamedMutex::SetScope(scope);
}

struct NameRow {
  const char* name;
  const char* inFile;
};

TEST(NamedMutexFile, HasTheNameWithCodesForWhatAFileNameMayNotHold) {
  const NameRow rows[] = {{"09AZaz-_.", "09AZaz-_."},
                          {" !,/:@", "%20%21%2C%2F%3A%40"},
                          {"[^`{~", "%5B%5E%60%7B%7E"},
                          {"\n\x01\xC2\xB5", "%0A%01%C2%B5"}};
  for (const NameRow& row : rows) {
    const test::UniqueName unique;
    ASSERT_EQ(NamedMutex().Open(unique.Text() + row.name), Opened::First);
    EXPECT_FALSE(LockFile(unique.Text() + row.inFile).empty()) << row.inFile;
  }
}

TEST(NamedMutexFile, ThatIsAPipeOrAFolderIsRefused) {
  const test::UniqueName unique;
  ASSERT_EQ(NamedMutex().Open(unique.Text()), Opened::First);
  const std::filesystem::path file = LockFile(unique.Text());
  ASSERT_FALSE(file.empty());
  std::filesystem::remove(file);
  ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
  EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::Failed);
  std::filesystem::remove(file);
  ASSERT_EQ(::mkdir(file.c_str(), 0700), 0);
  EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::Failed);
}

TEST(NamedMutexWait, OfNoTimeComesBackWithoutTheMutex) {
  const test::UniqueName unique;
  NamedMutex owner;
  ASSERT_EQ(owner.Open(unique.Text()), Opened::First);
  owner.Lock(0);
  test::ChildProcess waiter([&](const test::ChildProcess::Side&) {
    NamedMutex mutex;
    if (mutex.Open(unique.Text()) != Opened::AlreadyExisted) return 1;
    mutex.Lock(0);
    mutex.Lock(1);
    return 0;
  });
  EXPECT_EQ(waiter.Wait(), 0);
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

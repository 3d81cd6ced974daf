#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "common/Failure.h"
#include "common/TemporaryName.h"
#include "platform/AtomicFile.h"
#include "support/TempFolder.h"
#include "support/posix/ChildProcess.h"

namespace mortane {
namespace {

namespace fs = std::filesystem;

constexpr int kTaken = 0;
constexpr int kRefused = 1;

mode_t ModeOf(const std::string& path) {
  struct stat status = {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0);
  return status.st_mode & 07777U;
}

std::size_t FilesIn(const std::string& folder) {
  std::size_t count = 0;
  for (fs::directory_iterator entry(folder), end; entry != end; ++entry) ++count;
  return count;
}

int Try(const std::string& path, const std::string& bytes, const std::string& reason) {
  try {
    WriteFileAtomically(path, bytes);
    return kTaken;
  } catch (const Failure& failure) {
    return failure.Description() == "Cannot write " + path + ": " + reason ? kRefused : 2;
  }
}

int TryAsNobody(const std::string& path, const std::string& reason) {
  test::ChildProcess child([&](const test::ChildProcess::Side&) {
    test::DropPrivileges();
    return Try(path, "new", reason);
  });
  return child.Wait();
}

void OpenToEveryone(const std::string& path) {
  fs::permissions(path, fs::perms::all);
}

TEST(AtomicFileFaults, LeaveTheOldFileInAReadOnlyFolder) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  OpenToEveryone(path);
  fs::permissions(folder.Path(""), fs::perms::owner_read | fs::perms::owner_exec |
                                       fs::perms::others_read | fs::perms::others_exec);
  EXPECT_EQ(TryAsNobody(path, "Permission denied"), kRefused);
  fs::permissions(folder.Path(""), fs::perms::owner_all);
  EXPECT_EQ(ReadWholeFile(path), "old");
  EXPECT_EQ(FilesIn(folder.Path("")), 1U);
}

TEST(AtomicFileFaults, LeaveAReadOnlyFile) {
  const test::TempFolder folder;
  OpenToEveryone(folder.Path(""));
  const std::string path = folder.Write("a.xml", "old");
  fs::permissions(path, fs::perms::owner_read | fs::perms::others_read);
  EXPECT_EQ(TryAsNobody(path, "Permission denied"), kRefused);
  EXPECT_EQ(ReadWholeFile(path), "old");
  EXPECT_EQ(FilesIn(folder.Path("")), 1U);
}

TEST(AtomicFileFaults, ReadRefusesAFileWithoutPermission) {
  const test::TempFolder folder;
  OpenToEveryone(folder.Path(""));
  const std::string path = folder.Write("a.xml", "secret");
  fs::permissions(path, fs::perms::none);
  test::ChildProcess child([&](const test::ChildProcess::Side&) {
    test::DropPrivileges();
    try {
      ReadWholeFile(path);
      return kTaken;
    } catch (const Failure&) {
      return kRefused;
    }
  });
  EXPECT_EQ(child.Wait(), kRefused);
}

// A limit on the size of files ends a write half-way, as a full disk does.
TEST(AtomicFileFaults, LeaveTheOldFileWhenTheDiskIsFull) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  test::ChildProcess child([&](const test::ChildProcess::Side&) {
    ::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit limit = {4096, 4096};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 3;
    return Try(path, std::string(100000, 'x'), "File too large");
  });
  EXPECT_EQ(child.Wait(), kRefused);
  EXPECT_EQ(ReadWholeFile(path), "old");
  EXPECT_EQ(FilesIn(folder.Path("")), 1U);
}

// As nobody, so that not even a broken save could take the device away.
TEST(AtomicFileFaults, NeverReplaceADevice) {
  EXPECT_EQ(TryAsNobody("/dev/full", "not a regular file"), kRefused);
}

TEST(AtomicFileFaults, DoNotWaitForThePartnerOfAPipe) {
  const test::TempFolder folder;
  ASSERT_EQ(::mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  EXPECT_THROW(ReadWholeFile(folder.Path("pipe")), Failure);
  EXPECT_EQ(Try(folder.Path("pipe"), "x", "not a regular file"), kRefused);
}

// Has the calling process ended by a signal, wherever it is then.
void DieIn(int microseconds) {
  const struct itimerval once = {{0, 0}, {microseconds / 1000000, microseconds % 1000000}};
  ::setitimer(ITIMER_REAL, &once, nullptr);
}

TEST(AtomicFileFaults, AKilledProcessLeavesTheOldContentOrTheNew) {
  const test::TempFolder folder;
  const std::string path = folder.Path("a.xml");
  const std::string first(300000, 'a');
  const std::string second(400000, 'b');
  int kept = 0;
  for (int point = 0; point < 30; ++point) {
    WriteFileAtomically(path, first);
    test::ChildProcess child([&](const test::ChildProcess::Side& parent) {
      DieIn(1 + 120 * point);
      WriteFileAtomically(path, second);
      parent.AwaitParent();
      return 0;
    });
    ASSERT_EQ(child.Wait(), -SIGALRM);
    const std::string found = ReadWholeFile(path);
    ASSERT_TRUE(found == first || found == second) << "after " << found.size() << " bytes";
    kept += found == first ? 1 : 0;
  }
  EXPECT_GT(kept, 0) << "no process was killed before its save had ended";
  WriteFileAtomically(path, first);
  EXPECT_EQ(FilesIn(folder.Path("")), 1U) << "what the killed ones left beside is gone";
}

// The process of that number has ended and been waited for.
pid_t DeadProcess() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  EXPECT_EQ(::waitpid(child, nullptr, 0), child);
  return child;
}

TEST(AtomicFileFaults, TheNextSaveRemovesWhatDeadProcessesLeftInItsFolder) {
  const test::TempFolder folder;
  const pid_t dead = DeadProcess();
  fs::create_directory(folder.Path("inner"));
  for (const int number : {0, 1, 999}) folder.Write(TemporaryName(dead, number), "left");
  const std::string elsewhere = folder.Write("inner/" + TemporaryName(dead, 0), "left");
  const std::string path = folder.Write("a.xml", "old");
  WriteFileAtomically(path, "new");
  EXPECT_EQ(FilesIn(folder.Path("")), 2U) << "the file and the folder";
  EXPECT_TRUE(fs::exists(elsewhere)) << "no save was made there";
}

TEST(AtomicFileFaults, ASaveRemovesNothingButTemporariesOfDeadProcesses) {
  const test::TempFolder folder;
  const pid_t dead = DeadProcess();
  const std::string form = TemporaryName(dead, 0);
  folder.Write(form + ".bak", "x");
  folder.Write("x" + form, "x");
  folder.Write(".mortane-" + std::to_string(dead) + ".tmp", "x");
  folder.Write(".mortane-0" + std::to_string(dead) + "-0.tmp", "x");
  folder.Write(TemporaryName(1, 0), "of a process that lives");
  fs::create_directory(folder.Path(TemporaryName(dead, 1)));
  fs::create_symlink("a.xml", folder.Path(TemporaryName(dead, 2)));
  ASSERT_EQ(::mkfifo(folder.Path(TemporaryName(dead, 3)).c_str(), 0600), 0);
  WriteFileAtomically(folder.Path("a.xml"), "new");
  EXPECT_EQ(FilesIn(folder.Path("")), 9U);
}

// Process numbers have 31 bits here; a file of a larger one was written on another system.
TEST(AtomicFileFaults, ASaveRemovesNoTemporaryOfAProcessThatCannotBeHere) {
  const test::TempFolder folder;
  const std::string largest = folder.Write(TemporaryName(2147483647, 0), "left");
  const std::string above = folder.Write(TemporaryName(2147483648, 0), "left");
  const std::string wide = folder.Write(TemporaryName(4294967296 + 2147483647, 0), "left");
  WriteFileAtomically(folder.Path("a.xml"), "new");
  EXPECT_FALSE(fs::exists(largest));
  EXPECT_TRUE(fs::exists(above));
  EXPECT_TRUE(fs::exists(wide));
}

TEST(AtomicFileFaults, ASaveInTheCurrentFolderTidiesItToo) {
  const test::TempFolder folder;
  const std::string left = folder.Write(TemporaryName(DeadProcess(), 0), "left");
  test::ChildProcess child([&](const test::ChildProcess::Side&) {
    return ::chdir(folder.Path("").c_str()) == 0 ? Try("a.xml", "new", "") : 3;
  });
  EXPECT_EQ(child.Wait(), kTaken);
  EXPECT_EQ(ReadWholeFile(folder.Path("a.xml")), "new");
  EXPECT_FALSE(fs::exists(left));
}

TEST(AtomicFileFaults, TellWhatStandsInTheWay) {
  const test::TempFolder folder;
  const std::string file = folder.Write("a.xml", "old");
  EXPECT_EQ(Try(folder.Path(""), "x", "Is a directory"), kRefused);
  EXPECT_EQ(Try(file + "/b.xml", "x", "Not a directory"), kRefused);
  EXPECT_EQ(Try(folder.Path("missing/b.xml"), "x", "No such file or directory"), kRefused);
  EXPECT_EQ(Try(folder.Path(std::string(256, 'x')), "x", "File name too long"), kRefused);
  EXPECT_EQ(ReadWholeFile(file), "old");
}

// A program that was started without a standard input has its first file in that place.
TEST(AtomicFileFaults, TheFirstDescriptorIsOneAsAnyOther) {
  const test::TempFolder folder;
  const std::string path = folder.Path("a.xml");
  test::ChildProcess child([&path](const test::ChildProcess::Side&) {
    ::close(STDIN_FILENO);
    if (Try(path, "new", "") != kTaken || ReadWholeFile(path) != "new") return 2;
    return ::open("/dev/null", O_RDONLY | O_CLOEXEC) == STDIN_FILENO ? 0 : 3;
  });
  EXPECT_EQ(child.Wait(), 0);
}

// The program of the first process is a link that only root may read.
TEST(AtomicFileFaults, TellOfALinkThatCannotBeRead) {
  const std::string link = "/proc/1/exe";
  test::ChildProcess child([&link](const test::ChildProcess::Side&) {
    test::DropPrivileges();
    std::error_code error;
    const bool isLink = fs::is_symlink(fs::symlink_status(link, error));
    // In a container the first process may be one of the same user.
    if (!isLink || !fs::read_symlink(link, error).empty()) return kRefused;
    return Try(link, "new", "Permission denied");
  });
  EXPECT_EQ(child.Wait(), kRefused);
}

TEST(AtomicFileFaults, AProcessHasAThousandNamesForItsTemporaries) {
  const test::TempFolder folder;
  const std::string file = folder.Write("a file", "");
  const auto take = [&](int number) {
    fs::create_hard_link(file, folder.Path(TemporaryName(::getpid(), number)));
  };
  for (int number = 0; number < 999; ++number) take(number);
  EXPECT_EQ(Try(folder.Path("a.xml"), "new", ""), kTaken);
  take(999);
  EXPECT_EQ(Try(folder.Path("a.xml"), "newer", "File exists"), kRefused);
  EXPECT_EQ(ReadWholeFile(folder.Path("a.xml")), "new");
}

// The numbers of processes on another machine, or in another container, mean nothing here.
TEST(AtomicFileFaults, ATemporaryThatSomeoneWritesStaysThoughItsProcessIsUnknownHere) {
  const test::TempFolder folder;
  const std::string path = folder.Write(TemporaryName(DeadProcess(), 0), "half");
  const int file = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(::flock(file, LOCK_EX | LOCK_NB), 0);
  WriteFileAtomically(folder.Path("a.xml"), "new");
  EXPECT_TRUE(fs::exists(path));
  ::close(file);
  WriteFileAtomically(folder.Path("a.xml"), "newer");
  EXPECT_FALSE(fs::exists(path));
}

TEST(AtomicFileFaults, ATemporaryIsLockedWhileItIsWritten) {
  const test::TempFolder folder;
  const std::string path = folder.Path("a.xml");
  test::ChildProcess child([&](const test::ChildProcess::Side& parent) {
    // A limit on the size of files stops the process in the middle of its write.
    ::signal(SIGXFSZ, SIG_DFL);
    ::signal(SIGXFSZ, [](int) { ::raise(SIGSTOP); });
    const struct rlimit limit = {4096, 4096};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 3;
    parent.Tell();
    return Try(path, std::string(100000, 'x'), "File too large");
  });
  child.AwaitChild();
  child.AwaitStop();
  const std::string temporary = folder.Path(TemporaryName(child.Id(), 0));
  const int file = ::open(temporary.c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_GE(file, 0);
  EXPECT_NE(::flock(file, LOCK_EX | LOCK_NB), 0);
  ::close(file);
  child.Continue();
  EXPECT_EQ(child.Wait(), kRefused);
  EXPECT_EQ(FilesIn(folder.Path("")), 0U);
}

TEST(AtomicFileFaults, AProcessKilledAfterTheSaveLeavesTheNewContent) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  test::ChildProcess child([&](const test::ChildProcess::Side& parent) {
    WriteFileAtomically(path, "new");
    parent.Tell();
    parent.AwaitParent();
    return 0;
  });
  child.AwaitChild();
  child.Kill();
  EXPECT_EQ(ReadWholeFile(path), "new");
}

TEST(AtomicFile, KeepsThePermissionsOfTheFile) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  WriteFileAtomically(path, "new");
  EXPECT_EQ(ModeOf(path), 0640U);
}

// Whoever may write to a file of another user may save it; only root could keep its owner.
TEST(AtomicFile, TakesAFileOfAnotherUser) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  OpenToEveryone(folder.Path(""));
  ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
  EXPECT_EQ(TryAsNobody(path, ""), kTaken);
  EXPECT_EQ(ReadWholeFile(path), "new");
  EXPECT_EQ(ModeOf(path), 0666U);
}

TEST(AtomicFile, MakesANewFileUnderTheUsersMask) {
  const test::TempFolder folder;
  const mode_t old = ::umask(027);
  WriteFileAtomically(folder.Path("a.xml"), "new");
  ::umask(old);
  EXPECT_EQ(ModeOf(folder.Path("a.xml")), 0640U);
}

TEST(AtomicFile, WritesToWhereALinkLeads) {
  const test::TempFolder folder;
  fs::create_directory(folder.Path("inner"));
  const std::string target = folder.Write("inner/a.xml", "old");
  fs::create_symlink("inner/a.xml", folder.Path("link"));
  fs::create_symlink("link", folder.Path("chain"));
  fs::create_symlink("inner/new.xml", folder.Path("dangling"));
  WriteFileAtomically(folder.Path("chain"), "new");
  WriteFileAtomically(folder.Path("dangling"), "made");
  EXPECT_EQ(ReadWholeFile(target), "new");
  EXPECT_EQ(ReadWholeFile(folder.Path("inner/new.xml")), "made");
  EXPECT_TRUE(fs::is_symlink(folder.Path("chain")) && fs::is_symlink(folder.Path("dangling")));
}

TEST(AtomicFile, FollowsAChainOfFortyLinks) {
  const test::TempFolder folder;
  const std::string target = folder.Write("0", "old");
  for (int link = 1; link <= 41; ++link) {
    fs::create_symlink(std::to_string(link - 1), folder.Path(std::to_string(link)));
  }
  EXPECT_EQ(Try(folder.Path("40"), "new", ""), kTaken);
  EXPECT_EQ(Try(folder.Path("41"), "newer", "Too many levels of symbolic links"), kRefused);
  EXPECT_EQ(ReadWholeFile(target), "new");
}

TEST(AtomicFile, RefusesLinksThatGoInACircle) {
  const test::TempFolder folder;
  fs::create_symlink("b", folder.Path("a"));
  fs::create_symlink("a", folder.Path("b"));
  EXPECT_EQ(Try(folder.Path("a"), "x", "Too many levels of symbolic links"), kRefused);
}

TEST(AtomicFile, GoesAroundWhatAKilledProcessLeftBeside) {
  const test::TempFolder folder;
  const std::string left = ".mortane-" + std::to_string(::getpid()) + "-0.tmp";
  folder.Write(left, "left");
  WriteFileAtomically(folder.Path("a.xml"), "new");
  EXPECT_EQ(ReadWholeFile(folder.Path("a.xml")), "new");
  EXPECT_EQ(ReadWholeFile(folder.Path(left)), "left");
}

}  // namespace
}  // namespace mortane

// Setup.ini on a system where a step of reading or saving it fails, or ends the process.
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <filesystem>

#include "support/ScriptedJoystick.h"
#include "support/TempFolder.h"
#include "support/posix/ChildProcess.h"
#include "switches/JoypadAssignments.h"

namespace mortane::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSetup = "Tarvex/OrmanaTools/Setup.ini";
constexpr const char* kBefore = "; kept\n[JoyPad]\nRight=1\nLeft=2\nButton30=3\n[B]\nx=1\n";

constexpr int kDone = 0;

// The user's folder for application data, open to all so that what is closed is closed on purpose.
class JoypadFile : public testing::Test {
 protected:
  JoypadFile() {
    for (const char* name : {"", "Tarvex", "Tarvex/OrmanaTools"}) {
      fs::create_directories(folder.Path(name));
      fs::permissions(folder.Path(name), fs::perms::all);
    }
    folder.Write(kSetup, kBefore);
    fs::permissions(folder.Path(kSetup), fs::perms::all);
  }

  // Opens the assignments, changes them and saves, in a process that permissions bind.
  int SaveAsNobody(int firstCode) const {
    ChildProcess child([&](const ChildProcess::Side&) {
      DropPrivileges();
      return ChangeAndSave(firstCode);
    });
    return child.Wait();
  }
  // Answers kDone when the first code was what the file, or no file, makes it.
  int ChangeAndSave(int firstCode) const {
    ScriptedJoystick joystick;
    JoypadAssignments assignments(joystick, folder.Path(""));
    if (assignments.Code(1) != firstCode) return 1;
    for (std::int32_t row = 1; row <= 14; ++row) assignments.Code(row, 46);
    assignments.Save();
    return kDone;
  }

  std::string Content() const { return TempFolder::Read(folder.Path(kSetup)); }
  std::size_t FilesBeside() const {
    std::size_t count = 0;
    for (fs::directory_iterator entry(folder.Path("Tarvex/OrmanaTools")), end; entry != end;
         ++entry)
      ++count;
    return count;
  }

  TempFolder folder;
};

TEST_F(JoypadFile, IsSavedByAnyUserWhoMay) {
  EXPECT_EQ(SaveAsNobody(1), kDone);
  EXPECT_TRUE(Content().starts_with("; kept\n[JoyPad]\nRight=46\nLeft=46\nButton30=3\nUp=46\n"));
  EXPECT_TRUE(Content().ends_with("Button10=46\n[B]\nx=1\n"));
}

TEST_F(JoypadFile, WhoseFolderCannotBeMadeIsNeitherReadNorWritten) {
  fs::remove_all(folder.Path("Tarvex"));
  fs::permissions(folder.Path(""),
                  fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  EXPECT_EQ(SaveAsNobody(0), kDone);
  EXPECT_FALSE(fs::exists(folder.Path("Tarvex")));
}

TEST_F(JoypadFile, WithAFileInItsFoldersPlaceIsNeitherReadNorWritten) {
  fs::remove_all(folder.Path("Tarvex"));
  folder.Write("Tarvex", "kept");
  EXPECT_EQ(SaveAsNobody(0), kDone);
  EXPECT_EQ(TempFolder::Read(folder.Path("Tarvex")), "kept");
}

// What cannot be read must not be replaced by a file that lacks all of it.
TEST_F(JoypadFile, ThatCannotBeReadIsLeftAsItIs) {
  fs::permissions(folder.Path(kSetup), fs::perms::owner_all | fs::perms::others_write);
  EXPECT_EQ(SaveAsNobody(0), kDone);
  EXPECT_EQ(Content(), kBefore);
}

TEST_F(JoypadFile, ThatIsAFolderIsLeftAsItIs) {
  fs::remove(folder.Path(kSetup));
  fs::create_directory(folder.Path(kSetup));
  EXPECT_EQ(SaveAsNobody(0), kDone);
  EXPECT_TRUE(fs::is_directory(folder.Path(kSetup)));
}

TEST_F(JoypadFile, ThatMayNotBeWrittenIsLeftAsItIs) {
  fs::permissions(folder.Path(kSetup), fs::perms::owner_read | fs::perms::others_read);
  EXPECT_EQ(SaveAsNobody(1), kDone);
  EXPECT_EQ(Content(), kBefore);
}

TEST_F(JoypadFile, BesideWhichNoNewFileCanBeMadeIsLeftAsItIs) {
  fs::permissions(folder.Path("Tarvex/OrmanaTools"),
                  fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  EXPECT_EQ(SaveAsNobody(1), kDone);
  EXPECT_EQ(Content(), kBefore);
}

// A limit on the size of files ends a write half-way, as a full disk does.
TEST_F(JoypadFile, OnAFullDiskIsLeftAsItIs) {
  ChildProcess child([&](const ChildProcess::Side&) {
    ::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit limit = {16, 16};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 3;
    return ChangeAndSave(1);
  });
  EXPECT_EQ(child.Wait(), kDone);
  EXPECT_EQ(Content(), kBefore);
  EXPECT_EQ(FilesBeside(), 1U);
}

struct SystemCall {
  const char* name;
  long number;
};

// Those by which a file is found, read, written beside its place and put there.
constexpr SystemCall kReadingCalls[] = {{"openat", SYS_openat}, {"read", SYS_read}};
constexpr SystemCall kSavingCalls[] = {
    {"fchown", SYS_fchown}, {"fchmod", SYS_fchmod}, {"write", SYS_write},
    {"fsync", SYS_fsync},   {"close", SYS_close},
#ifdef SYS_rename
    {"rename", SYS_rename},
#else
    {"renameat", SYS_renameat},
#endif
};
#ifdef SYS_mkdir
constexpr SystemCall kMakingFolders{"mkdir", SYS_mkdir};
#else
constexpr SystemCall kMakingFolders{"mkdirat", SYS_mkdirat};
#endif

// From here on the call fails in this process, with an error of input and output.
bool LetFail(const SystemCall& call) {
  struct sock_filter steps[] = {
      {BPF_LD | BPF_W | BPF_ABS, 0, 0, offsetof(struct seccomp_data, nr)},
      {BPF_JMP | BPF_JEQ | BPF_K, 0, 1, static_cast<std::uint32_t>(call.number)},
      {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ERRNO | EIO},
      {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ALLOW}};
  const struct sock_fprog program = {4, steps};
  return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

TEST_F(JoypadFile, OfWhichACallFailsIsLeftAsItIs) {
  const auto saveWithout = [&](const SystemCall& call, int firstCode) {
    ChildProcess child(
        [&](const ChildProcess::Side&) { return LetFail(call) ? ChangeAndSave(firstCode) : 3; });
    EXPECT_EQ(child.Wait(), kDone) << call.name;
    EXPECT_EQ(Content(), kBefore) << call.name;
    EXPECT_EQ(FilesBeside(), 1U) << call.name;
  };
  for (const SystemCall& call : kReadingCalls) saveWithout(call, 0);
  for (const SystemCall& call : kSavingCalls) saveWithout(call, 1);
}

// The tests around this one show nothing if the failing of calls itself keeps a file from its save.
TEST_F(JoypadFile, OfWhichNoCallFailsIsSaved) {
  ChildProcess child([&](const ChildProcess::Side&) {
    return LetFail({"reboot", SYS_reboot}) ? ChangeAndSave(1) : 3;
  });
  EXPECT_EQ(child.Wait(), kDone);
  EXPECT_NE(Content(), kBefore);
}

TEST_F(JoypadFile, WhoseFoldersMakingFailsIsNotWritten) {
  fs::remove_all(folder.Path("Tarvex/OrmanaTools"));
  ChildProcess child(
      [&](const ChildProcess::Side&) { return LetFail(kMakingFolders) ? ChangeAndSave(0) : 3; });
  EXPECT_EQ(child.Wait(), kDone);
  EXPECT_FALSE(fs::exists(folder.Path("Tarvex/OrmanaTools")));
}

void DieIn(int microseconds) {
  const struct itimerval once = {{0, 0}, {0, microseconds}};
  ::setitimer(ITIMER_REAL, &once, nullptr);
}

// The whole of a save is one step: never some of the keys.
TEST_F(JoypadFile, OfAProcessKilledDuringASaveIsTheOldOrTheNew) {
  // So large that a save takes its time.
  const std::string before = std::string(kBefore) + "; " + std::string(300000, 'x') + "\n";
  std::string after;
  int kept = 0;
  for (int point = -1; point < 40; ++point) {
    folder.Write(kSetup, before);
    ChildProcess child([&](const ChildProcess::Side& parent) {
      ScriptedJoystick joystick;
      JoypadAssignments assignments(joystick, folder.Path(""));
      for (std::int32_t row = 1; row <= 14; ++row) assignments.Code(row, 46);
      if (point >= 0) DieIn(1 + 60 * point);
      assignments.Save();
      if (point >= 0) parent.AwaitParent();
      return kDone;
    });
    ASSERT_EQ(child.Wait(), point >= 0 ? -SIGALRM : kDone);
    if (point < 0) after = Content();
    ASSERT_TRUE(Content() == before || Content() == after) << point;
    kept += Content() == before ? 1 : 0;
  }
  EXPECT_NE(after, before);
  EXPECT_GT(kept, 0) << "no process was killed before its save had ended";
}

}  // namespace
}  // namespace mortane::test

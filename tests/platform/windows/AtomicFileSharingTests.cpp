// Files that other programs have open, and saves that are killed.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <filesystem>
#include <string>

#include "common/Failure.h"
#include "common/TemporaryName.h"
#include "platform/AtomicFile.h"
#include "platform/Sleep.h"
#include "platform/windows/Handle.h"
#include "platform/windows/ReplacementFile.h"
#include "platform/windows/Wide.h"
#include "support/SecondProcess.h"
#include "support/TempFolder.h"

namespace mortane {
namespace {

namespace fs = std::filesystem;
using test::PathOf;
using test::SecondProcess;
using test::TempFolder;
using test::Words;

constexpr std::size_t kLarge = 300000;

constexpr DWORD kWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::size_t FilesIn(const std::string& folder) {
  std::size_t count = 0;
  for (fs::directory_iterator entry(PathOf(folder)), end; entry != end; ++entry) ++count;
  return count;
}

Handle Open(const std::string& path, DWORD access, DWORD sharing) {
  return Handle(CreateFileW(PathOf(path).c_str(), access, sharing, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
}

// What the file says through an open handle.
std::string Content(const Handle& file) {
  std::string bytes(1000, '\0');
  DWORD count = 0;
  ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
  bytes.resize(count);
  return bytes;
}

// Holds the file of the first word open; the second is the sharing, as a number.
const SecondProcess::Part kHoldOpen{
    "hold open", [](const SecondProcess::Side& test, const Words& words) {
      const Handle file =
          Open(words.at(0), GENERIC_READ, static_cast<DWORD>(std::stoul(words.at(1))));
      if (!file.IsOpen()) return 1;
      test.Tell();
      test.AwaitTest();
      return Content(file) == "old" ? 0 : 2;
    }};

std::string Refusal(const std::string& path) {
  try {
    WriteFileAtomically(path, "new");
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kFileError);
    return failure.Description();
  }
  return "saved";
}

TEST(AtomicFileSharing, RefusesAFileThatAnotherProgramHasForItself) {
  for (const DWORD sharing :
       {0UL, FILE_SHARE_READ + 0UL, FILE_SHARE_READ + FILE_SHARE_WRITE + 0UL}) {
    const TempFolder folder;
    const std::string path = folder.Write("a \xC3\xA4.xml", "old");
    SecondProcess other(kHoldOpen, {path, std::to_string(sharing)});
    other.Await();
    EXPECT_EQ(Refusal(path),
              "Cannot write " + path + ": " + SystemMessage(ERROR_SHARING_VIOLATION));
    EXPECT_EQ(FilesIn(folder.Path("")), 1U) << "no temporary file";
    other.Tell();
    EXPECT_EQ(other.Wait(), 0) << "the other program reads the old content";
    EXPECT_EQ(ReadWholeFile(path), "old");
    WriteFileAtomically(path, "new");
    EXPECT_EQ(ReadWholeFile(path), "new");
  }
}

TEST(AtomicFileSharing, NeedsNoNewTryOnceTheOtherProgramWasKilled) {
  const TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  SecondProcess other(kHoldOpen, {path, "0"});
  other.Await();
  EXPECT_NE(Refusal(path), "saved");
  other.Kill();
  EXPECT_EQ(Refusal(path), "saved");
}

TEST(AtomicFileSharing, RefusesToReadAFileThatAnotherProgramHasForItself) {
  const TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  SecondProcess other(kHoldOpen, {path, "0"});
  other.Await();
  try {
    ReadWholeFile(path);
    ADD_FAILURE() << "nothing was raised";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kFileError);
    EXPECT_EQ(failure.Description(),
              "Cannot read " + path + ": " + SystemMessage(ERROR_SHARING_VIOLATION));
  }
}

// What is being written now is neither the old content nor the new.
TEST(AtomicFileSharing, RefusesToReadAFileThatIsBeingWritten) {
  const TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  const Handle writer = Open(path, GENERIC_WRITE, kWithAll);
  EXPECT_THROW(ReadWholeFile(path), Failure);
}

TEST(AtomicFileSharing, ReplacesAFileThatOthersReadAndShare) {
  const TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  SecondProcess other(kHoldOpen, {path, std::to_string(kWithAll)});
  other.Await();
  Handle reader = Open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE);
  WriteFileAtomically(path, "new");
  EXPECT_EQ(ReadWholeFile(path), "new");
  EXPECT_EQ(Content(reader), "old") << "who has it open reads on in the old one";
  other.Tell();
  EXPECT_EQ(other.Wait(), 0);
  reader.Close();
  EXPECT_EQ(FilesIn(folder.Path("")), 1U);
}

TEST(AtomicFileSharing, ReadsBesideOtherReaders) {
  const TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  const Handle reader = Open(path, GENERIC_READ, FILE_SHARE_READ);
  EXPECT_EQ(ReadWholeFile(path), "old");
}

bool IsWhole(const std::string& content) {
  return content.size() == kLarge && content == std::string(kLarge, content.front());
}

// Opens the file again and again, each second time for itself alone; the number of times that it
// was not whole.
const SecondProcess::Part kOpenOften{
    "open often", [](const SecondProcess::Side& test, const Words& words) {
      int broken = 0;
      test.Tell();
      for (int round = 0; round < 300; ++round) {
        const Handle file = Open(words.at(0), GENERIC_READ, round % 2 == 0 ? kWithAll : 0);
        std::string bytes(kLarge + 1, '\0');
        DWORD count = 0;
        if (!file.IsOpen()) continue;
        ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
        bytes.resize(count);
        broken += IsWhole(bytes) ? 0 : 1;
      }
      return broken;
    }};

// A save in between is refused or made; nobody sees a part of one.
TEST(AtomicFileSharing, SavesBetweenOtherProgramsThatOpenTheFile) {
  const TempFolder folder;
  const std::string path = folder.Write("a.xml", std::string(kLarge, 'a'));
  SecondProcess other(kOpenOften, {path});
  other.Await();
  int made = 0;
  for (char content = 'b'; content <= 'z'; ++content) {
    try {
      WriteFileAtomically(path, std::string(kLarge, content));
      ++made;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), kFileError) << failure.Description();
    }
  }
  EXPECT_EQ(other.Wait(), 0);
  EXPECT_GT(made, 0);
  EXPECT_TRUE(IsWhole(ReadWholeFile(path)));
  EXPECT_EQ(FilesIn(folder.Path("")), 1U);
}

// Saves two contents in turn until it is killed.
const SecondProcess::Part kSaveForEver{
    "save for ever", [](const SecondProcess::Side& test, const Words& words) -> int {
      test.Tell();
      for (char content = 'a';; content = content == 'a' ? 'b' : 'a')
        WriteFileAtomically(words.at(0), std::string(kLarge, content));
    }};

TEST(AtomicFileSharing, AKilledProcessLeavesTheOldContentOrTheNew) {
  const TempFolder folder;
  const std::string path = folder.Write("a.xml", std::string(kLarge, 'a'));
  std::size_t left = 0;
  for (int round = 0; round < 60 && (round < 10 || left == 0); ++round) {
    SecondProcess saver(kSaveForEver, {path});
    saver.Await();
    SleepMilliseconds(round % 12);
    saver.Kill();
    left += FilesIn(folder.Path("")) - 1;
    ASSERT_TRUE(IsWhole(ReadWholeFile(path)));
  }
  EXPECT_GT(left, 0U) << "no process was killed during a save";
  WriteFileAtomically(path, "new");
  EXPECT_EQ(FilesIn(folder.Path("")), 1U) << "what the killed ones left beside is gone";
}

const SecondProcess::Part kTellNumber{
    "tell number", [](const SecondProcess::Side& test, const Words& words) {
      WriteFileAtomically(words.at(0), std::to_string(GetCurrentProcessId()));
      test.Tell();
      test.AwaitTest();
      return 0;
    }};

// A process that writes its number into the folder, and lives until the destructor.
struct KnownProcess {
  explicit KnownProcess(const TempFolder& folder) : process(kTellNumber, {folder.Path("number")}) {
    process.Await();
    number = std::stol(ReadWholeFile(folder.Path("number")));
    DeleteFileW(PathOf(folder.Path("number")).c_str());
  }

  SecondProcess process;
  std::int64_t number = 0;
};

TEST(AtomicFileSharing, TheNextSaveRemovesWhatDeadProcessesLeftInItsFolderAndNothingElse) {
  const TempFolder folder;
  KnownProcess living(folder);
  KnownProcess dead(folder);
  dead.process.Kill();
  for (const int number : {0, 1, 999}) folder.Write(TemporaryName(dead.number, number), "left");
  const std::string form = TemporaryName(dead.number, 0);
  folder.Write(form + ".bak", "x");
  folder.Write("x" + form, "x");
  folder.Write(".mortane-" + std::to_string(dead.number) + ".tmp", "x");
  folder.Write(TemporaryName(living.number, 0), "of a process that lives");
  fs::create_directory(PathOf(folder.Path(TemporaryName(dead.number, 2))));
  WriteFileAtomically(folder.Path("a.xml"), "new");
  EXPECT_EQ(FilesIn(folder.Path("")), 6U);
  EXPECT_FALSE(fs::exists(PathOf(folder.Path(form))));
}

// The numbers of processes on another machine mean nothing here.
TEST(AtomicFileSharing, ATemporaryThatSomeoneWritesStaysThoughItsProcessIsUnknownHere) {
  const TempFolder folder;
  KnownProcess dead(folder);
  dead.process.Kill();
  const std::string path = folder.Write(TemporaryName(dead.number, 0), "half");
  Handle writer = Open(path, GENERIC_WRITE, 0);
  ASSERT_TRUE(writer.IsOpen());
  WriteFileAtomically(folder.Path("a.xml"), "new");
  EXPECT_TRUE(fs::exists(PathOf(path)));
  writer.Close();
  WriteFileAtomically(folder.Path("a.xml"), "newer");
  EXPECT_FALSE(fs::exists(PathOf(path)));
}

// As the system documents it: flags, root, length in bytes, name.
TEST(RenameRequest, ReplacesAFileEvenWhileOthersHaveItOpen) {
  const std::wstring path = L"C:\\\u65E5";
  const std::vector<std::byte> request = RenameRequest(path);
  DWORD flags = 0;
  HANDLE root = INVALID_HANDLE_VALUE;
  DWORD length = 0;
  std::wstring name(path.size() + 1, L'x');
  ASSERT_GE(request.size(), 20 + 2 * name.size());
  std::memcpy(&flags, request.data(), 4);
  std::memcpy(&root, request.data() + 8, 8);
  std::memcpy(&length, request.data() + 16, 4);
  std::memcpy(name.data(), request.data() + 20, 2 * name.size());
  EXPECT_EQ(flags, 3U) << "replace if it exists, with POSIX semantics";
  EXPECT_EQ(root, nullptr);
  EXPECT_EQ(length, 2 * path.size());
  EXPECT_EQ(name, path + L'\0');
}

TEST(AtomicFileSharing, GoesAroundWhatAKilledProcessOfTheSameNumberLeft) {
  const TempFolder folder;
  const std::string left = folder.Write(TemporaryName(GetCurrentProcessId(), 0), "left");
  WriteFileAtomically(folder.Path("a.xml"), "new");
  EXPECT_EQ(ReadWholeFile(folder.Path("a.xml")), "new");
  EXPECT_EQ(ReadWholeFile(left), "left");
}

}  // namespace
}  // namespace mortane

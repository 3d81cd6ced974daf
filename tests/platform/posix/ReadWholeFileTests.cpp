// What cannot be read as a file, and why it says it cannot.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "common/Failure.h"
#include "platform/AtomicFile.h"
#include "support/TempFolder.h"

namespace mortane {
namespace {

std::string ProblemOf(const std::string& path, std::size_t limit = kLargestFile) {
  try {
    ReadWholeFile(path, limit);
  } catch (const Failure& failure) {
    return failure.Description();
  }
  return {};
}

TEST(ReadWholeFileProblem, TellsFoldersPipesAndFilesThatAreTooLong) {
  const test::TempFolder folder;
  EXPECT_EQ(ProblemOf(folder.Path("")), "Cannot read " + folder.Path("") + ": Is a directory");
  const std::string pipe = folder.Path("pipe");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(ProblemOf(pipe), "Cannot read " + pipe + ": not a regular file");
  const std::string file = folder.Write("a.xml", "12345");
  EXPECT_EQ(ProblemOf(file, 4), "Cannot read " + file + ": File too large");
}

// Files of the kernel have no size beforehand, and some cannot be read from their beginning.
TEST(ReadWholeFileProblem, TellsWhatShowsWhileItIsRead) {
  struct stat status = {};
  if (::stat("/proc/self/mem", &status) != 0) return;
  EXPECT_EQ(ProblemOf("/proc/self/status", 10), "Cannot read /proc/self/status: File too large");
  EXPECT_EQ(ProblemOf("/proc/self/mem"), "Cannot read /proc/self/mem: Input/output error");
}

}  // namespace
}  // namespace mortane

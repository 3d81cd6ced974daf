// The standard streams of a program of the command line.
#include "platform/Terminal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>

#include "support/posix/ChildProcess.h"

namespace mortane::test {
namespace {

// Puts another file in place of the standard output for its lifetime.
class OutputTo {
 public:
  explicit OutputTo(int descriptor) : former_(::dup(STDOUT_FILENO)) {
    ::dup2(descriptor, STDOUT_FILENO);
  }
  ~OutputTo() {
    ::dup2(former_, STDOUT_FILENO);
    ::close(former_);
  }
  OutputTo(const OutputTo&) = delete;
  OutputTo& operator=(const OutputTo&) = delete;

 private:
  int former_;
};

TEST(Terminal, APipeIsNone) {
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe(ends.data()), 0);
  {
    const OutputTo pipe(ends[1]);
    EXPECT_FALSE(IsTerminal(StandardStream::Output));
    EXPECT_EQ(WriteStandardOutput("a line\n"), "");
  }
  std::array<char, 16> read{};
  EXPECT_EQ(::read(ends[0], read.data(), read.size()), 7);
  EXPECT_STREQ(read.data(), "a line\n");
  ::close(ends[0]);
  ::close(ends[1]);
}

TEST(Terminal, AFullDeviceGivesItsReason) {
  const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
  ASSERT_GE(full, 0);
  const OutputTo device(full);
  EXPECT_EQ(WriteStandardOutput("a line\n"), "No space left on device");
  ::close(full);
}

int WriteToNobody(const ChildProcess::Side& /*test*/) {
  PrepareStandardStreams();
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) return 2;
  ::close(ends[0]);
  const OutputTo pipe(ends[1]);
  return WriteStandardOutput("a line\n") == "Broken pipe" ? 0 : 1;
}

int OpenAFileWithoutAnOutput(const ChildProcess::Side& /*test*/) {
  ::close(STDOUT_FILENO);
  PrepareStandardStreams();
  const int file = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  return file > STDERR_FILENO && !WriteStandardOutput("a line\n").empty() ? 0 : 1;
}

TEST(Terminal, AReaderThatIsGoneIsAReasonAndNoSignal) {
  EXPECT_EQ(ChildProcess(WriteToNobody).Wait(), 0);
}

TEST(Terminal, NoFileTakesThePlaceOfAMissingStream) {
  EXPECT_EQ(ChildProcess(OpenAFileWithoutAnOutput).Wait(), 0);
}

}  // namespace
}  // namespace mortane::test

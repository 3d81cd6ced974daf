// The standard streams of a program of the command line.
#include "platform/Terminal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

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
  ChildProcess child([&ends](const ChildProcess::Side& /*test*/) {
    const OutputTo pipe(ends[1]);
    if (IsTerminal(StandardStream::Output)) return 1;
    return WriteStandardOutput("a line\n").empty() ? 0 : 2;
  });
  EXPECT_EQ(child.Wait(), 0);
  std::array<char, 16> read{};
  EXPECT_EQ(::read(ends[0], read.data(), read.size()), 7);
  EXPECT_STREQ(read.data(), "a line\n");
  ::close(ends[0]);
  ::close(ends[1]);
}

int WriteToAFullDevice(const ChildProcess::Side& /*test*/) {
  const OutputTo device(::open("/dev/full", O_WRONLY | O_CLOEXEC));
  return WriteStandardOutput("a line\n") == "No space left on device" ? 0 : 1;
}

TEST(Terminal, AFullDeviceGivesItsReason) {
  EXPECT_EQ(ChildProcess(WriteToAFullDevice).Wait(), 0);
}

constexpr StandardStream kStreams[] = {StandardStream::Input, StandardStream::Output,
                                       StandardStream::Error};

// A pseudo-terminal in place of one stream, and files in place of the others.
TEST(Terminal, IsToldOfEachStreamByItself) {
  for (int terminal = 0; terminal < 3; ++terminal) {
    ChildProcess child([terminal](const ChildProcess::Side& /*test*/) {
      const int main = ::posix_openpt(O_RDWR | O_NOCTTY);
      if (main < 0 || ::grantpt(main) != 0 || ::unlockpt(main) != 0) return 4;
      const int end = ::open(::ptsname(main), O_RDWR | O_NOCTTY);
      const int file = ::open("/dev/null", O_RDWR | O_CLOEXEC);
      for (int i = 0; i < 3; ++i) ::dup2(i == terminal ? end : file, i);
      int found = 0;
      for (int i = 0; i < 3; ++i) found += IsTerminal(kStreams[i]) == (i == terminal) ? 1 : 0;
      return found;
    });
    EXPECT_EQ(child.Wait(), 3) << terminal;
  }
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

// 0 when each missing stream is filled so that its use fails, and no other file was opened.
int FillMissing(const std::vector<int>& missing) {
  for (const int stream : {0, 1, 2}) ::dup2(::open("/dev/null", O_RDWR), stream);
  for (int file = 3; file < 64; ++file) ::close(file);
  for (const int stream : missing) ::close(stream);
  PrepareStandardStreams();
  int wrong = ::open("/dev/null", O_RDONLY) == 3 ? 0 : 10;
  for (const int stream : {0, 1, 2}) {
    char byte = 0;
    const ssize_t moved = stream == 0 ? ::read(0, &byte, 1) : ::write(stream, &byte, 1);
    const bool isMissing = std::find(missing.begin(), missing.end(), stream) != missing.end();
    if ((moved < 0) != isMissing) ++wrong;
  }
  return wrong;
}

TEST(Terminal, EachMissingStreamIsFilledAndNoOther) {
  const std::vector<int> rows[] = {{}, {0}, {1}, {2}, {0, 1}, {0, 2}, {1, 2}, {0, 1, 2}};
  for (const std::vector<int>& missing : rows) {
    ChildProcess child([&](const ChildProcess::Side& /*test*/) { return FillMissing(missing); });
    EXPECT_EQ(child.Wait(), 0) << testing::PrintToString(missing);
  }
}

TEST(Terminal, NoFileTakesThePlaceOfAMissingStream) {
  EXPECT_EQ(ChildProcess(OpenAFileWithoutAnOutput).Wait(), 0);
}

}  // namespace
}  // namespace mortane::test

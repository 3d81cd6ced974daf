#include "platform/Terminal.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>

namespace mortane {
namespace {

int DescriptorOf(StandardStream stream) {
  constexpr std::array<int, 3> kDescriptors{STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
  return kDescriptors[static_cast<std::size_t>(stream)];
}

}  // namespace

// A missing descriptor is filled with one of the other direction, so that every use of it fails.
void PrepareStandardStreams() {
  ::signal(SIGPIPE, SIG_IGN);
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(descriptor, F_GETFD) >= 0 || errno != EBADF) continue;
    // The lowest free number is the one that was found missing.
    static_cast<void>(::open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY));
  }
}

bool IsTerminal(StandardStream stream) {
  return ::isatty(DescriptorOf(stream)) == 1;
}

std::string WriteStandardOutput(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return std::generic_category().message(errno);
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

}  // namespace mortane

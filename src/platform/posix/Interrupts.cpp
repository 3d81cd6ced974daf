#include "platform/Interrupts.h"

#include <array>
#include <csignal>

namespace mortane {
namespace {

constexpr std::array<int, 3> kRequests{SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t asked = 0;

// Only what a signal handler may call.
void Remember(int /*signal*/) {
  asked = 1;
  for (const int request : kRequests) ::signal(request, SIG_DFL);
}

}  // namespace

// A request that the process was started to ignore, as below nohup, stays ignored.
InterruptWatch::InterruptWatch() {
  asked = 0;
  struct sigaction action = {};
  action.sa_handler = Remember;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  for (const int request : kRequests) {
    struct sigaction former = {};
    const bool ignored = ::sigaction(request, nullptr, &former) == 0 &&
                         former.sa_handler == SIG_IGN;  // NOLINT(performance-no-int-to-ptr)
    if (!ignored) ::sigaction(request, &action, nullptr);
  }
}

InterruptWatch::~InterruptWatch() {
  for (const int request : kRequests) {
    struct sigaction former = {};
    if (::sigaction(request, nullptr, &former) == 0 && former.sa_handler == Remember) {
      ::signal(request, SIG_DFL);
    }
  }
}

bool InterruptWatch::Asked() {
  return asked != 0;
}

}  // namespace mortane

#include "drives/FiberRemoteLink.h"

#include "common/ErrorTrap.h"
#include "drives/clsControlOther.h"

namespace mortane {
namespace {

constexpr std::int32_t kOpenTimeoutMs = 1000;

}  // namespace

FiberRemoteLink::FiberRemoteLink(controller::ControllerLibrary& library) {
  ErrorTrap missing;
  missing.Run([&] { server_ = controller::FiberServer(library.Create("FiberServer")); });
  missing.Run([&] { remote_ = controller::FiberRemote(library.Create("FiberRemote")); });
}

FiberRemoteLink::~FiberRemoteLink() {
  ErrorTrap ignored;
  ignored.Run([this] { server_.Close(); });
}

// A remote that cannot be read counts as a server that does not answer: no page shows values that
// were never read.
void FiberRemoteLink::Read(clsControlOther& other) const {
  if (!IsOpen()) Open();
  other.curFiberStatus = IsOpen();
  if (!other.curFiberStatus) return;
  ErrorTrap trap;
  other.curFiberStatus = trap.Run([&] {
    const std::int16_t enabled = remote_.SwitchEnable();
    const std::int16_t led = remote_.LED();
    other.curFiberSwEnable = enabled;
    other.curFiberLED = led;
  });
}

void FiberRemoteLink::Write(const clsControlOther& other) const {
  if (!other.curFiberStatus) return;
  if (other.curFiberSwEnable != kUnknown) {
    remote_.PutSwitchEnable(controller::ToInteger(other.curFiberSwEnable));
  }
  if (other.curFiberLED != kUnknown) remote_.PutLED(controller::ToInteger(other.curFiberLED));
}

bool FiberRemoteLink::IsOpen() const {
  bool open = false;
  ErrorTrap trap;
  trap.Run([&] { open = server_.IsOpen(); });
  return open;
}

// Status belongs to the opening; what it answers is not needed, since IsOpen is asked next.
void FiberRemoteLink::Open() const {
  ErrorTrap trap;
  trap.Run([this] { server_.Open(kOpenTimeoutMs); });
  trap.Run([this] { server_.Status(); });
}

}  // namespace mortane

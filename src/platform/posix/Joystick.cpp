#include "platform/Joystick.h"

#include <fcntl.h>
#include <linux/joystick.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/Descriptor.h"
#include "platform/posix/SystemRoot.h"

namespace mortane {
namespace {

constexpr const char* kDevice = "/dev/input/js0";

Descriptor OpenJoystick() {
  return Descriptor(::open(SystemRoot::Path(kDevice).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
}

// The device file exists only while a joystick is plugged in; any other error is the driver's.
std::int32_t OpenError() {
  return errno == ENOENT || errno == ENODEV || errno == ENXIO ? kJoystickUnplugged
                                                              : kJoystickNoDriver;
}

}  // namespace

JoystickCapabilities SystemJoystick::ReadCapabilities() {
  const Descriptor joystick = OpenJoystick();
  if (!joystick.IsOpen()) return {OpenError(), 0};
  unsigned char buttons = 0;
  if (::ioctl(joystick.Get(), JSIOCGBUTTONS, &buttons) < 0) return {kJoystickNoDriver, 0};
  return {kJoystickOk, buttons};
}

std::int32_t SystemJoystick::ReadStatus() {
  const Descriptor joystick = OpenJoystick();
  if (!joystick.IsOpen()) return OpenError();
  // The driver begins every stream with the present state of all axes and buttons.
  struct js_event event = {};
  if (::read(joystick.Get(), &event, sizeof event) < 0 && errno != EAGAIN) return OpenError();
  return kJoystickOk;
}

}  // namespace mortane

// A joystick counts as unplugged while it has no device file.
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/Joystick.h"

namespace mortane {
namespace {

TEST(SystemJoystickFile, ThatIsNotThereIsAnUnpluggedJoystick) {
  const bool missing = ::access("/dev/input/js0", F_OK) != 0;
  SystemJoystick joystick;
  EXPECT_EQ(joystick.ReadStatus() == kJoystickUnplugged, missing);
  EXPECT_EQ(joystick.ReadCapabilities().result == kJoystickUnplugged, missing);
}

}  // namespace
}  // namespace mortane

#include "platform/Joystick.h"

#include <gtest/gtest.h>

namespace mortane {
namespace {

// Whether the machine of the test has a joystick is not known; both calls must agree on it.
TEST(SystemJoystick, AnswersBothQuestionsAlike) {
  SystemJoystick joystick;
  const JoystickCapabilities capabilities = joystick.ReadCapabilities();
  const std::int32_t status = joystick.ReadStatus();
  EXPECT_EQ(capabilities.result == kJoystickOk, status == kJoystickOk);
  EXPECT_GE(status, 0);
  if (capabilities.result == kJoystickOk) {
    EXPECT_GE(capabilities.buttonCount, 0);
  } else {
    EXPECT_EQ(capabilities.buttonCount, 0);
  }
}

}  // namespace
}  // namespace mortane

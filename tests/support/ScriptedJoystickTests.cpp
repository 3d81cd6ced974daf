#include "support/ScriptedJoystick.h"

#include <gtest/gtest.h>

namespace mortane::test {
namespace {

TEST(ScriptedJoystick, AnswersEachResultAndButtonCountAsItIsTold) {
  ScriptedJoystick scripted;
  Joystick& joystick = scripted;
  for (const std::int32_t result :
       {kJoystickNoDriver, kJoystickBadParameters, kJoystickUnplugged}) {
    scripted.Fail(result);
    EXPECT_EQ(joystick.ReadStatus(), result);
    EXPECT_EQ(joystick.ReadCapabilities().result, result);
    EXPECT_EQ(joystick.ReadCapabilities().buttonCount, 0);
  }
  scripted.status = kJoystickOk;
  for (const std::int32_t buttons : {0, 4, 21, 22}) {
    scripted.capabilities = {kJoystickOk, buttons};
    EXPECT_EQ(joystick.ReadStatus(), kJoystickOk);
    EXPECT_EQ(joystick.ReadCapabilities().buttonCount, buttons);
  }
}

TEST(ScriptedJoystick, MayFailInItsCapabilitiesAlone) {
  ScriptedJoystick joystick;
  joystick.capabilities = {kJoystickBadParameters, 0};
  EXPECT_EQ(joystick.ReadStatus(), kJoystickOk);
  EXPECT_EQ(joystick.ReadCapabilities().result, kJoystickBadParameters);
  EXPECT_EQ(joystick.statusCalls, 1);
  EXPECT_EQ(joystick.capabilityCalls, 1);
}

}  // namespace
}  // namespace mortane::test

// A joystick of the test behind the multimedia calls.
#include "platform/Joystick.h"
#include "platform/windows/JoystickCalls.h"

#include <gtest/gtest.h>

namespace mortane {
namespace {

// What the driver of the test answers, and what it was asked.
struct Driver {
  MMRESULT result = JOYERR_NOERROR;
  UINT buttons = 0;
  std::uintptr_t device = 99;
  UINT size = 0;
  JOYINFOEX position{};
};

Driver driver;

MMRESULT WINAPI Capabilities(UINT_PTR device, LPJOYCAPSW capabilities, UINT size) {
  driver.device = device;
  driver.size = size;
  capabilities->wNumButtons = driver.buttons;
  return driver.result;
}

MMRESULT WINAPI Position(UINT device, LPJOYINFOEX position) {
  driver.device = device;
  driver.position = *position;
  return driver.result;
}

constexpr JoystickCalls kCalls{&Capabilities, &Position};

class JoystickOfTheTest : public ::testing::Test {
 protected:
  JoystickOfTheTest() { driver = {}; }
};

TEST_F(JoystickOfTheTest, HasAsManyButtonsAsItsDriverSays) {
  for (const UINT buttons : {0U, 1U, 10U, 21U, 32U}) {
    driver.buttons = buttons;
    const JoystickCapabilities capabilities = ReadCapabilities(kCalls);
    EXPECT_EQ(capabilities.result, kJoystickOk);
    EXPECT_EQ(capabilities.buttonCount, static_cast<std::int32_t>(buttons));
  }
}

TEST_F(JoystickOfTheTest, IsTheFirstOneAndIsAskedForAxesAndButtons) {
  ReadCapabilities(kCalls);
  EXPECT_EQ(driver.device, 0U);
  EXPECT_EQ(driver.size, sizeof(JOYCAPSW));
  driver.device = 99;
  EXPECT_EQ(ReadStatus(kCalls), kJoystickOk);
  EXPECT_EQ(driver.device, 0U);
  EXPECT_EQ(driver.position.dwSize, 52U);
  EXPECT_EQ(driver.position.dwFlags, 131U);
}

TEST_F(JoystickOfTheTest, GivesTheResultsOfItsDriverAsTheyAre) {
  for (const std::int32_t result :
       {kJoystickNoDriver, kJoystickBadParameters, kJoystickUnplugged, 2, 11, 166, 5000}) {
    driver.result = static_cast<MMRESULT>(result);
    driver.buttons = 7;
    const JoystickCapabilities capabilities = ReadCapabilities(kCalls);
    EXPECT_EQ(capabilities.result, result);
    EXPECT_EQ(capabilities.buttonCount, 0) << "of no use with a failure";
    EXPECT_EQ(ReadStatus(kCalls), result);
  }
}

TEST(JoystickNumbers, AreThoseOfWindows) {
  EXPECT_EQ(kJoystickOk, static_cast<std::int32_t>(JOYERR_NOERROR));
  EXPECT_EQ(kJoystickNoDriver, static_cast<std::int32_t>(MMSYSERR_NODRIVER));
  EXPECT_EQ(kJoystickBadParameters, static_cast<std::int32_t>(JOYERR_PARMS));
  EXPECT_EQ(kJoystickUnplugged, static_cast<std::int32_t>(JOYERR_UNPLUGGED));
}

TEST(JoystickCalls, AreTheSystemsByDefault) {
  SystemJoystick joystick;
  EXPECT_EQ(joystick.ReadCapabilities().result, ReadCapabilities({}).result);
  EXPECT_EQ(joystick.ReadStatus(), ReadStatus({}));
}

}  // namespace
}  // namespace mortane

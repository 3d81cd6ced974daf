// What the joypad's page leaves in its file, where the program itself writes such files.
#include "gui/switches/JoypadRig.h"

namespace mortane::test {
namespace {

class JoypadFile : public JoypadPage {};

TEST_F(JoypadFile, SavesFourDirectionsThoughItWasNeverShownAndThereIsNoJoystick) {
  joystick.Fail(kJoystickNoDriver);
  {
    // Its end saves.
    const JoypadSwitchSettingCtl never(std::make_shared<JoypadSettings>(joystick, folder.Path("")));
  }
  EXPECT_EQ(SetupText(), "[JoyPad]\nRight=0\nLeft=0\nUp=0\nDown=0\n");
}

TEST_F(JoypadFile, KeepsAllElseInTheFileByteForByte) {
  WriteSetup(
      "; a note\n\n[Stage]\nSpeed = 3 ; fast\n[JoyPad]\n; pads\nRight=1\nOther=x\n"
      "Button3=9\n[End]\nLast=\n");
  Open(2);
  Choose(0, 2);
  page.reset();
  const std::string after = SetupText();
  EXPECT_TRUE(
      after.starts_with("; a note\n\n[Stage]\nSpeed = 3 ; fast\n[JoyPad]\n; pads\n"
                        "Right=2\nOther=x\nButton3=9\n"))
      << after;
  EXPECT_TRUE(after.ends_with("[End]\nLast=\n")) << after;
}

}  // namespace
}  // namespace mortane::test

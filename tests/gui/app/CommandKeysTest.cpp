// The command pictures: which acts of mouse and keyboard fire them.
#include <gtest/gtest.h>

#include <QKeyEvent>

#include "CommandRig.h"

namespace mortane::test {
namespace {

TEST(CommandKeys, ActOnAClickWithThePlainLeftButtonOnly) {
  CommandRig rig;
  CommandKey& receive = *rig.form().ImageCommand[1];
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    QTest::mousePress(&receive, button);
    EXPECT_FALSE(receive.isPressedLook());
    QTest::mouseRelease(&receive, button);
  }
  for (const Qt::KeyboardModifier modifier :
       {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
    QTest::mouseClick(&receive, Qt::LeftButton, modifier);
  }
  EXPECT_TRUE(rig.app.prompts.Log().empty());
  QTest::mousePress(&receive, Qt::LeftButton);
  EXPECT_TRUE(receive.isPressedLook());
  EXPECT_TRUE(rig.app.prompts.Log().empty()) << "not before the click";
  QTest::mouseRelease(&receive, Qt::LeftButton);
  EXPECT_FALSE(receive.isPressedLook());
  EXPECT_EQ(rig.app.CountLog("pointer 11"), 1);
}

// The picture goes by the press, the act by the release.
TEST(CommandKeys, GoByTheModifiersOfPressAndReleaseEachForItself) {
  CommandRig rig;
  CommandKey& receive = *rig.form().ImageCommand[1];
  QTest::mousePress(&receive, Qt::LeftButton);
  EXPECT_TRUE(receive.isPressedLook());
  QTest::mouseRelease(&receive, Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_FALSE(receive.isPressedLook());
  EXPECT_TRUE(rig.app.prompts.Log().empty());
  QTest::mousePress(&receive, Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_FALSE(receive.isPressedLook());
  QTest::mouseRelease(&receive, Qt::LeftButton);
  EXPECT_EQ(rig.app.CountLog("pointer 11"), 1);
}

TEST(CommandKeys, LetGoBesideThemDoNothing) {
  CommandRig rig;
  CommandKey& receive = *rig.form().ImageCommand[1];
  QTest::mousePress(&receive, Qt::LeftButton);
  QTest::mouseRelease(&receive, Qt::LeftButton, {}, QPoint(-20, -20));
  EXPECT_FALSE(receive.isPressedLook());
  EXPECT_TRUE(rig.app.prompts.Log().empty());
  QTest::mouseClick(&receive, Qt::LeftButton);
  EXPECT_EQ(rig.app.CountLog("pointer 11"), 1) << "and act again afterwards";
}

TEST(CommandKeys, ActByKeyboard) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    CommandRig rig;
    rig.form().activateWindow();
    rig.form().ImageCommand[1]->setFocus();
    QTest::keyClick(rig.form().ImageCommand[1], key);
    EXPECT_EQ(rig.app.CountLog("pointer 11"), 1) << key;
  }
}

TEST(CommandKeys, ActOnceWhileAKeyIsHeld) {
  CommandRig rig;
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QApplication::sendEvent(rig.form().ImageCommand[1], &held);
  EXPECT_TRUE(rig.app.prompts.Log().empty());
}

}  // namespace
}  // namespace mortane::test

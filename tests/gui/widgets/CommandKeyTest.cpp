#include "widgets/CommandKey.h"

#include "gui/support/PaintCount.h"
#include "gui/support/TestWindow.h"

namespace mortane {
namespace {

class CommandKeyTest : public ::testing::Test {
 protected:
  void SetUp() override {
    key = window.Add<CommandKey>(IconName::Send, "Send");
    other = window.Add<QLineEdit>();
    window.Show();
    other->setFocus();
  }

  void Press(Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mousePress(key, button, modifiers, key->rect().center());
  }

  void Release(Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {},
               QPoint at = QPoint(20, 20)) {
    QTest::mouseRelease(key, button, modifiers, at);
  }

  TestWindow window;
  CommandKey* key = nullptr;
  QLineEdit* other = nullptr;
};

TEST_F(CommandKeyTest, APlainClickCommandsOnReleaseAndOnce) {
  QSignalSpy commands(key, &CommandKey::commanded);
  Press(Qt::LeftButton);
  EXPECT_TRUE(key->isPressedLook());
  EXPECT_EQ(commands.count(), 0);
  Release(Qt::LeftButton);
  EXPECT_FALSE(key->isPressedLook());
  EXPECT_EQ(commands.count(), 1);
}

TEST_F(CommandKeyTest, APressThatIsLetGoOutsideDoesNothing) {
  QSignalSpy commands(key, &CommandKey::commanded);
  Press(Qt::LeftButton);
  QTest::mouseMove(key, QPoint(-30, -30));
  Release(Qt::LeftButton, {}, QPoint(-30, -30));
  EXPECT_FALSE(key->isPressedLook());
  EXPECT_EQ(commands.count(), 0);
}

TEST_F(CommandKeyTest, TheRightButtonChangesNoPictureAndCommandsNothing) {
  QSignalSpy commands(key, &CommandKey::commanded);
  Press(Qt::RightButton);
  EXPECT_FALSE(key->isPressedLook());
  Release(Qt::RightButton);
  EXPECT_EQ(commands.count(), 0);
}

TEST_F(CommandKeyTest, AModifierAtTheReleaseForbidsTheCommand) {
  for (const auto modifier :
       {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
    QSignalSpy commands(key, &CommandKey::commanded);
    Press(Qt::LeftButton);
    Release(Qt::LeftButton, modifier);
    EXPECT_EQ(commands.count(), 0) << modifier;
  }
}

TEST_F(CommandKeyTest, AModifierAtThePressOnlyForbidsThePicture) {
  QSignalSpy commands(key, &CommandKey::commanded);
  Press(Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_FALSE(key->isPressedLook());
  Release(Qt::LeftButton);
  EXPECT_EQ(commands.count(), 1);
}

TEST_F(CommandKeyTest, SpaceAndBothEnterKeysCommand) {
  key->setFocus();
  QSignalSpy commands(key, &CommandKey::commanded);
  QTest::keyClick(key, Qt::Key_Space);
  EXPECT_EQ(commands.count(), 1);
  QTest::keyClick(key, Qt::Key_Return);
  QTest::keyClick(key, Qt::Key_Enter);
  EXPECT_EQ(commands.count(), 3);
}

TEST_F(CommandKeyTest, AForbiddenClickDoesNotForbidTheKeyboard) {
  Press(Qt::LeftButton);
  Release(Qt::LeftButton, Qt::ShiftModifier);
  key->setFocus();
  QSignalSpy commands(key, &CommandKey::commanded);
  QTest::keyClick(key, Qt::Key_Space);
  EXPECT_EQ(commands.count(), 1);
}

TEST_F(CommandKeyTest, DisabledItCommandsNothing) {
  key->setEnabled(false);
  QSignalSpy commands(key, &CommandKey::commanded);
  QTest::mouseClick(key, Qt::LeftButton);
  EXPECT_EQ(commands.count(), 0);
}

TEST_F(CommandKeyTest, HasTheSizeOfTheGridOrMore) {
  EXPECT_GE(key->sizeHint().width(), 124);
  EXPECT_GE(key->sizeHint().height(), 42);
  EXPECT_EQ(key->accessibleName(), "Send");
}

TEST_F(CommandKeyTest, PressedAndMainLookDiffersFromResting) {
  const QImage resting = key->grab().toImage();
  Press(Qt::LeftButton);
  const QImage pressed = key->grab().toImage();
  EXPECT_NE(pressed, resting);
  Release(Qt::LeftButton, {}, QPoint(-30, -30));
  other->setFocus();
  key->setMain(true);
  EXPECT_TRUE(key->isMain());
  EXPECT_NE(key->grab().toImage(), resting);
}

TEST_F(CommandKeyTest, BecomingTheMainKeyIsPaintedAtOnce) {
  QCoreApplication::processEvents();
  test::PaintCount paints(*key);
  key->setMain(true);
  QCoreApplication::processEvents();
  EXPECT_GT(paints.count, 0);
}

}  // namespace
}  // namespace mortane

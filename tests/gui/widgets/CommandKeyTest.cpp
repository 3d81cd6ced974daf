#include "widgets/CommandKey.h"

#include "gui/support/Face.h"
#include "gui/support/PaintCount.h"
#include "gui/support/TestWindow.h"
#include "widgets/Theme.h"

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

struct KeyFace {
  const char* what;
  test::Use use;
  bool main;
  bool pressed;
  Scheme scheme;
  test::Face face;
};

// Beside its picture.
TEST(CommandKeyFace, TellsEachState) {
  using test::Use;
  for (const KeyFace& row : {
           KeyFace{"at rest",
                   Use::Rest,
                   false,
                   false,
                   Scheme::Light,
                   {"~ 2, Base 76, ~ 2", "Mid 1, Base 38, ~ 1, Mid 2"}},
           KeyFace{"at rest in the dark",
                   Use::Rest,
                   false,
                   false,
                   Scheme::Dark,
                   {"~ 2, Button 76, ~ 2", "Mid 1, Button 38, ~ 1, Mid 2"}},
           KeyFace{"hovered",
                   Use::Hovered,
                   false,
                   false,
                   Scheme::Light,
                   {"~ 2, Base 76, ~ 2", "Dark 1, Base 38, ~ 2, Mid 1"}},
           KeyFace{"focused",
                   Use::Focused,
                   false,
                   false,
                   Scheme::Light,
                   {"~ 1, Highlight 1, ~ 1, Base 74, ~ 1, Highlight 1, ~ 1",
                    "Highlight 2, Base 36, ~ 1, Highlight 1, ~ 1, Mid 1"}},
           KeyFace{"pressed",
                   Use::Rest,
                   false,
                   true,
                   Scheme::Light,
                   {"~ 1, Rail 78, ~ 1", "Window 1, ~ 1, Rail 40"}},
           KeyFace{
               "pressed and focused",
               Use::Focused,
               false,
               true,
               Scheme::Light,
               {"~ 1, Rail 1, ~ 1, BrightText 1, ~ 1, Rail 70, ~ 1, BrightText 1, ~ 1, Rail 1, ~ 1",
                "Window 1, ~ 1, Rail 1, ~ 1, BrightText 1, ~ 1, Rail 32, BrightText 2, Rail 2"}},
           KeyFace{"disabled",
                   Use::Disabled,
                   false,
                   false,
                   Scheme::Light,
                   {"~ 2, disabled Base 76, ~ 2",
                    "disabled Mid 1, disabled Base 38, ~ 2, disabled Window 1"}},
           KeyFace{"main",
                   Use::Rest,
                   true,
                   false,
                   Scheme::Light,
                   {"~ 1, Highlight 78, ~ 1", "Highlight 40, ~ 1, lip 1"}},
           KeyFace{"main and hovered",
                   Use::Hovered,
                   true,
                   false,
                   Scheme::Light,
                   {"~ 1, lighter 78, ~ 1", "lighter 40, ~ 1, lip below lighter 1"}},
           KeyFace{"main and focused",
                   Use::Focused,
                   true,
                   false,
                   Scheme::Light,
                   {"~ 1, Highlight 1, ~ 1, BrightText 1, ~ 2, Highlight 68, ~ 2, BrightText 1, ~ "
                    "1, Highlight 1, ~ 1",
                    "Highlight 2, BrightText 2, Highlight 32, ~ 1, BrightText 1, ~ 1, Highlight 1, "
                    "~ 1, lip 1"}},
           KeyFace{"main and pressed",
                   Use::Rest,
                   true,
                   true,
                   Scheme::Light,
                   {"~ 1, Rail 78, ~ 1", "Window 1, ~ 1, Rail 40"}},
           KeyFace{"main and disabled",
                   Use::Disabled,
                   true,
                   false,
                   Scheme::Light,
                   {"~ 2, disabled Base 76, ~ 2",
                    "disabled Mid 1, disabled Base 38, ~ 2, disabled Window 1"}},
       }) {
    SetCurrentScheme(row.scheme);
    CommandKey key(IconName::Send, {});
    key.setMain(row.main);
    const QImage picture =
        test::PictureOf(key, {80, 42}, row.use, [&] { key.setDown(row.pressed); });
    const QColor main = key.palette().color(QPalette::Active, QPalette::Highlight);
    const std::vector<test::NamedColor> names{{"lighter", main.lighter(112)},
                                              {"lip", main.darker(140)},
                                              {"lip below lighter", main.lighter(112).darker(140)}};
    const test::Face shown{test::RowOf(picture, 35, names), test::ColumnOf(picture, 20, names)};
    EXPECT_EQ(shown, row.face) << row.what;
  }
  SetCurrentScheme(Scheme::Light);
}

TEST(CommandKeyFace, HasItsPictureAndItsTextInTheMiddle) {
  CommandKey picture(IconName::Send, {});
  const QImage shown = test::PictureOf(picture, {80, 42}, test::Use::Rest).copy(20, 6, 30, 28);
  QImage wanted(80, 42, QImage::Format_RGB32);
  wanted.fill(test::TellablePalette().color(QPalette::Base));
  QPainter painter(&wanted);
  DrawIcon(painter, IconName::Send, QRectF(24, 9, 22, 22),
           {test::TellablePalette().color(QPalette::ButtonText), ToneColor(Tone::IconAccent)});
  painter.end();
  EXPECT_EQ(shown.convertToFormat(QImage::Format_RGB32), wanted.copy(20, 6, 30, 28));
  CommandKey key(IconName::Send, QString("Send"));
  const int text = key.fontMetrics().horizontalAdvance(key.text());
  EXPECT_EQ(key.sizeHint(), QSize(qMax(124, 22 + 10 + text + 44), 42));
}

}  // namespace
}  // namespace mortane

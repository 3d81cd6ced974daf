#include <QClipboard>

#include "gui/support/TestWindow.h"
#include "widgets/TextField.h"
#include "widgets/TextValidator.h"

namespace mortane {
namespace {

const QString kGlass = QString::fromUtf8("\xF0\x9F\x94\xAC");  // one character, two code units

TEST(CharacterCount, CountsCharactersAndNotCodeUnits) {
  EXPECT_EQ(CharacterCount(""), 0);
  EXPECT_EQ(CharacterCount("abc"), 3);
  EXPECT_EQ(CharacterCount(QString::fromUtf8("\xC2\xB5m")), 2);
  EXPECT_EQ(CharacterCount(kGlass + "x"), 2);
  EXPECT_EQ(CharacterCount(QString(kGlass.at(0))), 1);
}

TEST(FirstCharacters, NeverSplitsACharacter) {
  EXPECT_EQ(FirstCharacters("abcdef", 3), "abc");
  EXPECT_EQ(FirstCharacters("ab", 3), "ab");
  EXPECT_EQ(FirstCharacters("a" + kGlass + kGlass, 2), "a" + kGlass);
  EXPECT_EQ(FirstCharacters("abc", 0), "");
}

class FieldLimit : public ::testing::Test {
 protected:
  void SetUp() override {
    field = window.Add<TextField>();
    field->SetLimit(5);
    window.Show();
    field->setFocus();
  }

  TestWindow window;
  TextField* field = nullptr;
};

TEST_F(FieldLimit, TypingStopsAtTheLimit) {
  QTest::keyClicks(field, "abcdefg");
  EXPECT_EQ(field->text(), "abcde");
}

TEST_F(FieldLimit, TypingInTheMiddleOfAFullBoxPushesNothingOut) {
  field->setText("abcde");
  field->setCursorPosition(2);
  QTest::keyClicks(field, "X");
  EXPECT_EQ(field->text(), "abcde");
  EXPECT_EQ(field->cursorPosition(), 2);
}

TEST_F(FieldLimit, WhatIsPastedIsCutToTheRoom) {
  field->setText("ab");
  field->setCursorPosition(1);
  QGuiApplication::clipboard()->setText("12345");
  field->paste();
  EXPECT_EQ(field->text(), "a123b");
}

TEST_F(FieldLimit, WhatIsSetIsCut) {
  field->setText("abcdefgh");
  EXPECT_EQ(field->text(), "abcde");
}

TEST_F(FieldLimit, ACharacterOfTwoUnitsCountsOnce) {
  field->setText(kGlass.repeated(7));
  EXPECT_EQ(field->text(), kGlass.repeated(5));
}

TEST_F(FieldLimit, ASelectionMakesRoom) {
  field->setText("abcde");
  field->setSelection(1, 2);
  QTest::keyClicks(field, "XYZ");
  EXPECT_EQ(field->text(), "aXYde");
}

TEST(FieldWithoutLimit, TakesAnyLength) {
  TextField field;
  field.setText(QString(100, 'a'));
  EXPECT_EQ(field.text().size(), 100);
}

}  // namespace
}  // namespace mortane

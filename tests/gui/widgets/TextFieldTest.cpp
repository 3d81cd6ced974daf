#include "widgets/TextField.h"

#include <QDialog>
#include <QMenu>
#include <QPushButton>

#include "gui/widgets/TestWindow.h"

namespace mortane {
namespace {

const char kDashes[] = "----------";

class TextFieldTest : public ::testing::Test {
 protected:
  void SetUp() override {
    field = window.Add<TextField>();
    other = window.Add<QLineEdit>();
    window.Show();
    field->setFocus();
  }

  TestWindow window;
  TextField* field = nullptr;
  QLineEdit* other = nullptr;
};

TEST_F(TextFieldTest, BothEnterKeysAreSwallowedAndTold) {
  QSignalSpy entered(field, &TextField::entered);
  QSignalSpy left(field, &TextField::left);
  QTest::keyClick(field, Qt::Key_Return);
  QTest::keyClick(field, Qt::Key_Enter);
  EXPECT_EQ(entered.count(), 2);
  EXPECT_EQ(left.count(), 0);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(TextFieldTest, EnterDoesNotReachTheDefaultButton) {
  QDialog dialog;
  auto* column = new QVBoxLayout(&dialog);
  auto* inside = new TextField(&dialog);
  auto* button = new QPushButton(&dialog);
  button->setDefault(true);
  column->addWidget(inside);
  column->addWidget(button);
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  inside->setFocus();
  QSignalSpy clicked(button, &QPushButton::clicked);
  QTest::keyClick(inside, Qt::Key_Return);
  EXPECT_EQ(clicked.count(), 0);
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(TextFieldTest, LeavingIsToldEditedOrNot) {
  QSignalSpy left(field, &TextField::left);
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_EQ(left.count(), 1);
  field->setFocus();
  QTest::keyClicks(field, "a");
  other->setFocus();
  EXPECT_EQ(left.count(), 2);
}

TEST_F(TextFieldTest, AnotherWindowAMenuOrADisabledWindowIsNoLeaving) {
  QSignalSpy left(field, &TextField::left);
  QDialog dialog;
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  EXPECT_FALSE(field->hasFocus());
  dialog.hide();
  window.Show();
  EXPECT_TRUE(field->hasFocus());
  QMenu menu(&window.widget());
  menu.addAction("entry");
  menu.popup({0, 0});
  menu.hide();
  window.Show();
  window.widget().setEnabled(false);
  EXPECT_FALSE(field->hasFocus());
  window.widget().setEnabled(true);
  EXPECT_EQ(left.count(), 0);
}

struct KeyRow {
  const char* what;
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  const char* after;
};

class MarkKeys : public TextFieldTest, public ::testing::WithParamInterface<KeyRow> {};

TEST_P(MarkKeys, OnlyAKeyThatMakesACharacterWipesTheMark) {
  field->SetMark(kDashes);
  field->setText(kDashes);
  field->setCursorPosition(0);
  QTest::keyClick(field, GetParam().key, GetParam().modifiers);
  EXPECT_EQ(field->text(), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MarkKeys,
    ::testing::Values(KeyRow{"letter", Qt::Key_A, Qt::NoModifier, "a"},
                      KeyRow{"blank", Qt::Key_Space, Qt::NoModifier, " "},
                      KeyRow{"backspace", Qt::Key_Backspace, Qt::NoModifier, ""},
                      KeyRow{"return", Qt::Key_Return, Qt::NoModifier, ""},
                      KeyRow{"enter", Qt::Key_Enter, Qt::KeypadModifier, ""},
                      KeyRow{"escape", Qt::Key_Escape, Qt::NoModifier, ""},
                      KeyRow{"shift", Qt::Key_Shift, Qt::NoModifier, kDashes},
                      KeyRow{"arrow", Qt::Key_Right, Qt::NoModifier, kDashes},
                      KeyRow{"tab", Qt::Key_Tab, Qt::NoModifier, kDashes},
                      KeyRow{"copy", Qt::Key_C, Qt::ControlModifier, kDashes},
                      KeyRow{"delete", Qt::Key_Delete, Qt::NoModifier, "---------"}),
    [](const auto& row) { return std::string(row.param.what); });

TEST_F(TextFieldTest, OtherTextIsNotWiped) {
  field->SetMark(kDashes);
  field->setText("name");
  QTest::keyClicks(field, "s");
  EXPECT_EQ(field->text(), "names");
}

TEST_F(TextFieldTest, TheMarkIsGoneBeforeEnterIsTold) {
  field->SetMark(kDashes);
  field->setText(kDashes);
  QString stored = "unset";
  QObject::connect(field, &TextField::entered, field, [&] { stored = field->text(); });
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(stored, "");
}

TEST_F(TextFieldTest, ABlankBoxIsValidatedFirstAndThenGetsItsMarkBack) {
  field->SetMark(kDashes);
  field->setText("  ");
  QString validated = "unset";
  QString atLeaving = "unset";
  field->setValidation([&] {
    validated = field->text();
    return true;
  });
  QObject::connect(field, &TextField::left, field, [&] { atLeaving = field->text(); });
  other->setFocus();
  EXPECT_EQ(validated, "  ");
  EXPECT_EQ(atLeaving, kDashes);
}

TEST_F(TextFieldTest, WithoutAMarkABlankBoxStaysBlank) {
  field->setText("");
  other->setFocus();
  EXPECT_EQ(field->text(), "");
}

TEST_F(TextFieldTest, AReadOnlyFieldKeepsItsMark) {
  field->SetMark(kDashes);
  field->setText(kDashes);
  field->setReadOnly(true);
  QTest::keyClicks(field, "a");
  EXPECT_EQ(field->text(), kDashes);
}

TEST_F(TextFieldTest, TheMarkShowsInTheColourOfCaptionsAndATextDoesNot) {
  const QPalette usual = QApplication::palette();
  field->setText(kDashes);
  const auto color = [this] { return field->palette().color(QPalette::Active, QPalette::Text); };
  EXPECT_EQ(color(), usual.color(QPalette::Text)) << "no mark yet";
  field->SetMark(kDashes);
  EXPECT_EQ(color(), usual.color(QPalette::PlaceholderText));
  EXPECT_EQ(field->palette().color(QPalette::Disabled, QPalette::Text),
            usual.color(QPalette::Disabled, QPalette::Text));
  QTest::keyClick(field, Qt::Key_A);
  EXPECT_EQ(color(), usual.color(QPalette::Text));
  field->setText("---------");
  EXPECT_EQ(color(), usual.color(QPalette::Text));
  field->setText(kDashes);
  EXPECT_EQ(color(), usual.color(QPalette::PlaceholderText));
}

}  // namespace
}  // namespace mortane

#include "widgets/TextField.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>

#include "gui/support/Face.h"
#include "gui/support/TestWindow.h"

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

TEST_F(TextFieldTest, BothEnterKeysCommitAndKeepTheFocus) {
  field->setText("text");
  QSignalSpy committed(field, &TextField::committed);
  QTest::keyClick(field, Qt::Key_Return);
  QTest::keyClick(field, Qt::Key_Enter);
  ASSERT_EQ(committed.count(), 2);
  EXPECT_EQ(committed.at(1).at(0).toString(), "text");
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(TextFieldTest, AHeldEnterKeyCommitsOnce) {
  QSignalSpy committed(field, &TextField::committed);
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QApplication::sendEvent(field, &repeated);
  EXPECT_EQ(committed.count(), 0);
  EXPECT_TRUE(repeated.isAccepted());
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

struct KeyRow {
  const char* what;
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  const char* after;
};

// A microscope, one character of two code units.
const QString kGlass = QString::fromUtf8("\xF0\x9F\x94\xAC");

class PlaceholderKeys : public TextFieldTest, public ::testing::WithParamInterface<KeyRow> {};

TEST_P(PlaceholderKeys, OnlyAnEditReplacesThePlaceholderAndThenAsAWhole) {
  field->SetPlaceholder(kDashes);
  field->setText(kDashes);
  field->setCursorPosition(0);
  QTest::keyClick(field, GetParam().key, GetParam().modifiers);
  EXPECT_EQ(field->text(), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PlaceholderKeys,
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
                      KeyRow{"delete", Qt::Key_Delete, Qt::NoModifier, ""},
                      KeyRow{"word", Qt::Key_Backspace, Qt::ControlModifier, ""},
                      KeyRow{"cut", Qt::Key_X, Qt::ControlModifier, ""},
                      KeyRow{"minus", Qt::Key_Minus, Qt::NoModifier, "-"}),
    [](const auto& row) { return std::string(row.param.what); });

// A full box, so that a character that does not replace the placeholder finds no room.
class BoxWithPlaceholder : public TextFieldTest {
 protected:
  void SetUp() override {
    TextFieldTest::SetUp();
    field->SetLimit(10);
    field->SetPlaceholder(kDashes);
    field->setText(kDashes);
    field->deselect();
    field->setCursorPosition(4);
  }
};

TEST_F(BoxWithPlaceholder, ThePlaceholderIsSelectedAsAWholeWhateverDeselectsIt) {
  field->deselect();
  EXPECT_EQ(field->selectedText(), kDashes);
}

TEST_F(BoxWithPlaceholder, ACharacterOutsideTheBasicPlaneReplacesThePlaceholder) {
  QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, kGlass);
  QApplication::sendEvent(field, &key);
  EXPECT_EQ(field->text(), kGlass);
}

TEST_F(BoxWithPlaceholder, ACharacterOfAnInputMethodReplacesThePlaceholder) {
  QInputMethodEvent composing;
  composing.setCommitString(kGlass);
  QApplication::sendEvent(field, &composing);
  EXPECT_EQ(field->text(), kGlass);
}

TEST_F(BoxWithPlaceholder, PastingByKeyReplacesThePlaceholder) {
  QGuiApplication::clipboard()->setText("-5 pasted");
  QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(field->text(), "-5 pasted");
}

TEST_F(BoxWithPlaceholder, PastingByTheContextMenuReplacesThePlaceholder) {
  QGuiApplication::clipboard()->setText("-5 pasted");
  QContextMenuEvent asked(QContextMenuEvent::Mouse, {5, 5}, field->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(field, &asked);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  for (QAction* entry : menu->actions())
    if (entry->text().startsWith("&Paste")) entry->trigger();
  menu->close();
  EXPECT_EQ(field->text(), "-5 pasted");
}

void Drop(QWidget* target, const QString& text) {
  QMimeData data;
  data.setText(text);
  QDragEnterEvent enter({30, 8}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(target, &enter);
  QDropEvent drop({30, 8}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(target, &drop);
}

TEST_F(BoxWithPlaceholder, ADroppedTextReplacesThePlaceholderAndBringsTheFocus) {
  other->setFocus();
  Drop(field, "-5 dropped");
  EXPECT_EQ(field->text(), "-5 dropped");
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(BoxWithPlaceholder, ADroppedTextReplacesThePlaceholderAlsoInAWindowThatIsNotActive) {
  QDialog dialog;
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  Drop(field, "dropped");
  EXPECT_EQ(field->text(), "dropped");
}

TEST_F(TextFieldTest, ADroppedTextJoinsAnyOtherText) {
  field->setText("name");
  other->setFocus();
  Drop(field, "s");
  EXPECT_EQ(field->text().size(), 5);
}

TEST_F(BoxWithPlaceholder, TheMouseSelectsThePlaceholderAsAWhole) {
  QTest::mousePress(field, Qt::LeftButton, {}, QPoint(12, field->height() / 2));
  EXPECT_EQ(field->selectedText(), kDashes);
  QTest::mouseMove(field, QPoint(25, field->height() / 2));
  QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(25, field->height() / 2));
  EXPECT_EQ(field->selectedText(), kDashes);
}

TEST_F(BoxWithPlaceholder, ThePlaceholderComesBackSelectedWhenTheProgramSetsIt) {
  QTest::keyClicks(field, "a");
  field->setText(kDashes);
  QTest::keyClicks(field, "b");
  EXPECT_EQ(field->text(), "b");
}

TEST_F(TextFieldTest, OtherTextIsNotReplaced) {
  field->SetPlaceholder(kDashes);
  field->setText("name");
  QTest::keyClicks(field, "s");
  EXPECT_EQ(field->text(), "names");
  field->deselect();
  EXPECT_EQ(field->selectedText(), "");
}

TEST_F(TextFieldTest, ThePlaceholderIsGoneBeforeEnterCommits) {
  field->SetPlaceholder(kDashes);
  field->setText(kDashes);
  QString stored = "unset";
  const QObject listener;
  QObject::connect(field, &TextField::committed, &listener,
                   [&](const QString& text) { stored = text; });
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(stored, "");
  EXPECT_EQ(field->text(), "");
}

TEST_F(TextFieldTest, ABlankBoxCommitsItsTextAndThenGetsItsPlaceholderBack) {
  field->SetPlaceholder(kDashes);
  field->setText("  ");
  QString stored = "unset";
  const QObject listener;
  QObject::connect(field, &TextField::committed, &listener,
                   [&](const QString& text) { stored = text; });
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_EQ(stored, "  ");
  EXPECT_EQ(field->text(), kDashes);
}

TEST_F(TextFieldTest, ABoxThatIsToStayBlankDoes) {
  field->SetPlaceholder(kDashes, TextField::LeftBlank::StaysBlank);
  field->setText("");
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_EQ(field->text(), "");
}

TEST_F(TextFieldTest, TheTabKeySelectsTheTextAndTheNextOneShowsItPlainAgain) {
  field->setText("text");
  other->setFocus();
  QTest::keyClick(other, Qt::Key_Tab);
  ASSERT_TRUE(field->hasFocus());
  EXPECT_EQ(field->selectedText(), "text");
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_FALSE(field->hasFocus());
  EXPECT_EQ(field->selectedText(), "");
}

TEST_F(TextFieldTest, WithoutAPlaceholderABlankBoxStaysBlank) {
  field->setText("");
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_EQ(field->text(), "");
}

TEST_F(TextFieldTest, AReadOnlyFieldKeepsItsPlaceholder) {
  field->SetPlaceholder(kDashes);
  field->setText(kDashes);
  field->setReadOnly(true);
  QTest::keyClicks(field, "a");
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(field->text(), kDashes);
}

TEST_F(TextFieldTest, ThePlaceholderShowsInTheColourOfCaptionsAndATextDoesNot) {
  const QPalette usual = QApplication::palette();
  field->setText(kDashes);
  const auto color = [this] { return field->palette().color(QPalette::Active, QPalette::Text); };
  EXPECT_EQ(color(), usual.color(QPalette::Text)) << "no placeholder yet";
  field->SetPlaceholder(kDashes);
  EXPECT_EQ(color(), usual.color(QPalette::PlaceholderText));
  EXPECT_EQ(field->palette().color(QPalette::Inactive, QPalette::Text),
            usual.color(QPalette::PlaceholderText))
      << "in a window behind another";
  EXPECT_EQ(field->palette().color(QPalette::Disabled, QPalette::Text),
            usual.color(QPalette::Disabled, QPalette::Text));
  QTest::keyClick(field, Qt::Key_A);
  EXPECT_EQ(color(), usual.color(QPalette::Text));
  field->setText("---------");
  EXPECT_EQ(color(), usual.color(QPalette::Text));
  field->setText(kDashes);
  EXPECT_EQ(color(), usual.color(QPalette::PlaceholderText));
}

TEST(TextFieldWidth, HoldsItsCharactersWithRoomBesideThem) {
  TextField field;
  const int most = field.fontMetrics().horizontalAdvance("0000000000") + 12 + 16;
  const int least = field.fontMetrics().horizontalAdvance("000000") + 12 + 8;
  field.SetWidthFor(10, 6);
  EXPECT_EQ(field.maximumWidth(), most);
  EXPECT_EQ(field.minimumWidth(), least);
  EXPECT_EQ(field.sizeHint().width(), most);
  for (const int same : {10, 11}) {
    field.SetWidthFor(10, same);
    EXPECT_EQ(field.maximumWidth(), most);
    EXPECT_EQ(field.minimumWidth(), most) << "it gives way to nothing";
  }
}

TEST(TextFieldFace, HasItsDotAtItsEnd) {
  TextField field;
  field.SetPending("was");
  EXPECT_EQ(test::RowOf(test::PictureOf(field, {100, 30}, test::Use::Rest)),
            "Dark 1, Base 87, ~ 1, Link 8, ~ 1, Base 1, Dark 1");
}

}  // namespace
}  // namespace mortane

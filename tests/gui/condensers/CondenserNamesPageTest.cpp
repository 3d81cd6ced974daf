// The sub-page that names the user's condensers.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QTest>

#include "gui/condensers/CondenserPages.h"
#include "gui/support/PageActs.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

constexpr char kDashes[] = "----------";

class CondenserNamesPage : public testing::Test {
 protected:
  CondenserNamesPage() { rig.Show(&page); }

  // position 1 to 9
  TextField& field(int position) { return *page.TextName[static_cast<std::size_t>(position - 1)]; }
  std::string text(int position) { return field(position).text().toStdString(); }
  std::string name(int position) { return rig.k70().dbcon.Name(140 + position); }
  void name(int position, const char* value) { rig.k70().dbcon.Name(140 + position, value); }

  PageRig rig{"Harbour"};
  CondenserOptionCtl& page = *MakeCondenserOptionCtl(rig.k70());
};

TEST_F(CondenserNamesPage, ShowsTheNamesOfTheBench) {
  EXPECT_EQ(text(1), "Slit");
  for (int position = 2; position <= 9; ++position) EXPECT_EQ(text(position), kDashes);
}

TEST_F(CondenserNamesPage, ShowsFixedPitchTextAndLabelsThatLeadToTheirField) {
  for (std::size_t row = 0; row < page.TextName.size(); ++row) {
    EXPECT_EQ(page.TextName[row]->font(), FixedFont()) << row;
    EXPECT_EQ(page.Label11[row]->buddy(), page.TextName[row]) << row;
  }
}

// A field has 6 pixels beside its text within its line.
TEST_F(CondenserNamesPage, FieldsHoldTenCharactersWithRoomBesideThem) {
  for (const TextField* field : page.TextName) {
    const int text = field->fontMetrics().horizontalAdvance(QString(10, u'0'));
    EXPECT_EQ(field->maximumWidth(), text + 12 + 16);
    EXPECT_EQ(field->minimumWidth(), field->maximumWidth());
  }
}

class NamesEnterKey : public CondenserNamesPage, public testing::WithParamInterface<Qt::Key> {};

TEST_P(NamesEnterKey, StoresTheTextAndKeepsTheFocus) {
  TypeInto(field(3), "Ring");
  EXPECT_EQ(name(3), kDashes);
  QTest::keyClick(&field(3), GetParam());
  EXPECT_EQ(name(3), "Ring");
  EXPECT_EQ(text(3), "Ring");
  EXPECT_TRUE(field(3).hasFocus());
}

TEST_P(NamesEnterKey, OnDashesEmptiesTheBoxAndStoresNothingAsTheName) {
  field(3).setFocus();
  QTest::keyClick(&field(3), GetParam());
  EXPECT_EQ(text(3), "");
  EXPECT_EQ(name(3), "");
}

INSTANTIATE_TEST_SUITE_P(BothKeys, NamesEnterKey, testing::Values(Qt::Key_Return, Qt::Key_Enter));

struct KeyRow {
  const char* name;
  Qt::Key key;
  const char* text;
};

TEST_F(CondenserNamesPage, AKeyThatMakesACharacterEmptiesTheDashesFirst) {
  for (const KeyRow& row :
       {KeyRow{"letter", Qt::Key_A, "a"}, KeyRow{"blank", Qt::Key_Space, " "},
        KeyRow{"minus", Qt::Key_Minus, "-"}, KeyRow{"back", Qt::Key_Backspace, ""},
        KeyRow{"left", Qt::Key_Left, kDashes}, KeyRow{"home", Qt::Key_Home, kDashes},
        KeyRow{"shift", Qt::Key_Shift, kDashes}, KeyRow{"F5", Qt::Key_F5, kDashes}}) {
    page.LoadData();
    field(2).setFocus();
    field(2).deselect();
    QTest::keyClick(&field(2), row.key);
    EXPECT_EQ(text(2), row.text) << row.name;
  }
}

TEST_F(CondenserNamesPage, ANameOfDashesOnlyInPartIsNoMark) {
  name(2, "---------");
  page.LoadData();
  field(2).setFocus();
  field(2).end(false);
  QTest::keyClick(&field(2), Qt::Key_X);
  EXPECT_EQ(text(2), "---------x");
}

TEST_F(CondenserNamesPage, LeftBlankTheBoxGetsItsDashesBackAndTheNameIsBlank) {
  for (const char* blank : {"", " ", "          "}) {
    name(1, "Slit");
    page.LoadData();
    Enter(field(1), blank);
    EXPECT_EQ(text(1), kDashes);
    EXPECT_EQ(name(1), blank);
  }
}

TEST_F(CondenserNamesPage, TheNextStoreTakesTheDashesForTheName) {
  Enter(field(1), "");
  EXPECT_EQ(name(1), "");
  field(1).setFocus();
  QTest::mouseClick(&rig.elsewhere(), Qt::LeftButton);
  EXPECT_EQ(name(1), kDashes);
}

TEST_F(CondenserNamesPage, LeavingStoresTheTextEditedOrNot) {
  field(1).setFocus();
  name(1, "Other");
  QTest::mouseClick(&rig.elsewhere(), Qt::LeftButton);
  EXPECT_EQ(name(1), "Slit");
}

TEST_F(CondenserNamesPage, AnotherWindowOrABusyWindowIsNoLeaving) {
  TypeInto(field(1), "Ring");
  QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(&field(1), &away);
  EXPECT_EQ(name(1), "Slit");
  rig.window().setEnabled(false);
  EXPECT_EQ(name(1), "Slit");
  EXPECT_EQ(text(1), "Ring");
}

TEST_F(CondenserNamesPage, TakesTenCharactersTypedOrPasted) {
  TypeInto(field(1), "12345678901");
  EXPECT_EQ(text(1), "1234567890");
  field(1).clear();
  QApplication::clipboard()->setText("abcdefghijklm");
  field(1).paste();
  EXPECT_EQ(text(1), "abcdefghij");
}

TEST_F(CondenserNamesPage, ShowingStoresNothing) {
  name(4, "");
  name(5, "  ");
  page.LoadData();
  EXPECT_EQ(name(4), "");
  EXPECT_EQ(name(5), "  ");
}

TEST_F(CondenserNamesPage, SavingWritesAllNineBoxesAlsoTheDashes) {
  for (int position = 1; position <= 9; ++position) name(position, "");
  page.LoadData();
  field(9).setText("Last");
  field(1).setText("First");
  name(2, "Second");
  field(2).setText("");
  page.SaveData();
  EXPECT_EQ(name(1), "First");
  EXPECT_EQ(name(2), "");
  for (int position = 3; position <= 8; ++position) EXPECT_EQ(name(position), kDashes);
  EXPECT_EQ(name(9), "Last");
}

}  // namespace
}  // namespace mortane::test

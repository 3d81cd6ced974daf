// The page that names the user's exciters, dichroics and barriers.
#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

#include "gui/filters/FilterPages.h"
#include "gui/support/PageActs.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

constexpr char kDashes[] = "----------";

class OptionalItemPage : public testing::Test {
 protected:
  OptionalItemPage() { rig.Show(&page); }

  PageRig rig{"Harbour"};
  FilterOptionalItemCtl& page = *MakeFilterOptionalItemCtl(rig.k70());
};

TEST_F(OptionalItemPage, ShowsTheNamesOfTheBenchInTheFixedPitchFont) {
  EXPECT_EQ(page.TextExciter[0]->text(), "387/11");
  EXPECT_EQ(page.TextExciter[1]->text(), "488/6");
  EXPECT_EQ(page.TextDichroic[0]->text(), "DM 409");
  EXPECT_EQ(page.TextBarrier[0]->text(), "Quad");
  EXPECT_EQ(page.TextBarrier[8]->text(), kDashes);
  for (const auto* fields : {&page.TextExciter, &page.TextDichroic, &page.TextBarrier}) {
    for (const TextField* field : *fields) EXPECT_EQ(field->font(), FixedFont());
  }
}

TEST_F(OptionalItemPage, HasItsCaptionsAboveTheirColumns) {
  EXPECT_EQ(page.Label1->x(), page.TextExciter[0]->x());
  EXPECT_EQ(page.Label2->x(), page.TextDichroic[0]->x());
  EXPECT_EQ(page.Label3->x(), page.TextBarrier[0]->x());
  EXPECT_LT(page.Label1->x(), page.Label2->x());
}

// A field has 6 pixels beside its text within its line.
TEST_F(OptionalItemPage, FieldsHoldFourteenCharactersAndGiveWayToTen) {
  for (const auto* fields : {&page.TextExciter, &page.TextDichroic, &page.TextBarrier}) {
    for (const TextField* field : *fields) {
      const auto widthOf = [field](int characters) {
        return field->fontMetrics().horizontalAdvance(QString(characters, u'0'));
      };
      EXPECT_EQ(field->maximumWidth(), widthOf(14) + 12 + 16);
      EXPECT_EQ(field->minimumWidth(), widthOf(10) + 12 + 8);
    }
  }
}

TEST_F(OptionalItemPage, ARowLeftEmptyShowsTenDashes) {
  for (TextField* field : std::initializer_list<TextField*>{
           page.TextExciter[0], page.TextDichroic[0], page.TextBarrier[0]}) {
    Enter(*field, "");
    EXPECT_EQ(field->text(), kDashes);
  }
  EXPECT_EQ(rig.k70().Exciter.Name(241), "") << "the dashes are not stored yet";
}

TEST_F(OptionalItemPage, TheEnterKeyStoresAndKeepsTheFocus) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    const QString name = key == Qt::Key_Return ? "One" : "Two";
    TypeInto(*page.TextDichroic[3], name);
    EXPECT_NE(rig.k70().Dichroic.Name(244), name.toStdString());
    QTest::keyClick(page.TextDichroic[3], key);
    EXPECT_EQ(rig.k70().Dichroic.Name(244), name.toStdString());
    EXPECT_TRUE(page.TextDichroic[3]->hasFocus());
  }
}

TEST_F(OptionalItemPage, TheFirstCharacterWipesTheDashesAndEnterOnThemStoresNothing) {
  TextField& field = *page.TextBarrier[4];
  field.setFocus();
  field.end(false);
  QTest::keyClick(&field, Qt::Key_A);
  EXPECT_EQ(field.text(), "a");
  field.setText(kDashes);
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(field.text(), "");
  EXPECT_EQ(rig.k70().Barrier.Name(245), "");
}

TEST_F(OptionalItemPage, SavingWritesAllBoxesAlsoTheDashes) {
  for (int code = 241; code <= 249; ++code) {
    rig.k70().Exciter.Name(code, "");
    rig.k70().Dichroic.Name(code, "");
    rig.k70().Barrier.Name(code, "");
  }
  page.LoadData();
  page.TextExciter[8]->setText("Last");
  page.TextDichroic[0]->setText("First");
  page.SaveData();
  EXPECT_EQ(rig.k70().Exciter.Name(249), "Last");
  EXPECT_EQ(rig.k70().Dichroic.Name(241), "First");
  EXPECT_EQ(rig.k70().Exciter.Name(241), kDashes);
  EXPECT_EQ(rig.k70().Barrier.Name(249), kDashes);
  EXPECT_EQ(rig.k70().Barrier.Name(240), "") << "fixed items have no box";
}

}  // namespace
}  // namespace mortane::test

#include "widgets/RecordForm.h"

#include <QLabel>

#include "gui/support/TestWindow.h"
#include "widgets/Card.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

// A label and a field as values, and a panel.
class RecordFormTest : public ::testing::Test {
 protected:
  RecordFormTest() {
    value->setText("Plan");
    left = form.AddColumn("Series", value, 2, 10);
    right = form.AddColumn("Mag.", field, 1, 10);
    form.AddPanel(panel, 1);
    window.widget().resize(800, 500);
    window.Show();
    QApplication::processEvents();
  }

  QRect AreaOf(const QWidget* control) const {
    return {control->mapTo(card, QPoint(0, 0)), control->size()};
  }

  TestWindow window;
  Card* card = window.Add<Card>("Records");
  RecordForm form{*card, 9};
  RecordForm::Name name = form.AddName(10, 16);
  ValueLabel* value = new ValueLabel(form.frame());
  TextField* field = new TextField(form.frame());
  QWidget* panel = new QWidget(form.frame());
  RecordForm::Column left{};
  RecordForm::Column right{};
};

TEST_F(RecordFormTest, HasNumberedTabsAndTheGivenCaptions) {
  EXPECT_EQ(form.tabs()->count(), 9);
  EXPECT_EQ(form.tabs()->tabText(8), "9");
  EXPECT_EQ(form.tabs()->accessibleName(), "Position");
  EXPECT_EQ(name.label->text(), "Name");
  EXPECT_EQ(left.caption->text(), "Series");
}

TEST_F(RecordFormTest, LabelsLeadToWhatTheyCaption) {
  EXPECT_EQ(name.label->buddy(), name.field);
  EXPECT_EQ(left.caption->buddy(), left.list);
  EXPECT_EQ(left.list->accessibleName(), "Series");
  EXPECT_EQ(value->accessibleName(), "Series") << "a value is named as its list";
  EXPECT_EQ(field->accessibleName(), "");
}

TEST_F(RecordFormTest, TheNameTakesItsNumberOfCharactersAndShowsMore) {
  QTest::keyClicks(name.field, "12345678901");
  EXPECT_EQ(name.field->text(), "1234567890");
  EXPECT_GE(name.field->width(), 16 * name.field->fontMetrics().horizontalAdvance('0'));
}

TEST_F(RecordFormTest, ValuesStandHalfwayBetweenCaptionAndList) {
  for (const auto& [column, shown] :
       {std::pair<RecordForm::Column, QWidget*>{left, value}, {right, field}}) {
    const int above = AreaOf(shown).top() - AreaOf(column.caption).bottom();
    const int below = AreaOf(column.list).top() - AreaOf(shown).bottom();
    EXPECT_EQ(above, below);
    EXPECT_EQ(AreaOf(shown).center().y(), AreaOf(field).center().y());
  }
  EXPECT_GE(AreaOf(left.list).top() - AreaOf(left.caption).bottom(), grid::kFieldHeight);
}

TEST_F(RecordFormTest, ColumnsShareTheWidthAndListsTheHeight) {
  EXPECT_GT(AreaOf(left.list).width(), AreaOf(right.list).width());
  EXPECT_EQ(AreaOf(left.list).bottom(), AreaOf(right.list).bottom());
  EXPECT_GT(AreaOf(left.list).height(), 200);
  EXPECT_EQ(AreaOf(panel).top(), AreaOf(field).top());
  EXPECT_EQ(AreaOf(panel).bottom(), AreaOf(left.list).bottom());
  EXPECT_GT(AreaOf(panel).left(), AreaOf(right.list).right());
  EXPECT_LT(AreaOf(form.tabs()).bottom(), AreaOf(name.field).top());
  EXPECT_LT(AreaOf(name.field).bottom(), AreaOf(left.caption).top());
}

}  // namespace
}  // namespace mortane

// How wide the parts of the objective pages are, in characters.
#include <gtest/gtest.h>

#include "gui/objectives/ObjectivePages.h"
#include "widgets/ListBox.h"
#include "widgets/TextField.h"
#include "widgets/ValueLabel.h"

namespace mortane::test {
namespace {

int WidthOf(int characters, const QWidget& widget) {
  return widget.fontMetrics().horizontalAdvance(QString(characters, u'0'));
}

TEST(ObjectiveWidths, ValuesAreAsWideAsTheirUsualTexts) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  const std::vector<std::pair<const ValueLabel*, int>> rows{
      {page.LabelSeries, 20}, {page.LabelType, 12}, {page.LabelMag, 10},
      {page.LabelWD, 10},     {page.LabelNA, 10},   {page.LabelName, 20}};
  for (const auto& [label, characters] : rows) {
    EXPECT_EQ(label->sizeHint().width(), characters * label->fontMetrics().horizontalAdvance(u'0'))
        << label->objectName().toStdString();
  }
  EXPECT_EQ(page.ListSeries->minimumWidth(), 150);
}

TEST(ObjectiveWidths, TheUsersListsHoldTheirLongestNames) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  EXPECT_EQ(page.ListSeries->minimumWidth(), 30 + WidthOf(14, *page.ListSeries));
  EXPECT_EQ(page.ListType->minimumWidth(), 30 + WidthOf(13, *page.ListType));
  EXPECT_EQ(page.ListMag->minimumWidth(), 30 + WidthOf(13, *page.ListMag));
}

// A field has 6 pixels beside its text within its line.
TEST(ObjectiveWidths, FieldsHoldTheirTextsWithRoomBesideThem) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  EXPECT_EQ(page.TextName->maximumWidth(), WidthOf(24, *page.TextName) + 12 + 16);
  EXPECT_EQ(page.TextName->minimumWidth(), WidthOf(15, *page.TextName) + 12 + 8);
  const std::vector<const TextField*> numbers{page.TextMag, page.TextWD, page.TextNA};
  for (const TextField* field : numbers) {
    EXPECT_EQ(field->maximumWidth(), WidthOf(7, *field) + 12 + 16);
    EXPECT_EQ(field->minimumWidth(), field->maximumWidth());
  }
}

TEST(ObjectiveWidths, ColumnsShareALargeWindowAsTheyNeedIt) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  page.window()->resize(1800, 700);
  QApplication::processEvents();
  const double unit = page.ListType->width() / 2.0;
  EXPECT_NEAR(page.ListSeries->width(), 3 * unit, 3);
  EXPECT_NEAR(page.ListMag->width(), 2 * unit, 3);
}

}  // namespace
}  // namespace mortane::test

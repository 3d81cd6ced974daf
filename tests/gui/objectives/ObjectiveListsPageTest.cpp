// The lists of the objective pages: what they are filled with, what is selected, and how a row is
// found by typing.
#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>

#include "gui/objectives/ObjectivePages.h"
#include "gui/support/PageActs.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/ValueLabel.h"

namespace mortane::test {
namespace {

// The second of two microscopes has series and types, the first one has none.
Bench FirstWithoutSeries() {
  Bench bench = List({"Quay", "Harbour", "Harbour"});
  bench.instruments[1].database.series.clear();
  bench.instruments[1].database.types.clear();
  return bench;
}

void ConnectAndReceive(PageRig& rig, std::int32_t device) {
  rig.prompts.AcceptAnyBox();
  rig.k70().Connect(device);
  rig.k70().Receive();
}

TEST(SeriesList, IsFilledOnceTheModelHasTheSeries) {
  PageRig rig(FirstWithoutSeries(), Link::None);
  ConnectAndReceive(rig, 1);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(page.ListSeries->rowCount(), 1) << "the row of dashes";
  ConnectAndReceive(rig, 2);
  page.LoadData();
  EXPECT_EQ(RowsOf(*page.ListSeries),
            (std::vector<std::string>{"-----------", "Plan A", "Plan F", "Super C", "Long WD",
                                      "Relief", "Epi"}));
  EXPECT_GE(page.ListSeries->index(), 0);
}

TEST(SeriesList, OfATabWhoseSeriesItDoesNotHaveShowsNoneOfTheTabBefore) {
  PageRig rig("Harbour");
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "Lost", 40, 1, "5", "1", "0.1", 0);
  rig.k70().curNosepiece.code(2, 241);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  ASSERT_EQ(page.LabelSeries->text(), "Plan A");
  ClickTab(*page.TabNosepiece, 1);
  EXPECT_EQ(page.ListSeries->index(), -1);
  EXPECT_EQ(page.LabelSeries->text(), "");
  EXPECT_EQ(rig.k70().curNosepiece.code(2), 241);
}

TEST(OptionLists, OfATabWhoseCodesTheyDoNotHaveShowNoneOfTheTabBefore) {
  PageRig rig("Harbour");
  rig.k70().DbNosepiece.Set_DbNosepiece(2, "Lost", 40, 50, "5", "1", "0.1", 0);
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  ASSERT_EQ(page.LabelSeries->text(), "Plan F");
  ASSERT_EQ(page.LabelType->text(), "Water");
  ClickTab(*page.TabStrip1, 1);
  EXPECT_EQ(page.LabelSeries->text(), "");
  EXPECT_EQ(page.LabelType->text(), "");
}

TEST(OptionLists, AreFilledOnceTheModelHasTheNames) {
  PageRig rig(FirstWithoutSeries(), Link::None);
  ConnectAndReceive(rig, 1);
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  EXPECT_EQ(page.ListSeries->rowCount(), 1);
  EXPECT_EQ(page.ListType->rowCount(), 1);
  EXPECT_EQ(page.ListMag->rowCount(), 15);
  ConnectAndReceive(rig, 2);
  page.LoadData();
  EXPECT_EQ(page.ListSeries->rowCount(), 7);
  EXPECT_EQ(page.ListType->rowCount(), 8);
  EXPECT_EQ(page.LabelSeries->text(), "Plan F");
  EXPECT_EQ(page.LabelType->text(), "Water");
}

TEST(OptionLists, AMagnificationChosenForOneObjectiveIsNotSelectedForTheNext) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  Enter(*page.ListMag, "40x");
  ASSERT_EQ(page.ListMag->index(), 9);
  ClickTab(*page.TabStrip1, 1);
  EXPECT_EQ(page.ListMag->index(), -1);
  EXPECT_EQ(page.TextMag->text(), "63");
}

TEST(ObjectiveList, TypedLettersMountTheObjectiveOfThatName) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  page.ListItem->setFocus();
  EXPECT_EQ(page.LabelName->text(), "Plan A 2x");
  QTest::keyClicks(page.ListItem, "plan a 40");
  EXPECT_EQ(page.LabelName->text(), "Plan A 40x");
  EXPECT_EQ(rig.k70().DbNosepiece.Name(rig.k70().curNosepiece.code(1)), "Plan A 40x");
}

TEST(ObjectiveList, ATabInsideANameShiftsNoColumn) {
  Bench bench = benches::Named("Harbour");
  auto& objectives = bench.instruments.back().database.objectives;
  const auto mounted = std::find_if(
      objectives.begin(), objectives.end(), [&bench](const controller::ObjectiveData& objective) {
        return objective.code == bench.instruments.back().nosepiece.front().code;
      });
  ASSERT_NE(mounted, objectives.end());
  mounted->name = "Lent\tout";
  PageRig rig(std::move(bench));
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(page.LabelName->text(), "Lent\tout");
  const QString type = page.ListItem->cells(page.ListItem->index()).front();
  EXPECT_EQ(page.LabelType->text(), type);
  EXPECT_EQ(page.ListItem->cells(page.ListItem->index()).back(), "Lent\tout");
}

}  // namespace
}  // namespace mortane::test

// The filter page with its three sub-pages.
#include <gtest/gtest.h>

#include <QAbstractButton>

#include "gui/filters/FilterPages.h"
#include "gui/support/PageActs.h"
#include "widgets/ListBox.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"
#include "widgets/TextField.h"
#include "widgets/ValueLabel.h"

namespace mortane::test {
namespace {

Bench Unfitted() {
  Bench bench = benches::Named("Harbour");
  bench.instruments.back().Accessory(accessory::kFilterCube) = {};
  return bench;
}

class FilterPage : public testing::Test {
 protected:
  FilterPage() { rig.Show(&page); }
  void Click(int option) { ClickButton(*page.optFilterSetting->option(option)); }

  PageRig rig{"Harbour"};
  FilterQubeSettingsCtl& page = *MakeFilterQubeSettingsCtl(rig.k70());
};

TEST_F(FilterPage, OpensOnTheTurret) {
  EXPECT_EQ(page.Header->title(), "Filter Cubes");
  EXPECT_EQ(page.CurrentItem(), 0);
  EXPECT_TRUE(page.FilterQubeCtl1->isVisible());
  EXPECT_FALSE(page.FilterOptionalQubeCtl1->isVisible());
  EXPECT_FALSE(page.FilterOptionalItemCtl1->isVisible());
}

TEST_F(FilterPage, AClickShowsOneSubPageAtATime) {
  const QWidget* subPages[] = {page.FilterQubeCtl1, page.FilterOptionalQubeCtl1,
                               page.FilterOptionalItemCtl1};
  for (const int option : {1, 2, 0}) {
    Click(option);
    EXPECT_EQ(page.CurrentItem(), option);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(subPages[i]->isVisible(), i == option);
  }
}

TEST_F(FilterPage, ANewlyNamedExciterAppearsWhenTheCubePageIsOpenedNext) {
  Click(2);
  Enter(*page.FilterOptionalItemCtl1->TextExciter[8], "New");
  Click(1);
  const ListBox& list = *page.FilterOptionalQubeCtl1->ListExciter;
  EXPECT_EQ(list.text(list.rowCount() - 1), "New");
  EXPECT_EQ(list.rowCount(), 15) << "those still marked with dashes are not listed";
}

TEST_F(FilterPage, ANewlyNamedCubeAppearsOnTheTurretPage) {
  Click(1);
  Enter(*page.FilterOptionalQubeCtl1->TextName, "Mine");
  Click(0);
  const ListBox& list = *page.FilterQubeCtl1->List1;
  EXPECT_EQ(list.text(list.rowCount() - 1), "Mine\t387/11\tDM 495\t525/50");
}

TEST_F(FilterPage, SavingTakesTheItemsAndLeavesATypedCubeName) {
  Click(1);
  page.FilterOptionalItemCtl1->TextBarrier[0]->setText("Triple");
  page.FilterOptionalQubeCtl1->TextName->setText("Mine");
  page.SaveData();
  EXPECT_EQ(rig.k70().Barrier.Name(241), "Triple");
  EXPECT_EQ(rig.k70().dbFilter.Name(241), "Ratio");
}

TEST_F(FilterPage, LoadingLeadsBackToTheTurretAndFillsTheItems) {
  Click(1);
  rig.k70().Exciter.Name(243, "Third");
  page.LoadData();
  EXPECT_EQ(page.CurrentItem(), 0);
  EXPECT_EQ(page.FilterOptionalItemCtl1->TextExciter[2]->text(), "Third");
}

TEST(FilterPageAlone, OpensOnTheOptionalCubesWithoutATurret) {
  PageRig rig(Unfitted());
  auto& page = rig.Show(MakeFilterQubeSettingsCtl(rig.k70()));
  EXPECT_FALSE(page.optFilterSetting->option(0)->isEnabled());
  EXPECT_EQ(page.CurrentItem(), 1);
  EXPECT_TRUE(page.FilterOptionalQubeCtl1->isVisible());
  ClickButton(*page.optFilterSetting->option(0));
  EXPECT_EQ(page.CurrentItem(), 1);
}

}  // namespace
}  // namespace mortane::test

// The condenser page with its two sub-pages, and its place in the main window.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

#include "gui/condensers/CondenserPages.h"
#include "gui/support/PageActs.h"
#include "widgets/ComboBox.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

class CondenserPage : public testing::Test {
 protected:
  CondenserPage() { rig.Show(&page); }

  void Click(int option) { ClickButton(*page.optCondenserSetting->option(option)); }
  ComboBox& combo(int address) {
    return *page.CondenserCassetteCtl1->Combo1[static_cast<std::size_t>(address - 1)];
  }
  TextField& field(int position) {
    return *page.CondenserOptionCtl1->TextName[static_cast<std::size_t>(position - 1)];
  }

  PageRig rig{"Harbour"};
  CondenserSettingsCtl& page = *MakeCondenserSettingsCtl(rig.k70());
};

TEST_F(CondenserPage, OpensOnTheCassette) {
  EXPECT_EQ(page.Header->title(), "Condensers");
  EXPECT_EQ(page.CurrentItem(), 0);
  EXPECT_TRUE(page.CondenserCassetteCtl1->isVisible());
  EXPECT_FALSE(page.CondenserOptionCtl1->isVisible());
}

TEST_F(CondenserPage, AClickShowsOneSubPageAtATime) {
  Click(1);
  EXPECT_EQ(page.CurrentItem(), 1);
  EXPECT_FALSE(page.CondenserCassetteCtl1->isVisible());
  EXPECT_TRUE(page.CondenserOptionCtl1->isVisible());
  Click(0);
  EXPECT_EQ(page.CurrentItem(), 0);
  EXPECT_TRUE(page.CondenserCassetteCtl1->isVisible());
  EXPECT_FALSE(page.CondenserOptionCtl1->isVisible());
}

TEST_F(CondenserPage, AClickLoadsTheSubPageAlsoOfTheOptionOnShow) {
  rig.k70().dbcon.Name(142, "Lens");
  Click(1);
  EXPECT_EQ(field(2).text(), "Lens");
  rig.k70().dbcon.Name(142, "Loan");
  Click(1);
  EXPECT_EQ(field(2).text(), "Loan");
  rig.k70().curCondenser.code(5, 6);
  Click(0);
  EXPECT_EQ(combo(5).currentText(), "DIC M");
}

TEST_F(CondenserPage, ArrowsChooseTheOption) {
  page.optCondenserSetting->option(0)->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_EQ(page.CurrentItem(), 1);
  EXPECT_TRUE(page.CondenserOptionCtl1->isVisible());
}

TEST_F(CondenserPage, ACondenserIsOfferedAtAllAddressesOnceItHasAName) {
  for (int address = 1; address <= 7; ++address) EXPECT_EQ(combo(address).rowOf(143), -1);
  Click(1);
  TypeInto(field(3), "Ring");
  Click(0);
  for (int address = 1; address <= 7; ++address) {
    const int row = combo(address).rowOf(143);
    ASSERT_GE(row, 0) << address;
    EXPECT_EQ(combo(address).itemText(row), "Ring");
  }
}

TEST_F(CondenserPage, LoadingLeadsBackToTheCassette) {
  Click(1);
  rig.k70().curCondenser.code(1, 2);
  page.LoadData();
  EXPECT_EQ(page.CurrentItem(), 0);
  EXPECT_TRUE(page.CondenserCassetteCtl1->isVisible());
  EXPECT_EQ(combo(1).currentText(), "Ph 1");
}

TEST_F(CondenserPage, LoadingFillsBothSubPages) {
  rig.k70().dbcon.Name(149, "Loan");
  rig.k70().curCondenser.code(1, 9);
  page.LoadData();
  EXPECT_EQ(field(9).text(), "Loan");
  EXPECT_EQ(combo(1).currentText(), "Ph 3");
}

TEST_F(CondenserPage, SavingTakesTheNamesWhicheverSubPageIsOnShow) {
  rig.k70().dbcon.Name(149, "");
  page.LoadData();
  field(9).setText("Loan");
  page.SaveData();
  EXPECT_EQ(rig.k70().dbcon.Name(149), "Loan");
  EXPECT_EQ(rig.k70().dbcon.Name(148), "----------");
}

TEST(CondenserPageAlone, OpensOnTheNamesWithoutACondenser) {
  Bench bench = benches::Named("Harbour");
  Unfit(bench, accessory::kCondenser);
  PageRig rig(std::move(bench));
  auto& page = rig.Show(MakeCondenserSettingsCtl(rig.k70()));
  EXPECT_FALSE(page.optCondenserSetting->option(0)->isEnabled());
  EXPECT_EQ(page.CurrentItem(), 1);
  EXPECT_TRUE(page.CondenserOptionCtl1->isVisible());
  ClickButton(*page.optCondenserSetting->option(0));
  EXPECT_EQ(page.CurrentItem(), 1);
  EXPECT_TRUE(page.CondenserOptionCtl1->isVisible());
  EXPECT_EQ(rig.TabOrder().front(), "optCondenserSetting_1");
}

TEST(CondenserPageAlone, GoesToTheNamesWhenTheNextMicroscopeHasNoCondenser) {
  PageRig rig(List({"Quay", "Lantern", "Harbour"}));
  auto& page = rig.Show(MakeCondenserSettingsCtl(rig.k70()));
  ASSERT_EQ(page.CurrentItem(), 0);
  rig.k70().Disconnect();
  rig.k70().Connect(1);
  page.LoadData();
  EXPECT_EQ(page.CurrentItem(), 1);
  EXPECT_FALSE(page.optCondenserSetting->option(0)->isEnabled());
  EXPECT_FALSE(page.CondenserCassetteCtl1->isVisible());
}

TEST(CondenserPageAlone, HasNothingSelectedBeforeItIsLoaded) {
  PageRig rig("Harbour");
  const std::unique_ptr<CondenserSettingsCtl> page(MakeCondenserSettingsCtl(rig.k70()));
  EXPECT_EQ(page->CurrentItem(), -1);
}

}  // namespace
}  // namespace mortane::test

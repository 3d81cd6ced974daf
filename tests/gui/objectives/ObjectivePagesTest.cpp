// The container of the objective pages.

#include <QAbstractButton>
#include <QTest>

#include "gui/objectives/AccessibleObjectives.h"
#include "gui/objectives/ObjectivePages.h"
#include "gui/support/LatePages.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageDrill.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

PageDrillData ObjectivePages() {
  PageDrillData data;
  data.name = "Objectives";
  data.without = {DrillTable::Shown, DrillTable::Edits, DrillTable::Refused};
  data.bench = "Harbour";
  data.make = MakeObjectiveSettingsCtl;
  data.controls = {{"optSettings_0", "Nosepiece"},
                   {"optSettings_1", "Optional Obj."},
                   {"optSettings_2", "Limit Control"},
                   {"Header", ""},
                   {"ObjectiveCtl1", ""},
                   {"ObjectiveOptionCtl1", ""},
                   {"ObjectiveLimitCtl1", ""}};
  const auto unknown = [](Bench& bench) { bench.instruments.back().limitation = 19; };
  data.enabling = {
      {"optSettings_0", "Harbour", {}, true},  {"optSettings_0", "Hub", {}, false},
      {"optSettings_0", "Outpost", {}, true},  {"optSettings_1", "Hub", {}, true},
      {"optSettings_2", "Harbour", {}, true},  {"optSettings_2", "Hub", {}, false},
      {"optSettings_2", "Outpost", {}, false}, {"optSettings_2", "Harbour", unknown, false}};
  data.tabOrder = {"optSettings_0", "TabNosepiece", "place_1", "ListSeries", "ListItem"};
  data.accessible = {told::Heading("Objectives"), told::Group("Objectives"),
                     told::Chosen("Nosepiece"), told::NotChosen("Optional Obj."),
                     told::NotChosen("Limit Control")};
  for (AccessibleControl& control : AccessibleNosepiece()) {
    data.accessible.push_back(std::move(control));
  }
  return data;
}

INSTANTIATE_TEST_SUITE_P(ObjectivePages, PageDrill, testing::Values(ObjectivePages()),
                         PageDrillName);

const Page* VisibleOf(const ObjectiveSettingsCtl& page) {
  const Page* visible = nullptr;
  for (const Page* subPage : std::initializer_list<const Page*>{
           page.ObjectiveCtl1, page.ObjectiveOptionCtl1, page.ObjectiveLimitCtl1}) {
    if (!subPage->isVisible()) continue;
    EXPECT_EQ(visible, nullptr) << "one sub-page at a time";
    visible = subPage;
  }
  return visible;
}

TEST(ObjectivePages, OpenOnTheNosepieceWhereThereIsOne) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  EXPECT_EQ(page.CurrentItem(), 0);
  EXPECT_EQ(VisibleOf(page), page.ObjectiveCtl1);
}

TEST(ObjectivePages, OpenOnTheOptionalObjectivesWithoutANosepiece) {
  PageRig rig("Hub");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  EXPECT_EQ(page.CurrentItem(), 1);
  EXPECT_FALSE(page.optSettings->option(0)->isEnabled());
  EXPECT_EQ(VisibleOf(page), page.ObjectiveOptionCtl1);
}

TEST(ObjectivePages, TheNosepieceComesBackWithAnotherMicroscope) {
  PageRig rig(List({"Quay", "Hub", "Harbour"}), Link::None);
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  for (const bool fitted : {false, true, false}) {
    rig.k70().Connect(fitted ? 2 : 1);
    rig.k70().Receive();
    page.LoadData();
    EXPECT_EQ(page.CurrentItem(), fitted ? 0 : 1);
    EXPECT_EQ(page.optSettings->option(0)->isEnabled(), fitted);
  }
}

TEST(ObjectivePages, AClickShowsItsSubPageAlone) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  const Page* subPages[] = {page.ObjectiveCtl1, page.ObjectiveOptionCtl1, page.ObjectiveLimitCtl1};
  for (const int index : {2, 1, 0}) {
    ClickButton(*page.optSettings->option(index));
    EXPECT_EQ(page.CurrentItem(), index);
    EXPECT_EQ(VisibleOf(page), subPages[index]);
  }
}

TEST(ObjectivePages, TheSelectedOptionAloneIsAmber) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  ClickButton(*page.optSettings->option(2));
  page.optSettings->option(0)->setFocus();
  for (int i = 0; i < page.optSettings->count(); ++i) {
    QAbstractButton& option = *page.optSettings->option(i);
    const QColor background = option.grab().toImage().pixelColor(8, option.height() / 2);
    EXPECT_EQ(background == QColor(255, 204, 0), i == 2) << i;
    EXPECT_EQ(background == option.palette().color(QPalette::Button), i != 2) << i;
  }
}

TEST(ObjectivePages, ASubPageIsLoadedEachTimeThatItIsOpened) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  ClickTab(*page.ObjectiveCtl1->TabNosepiece, 3);
  ClickButton(*page.optSettings->option(2));
  rig.k70().curLimit.curSkip = 1;
  rig.k70().curNosepiece.code(1, 12);
  ClickButton(*page.optSettings->option(0));
  EXPECT_EQ(page.ObjectiveCtl1->TabNosepiece->caption(), "1");
  EXPECT_EQ(Shown(rig.Find("LabelName")), "Plan F 100x Oil");
  ClickButton(*page.optSettings->option(2));
  EXPECT_EQ(page.ObjectiveLimitCtl1->optSkipEmpty->selected(), 1);
}

TEST(ObjectivePages, AClickOnTheOptionOnShowLoadsAgain) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  ClickTab(*page.ObjectiveCtl1->TabNosepiece, 3);
  ClickButton(*page.optSettings->option(0));
  EXPECT_EQ(page.ObjectiveCtl1->TabNosepiece->caption(), "1");
}

TEST(ObjectivePages, LoadingOpensTheNosepieceAgainAndLoadsTheOthersUnseen) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  ClickButton(*page.optSettings->option(2));
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "Renamed", 1, 1, "5", "1", "0.1", 0);
  rig.k70().curLimit.curImmersion = 2;
  page.LoadData();
  EXPECT_EQ(page.CurrentItem(), 0);
  EXPECT_EQ(page.ObjectiveOptionCtl1->TextName->text(), "Renamed");
  EXPECT_EQ(page.ObjectiveLimitCtl1->optPreventImmersion->selected(), 2);
}

// Which shows what that leaves of the name: the fifteen characters of its field.
TEST(ObjectivePages, LoadingTheOptionalObjectivesComesBeforeTheNosepiece) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  ASSERT_EQ(page.CurrentItem(), 0);
  MakeAllPages(page);
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "Sixteen letters.", 4, 6, "5", "1", "0.1", 0);
  rig.k70().curNosepiece.code(1, 241);
  page.LoadData();
  EXPECT_EQ(Shown(rig.Find("LabelName")), "Sixteen letters");
}

TEST(ObjectivePages, SavingRepairsTheOptionalObjectiveWhateverIsOnShow) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  page.ObjectiveOptionCtl1->TextMag->setText("300");
  page.SaveData();
  std::string name;
  std::string magnification;
  std::string distance;
  std::string aperture;
  std::int32_t series = 0;
  std::int32_t type = 0;
  std::int32_t condenser = 0;
  rig.k70().DbNosepiece.Get_DbNosepieceOption(1, name, series, type, magnification, distance,
                                              aperture, condenser);
  EXPECT_EQ(magnification, "----");
  EXPECT_EQ(distance, "1.98");
}

TEST(ObjectivePages, WhatSavingHasStoredCanBeShown) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  page.ObjectiveOptionCtl1->TextMag->setText("300");
  page.ObjectiveOptionCtl1->TextWD->setText("abc");
  page.SaveData();
  EXPECT_EQ(page.ObjectiveOptionCtl1->TextWD->text(), "abc");
  rig.journal.Clear();
  page.ShowStored();
  EXPECT_EQ(page.ObjectiveOptionCtl1->TextMag->text(), "----");
  EXPECT_EQ(page.ObjectiveOptionCtl1->TextWD->text(), "0");
  EXPECT_EQ(page.ObjectiveOptionCtl1->TextNA->text(), "0.95");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(ObjectivePages, AnEditIsSentAndNothingElse) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveSettingsCtl(rig.k70()));
  ClickTab(*page.ObjectiveCtl1->TabNosepiece, 3);
  Enter(*page.ObjectiveCtl1->ListItem, "DIC\t20x\t2.1\t0.5\tPlan F 20x");
  page.SaveData();
  rig.journal.Clear();
  EXPECT_EQ(rig.k70().curNosepiece.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(),
            std::vector<std::string>{"NosepieceDevice.Positions(4).Code = 9"});
}

}  // namespace
}  // namespace mortane::test

// The page of the nosepiece's addresses.

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QTest>

#include "NosepieceRig.h"
#include "common/Numbers.h"
#include "drawings/TurretDrawing.h"
#include "gui/objectives/AccessibleObjectives.h"
#include "gui/objectives/ObjectivePages.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageDrill.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"

namespace mortane::test {
namespace {

using Texts = std::vector<std::string>;

template <int Address>
std::string CodeAt(ObjectiveUnits& k70) {
  return std::to_string(k70.curNosepiece.code(Address));
}

template <int Code>
void Mount(ObjectiveUnits& k70) {
  k70.curNosepiece.code(1, Code);
}

const std::vector<GivenControl> kControls{
    {"FrameBase", "Set Objective Data to Each Address"},
    {"Frame1", ""},
    {"Label1", "Series"},
    {"Label2", "Type"},
    {"Label3", "Mag."},
    {"Label4", "W.D."},
    {"Label5", "N.A."},
    {"Label6", "Name"},
    {"LabelSeries", "Plan A"},
    {"LabelType", "Macro"},
    {"LabelMag", "2x"},
    {"LabelWD", "8.5"},
    {"LabelNA", "0.06"},
    {"LabelName", "Plan A 2x"},
};

PageDrillData NosepiecePage() {
  PageDrillData data;
  data.name = "Nosepiece";
  data.without = {DrillTable::Refused, DrillTable::Enabling};
  data.bench = "Harbour";
  data.make = MakeObjectiveCtl;
  data.controls = kControls;
  data.shown = {
      {"LabelSeries", Mount<18>, CodeAt<1>, "Super C"},
      {"LabelType", Mount<18>, CodeAt<1>, "Oil"},
      {"LabelMag", Mount<18>, CodeAt<1>, "100x"},
      {"LabelWD", Mount<18>, CodeAt<1>, "0.13"},
      {"LabelNA", Mount<18>, CodeAt<1>, "1.45"},
      {"LabelName", Mount<18>, CodeAt<1>, "Super C100x Oil"},
      {"ListSeries", Mount<18>, CodeAt<1>, "Super C"},
      {"ListItem", Mount<18>, CodeAt<1>, "Oil\t100x\t0.13\t1.45\tSuper C100x Oil"},
      {"ListItem", Mount<241>, CodeAt<1>, "Water\t25x\t1.98\t0.95\tClinic 25x"},
      {"LabelMag", Mount<0>, CodeAt<1>, "----"},
      {"TabNosepiece", Mount<18>, CodeAt<1>, "1"},
  };
  data.edits = {
      {"ListItem", "Dry\t10x\t10.5\t0.25\tPlan A 10x", CodeAt<1>, "3"},
      {"ListSeries", "Plan F", CodeAt<1>, "8"},
      {"ListSeries", "-----------", CodeAt<1>, "0"},
  };
  data.tabOrder = {"TabNosepiece", "place_1", "ListSeries", "ListItem"};
  data.accessible = AccessibleNosepiece();
  return data;
}

INSTANTIATE_TEST_SUITE_P(NosepiecePage, PageDrill, testing::Values(NosepiecePage()), PageDrillName);

const Texts kBlank{"", "", "", "", ""};

Texts ShownParts(const ObjectiveCtl& page) {
  Texts parts;
  for (const ValueLabel* label : std::initializer_list<const ValueLabel*>{
           page.LabelType, page.LabelMag, page.LabelWD, page.LabelNA, page.LabelName}) {
    parts.push_back(label->text().toStdString());
  }
  return parts;
}

TEST(NosepiecePage, HasATabForEachAddress) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(RowsOf(*page.TabNosepiece), (Texts{"1", "2", "3", "4", "5", "6"}));
}

TEST(NosepiecePage, ListsTheSeriesFromTheRowOfDashes) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(RowsOf(*page.ListSeries),
            (Texts{"-----------", "Plan A", "Plan F", "Super C", "Long WD", "Relief", "Epi"}));
}

TEST(NosepiecePage, ListsTheObjectivesOfTheSeriesWithTheirCodes) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(RowsOf(*page.ListItem),
            (Texts{"Macro\t2x\t8.5\t0.06\tPlan A 2x", "Dry\t4x\t30\t0.1\tPlan A 4x",
                   "Dry\t10x\t10.5\t0.25\tPlan A 10x", "Phase\t10x\t10.5\t0.25\tPlan A 10x Ph",
                   "Dry\t20x\t1.2\t0.4\tPlan A 20x", "Dry\t40x\t0.56\t0.65\tPlan A 40x",
                   "Oil\t100x\t0.17\t1.25\tPlan A 100x Oil"}));
  for (int row = 0; row < page.ListItem->rowCount(); ++row) {
    EXPECT_EQ(page.ListItem->data(row).toInt(), row + 1);
  }
}

TEST(NosepiecePage, LoadingAndVisitingAllTabsOfAnOrdinaryNosepieceChangesNothing) {
  for (const char* bench : {"Harbour", "Quay", "Pair", "Outpost"}) {
    PageRig rig(bench);
    Texts before;
    for (int i = 1; i <= 10; ++i) before.push_back(std::to_string(rig.k70().curNosepiece.code(i)));
    auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
    for (int i = 0; i < page.TabNosepiece->count(); ++i) ClickTab(*page.TabNosepiece, i);
    Texts after;
    for (int i = 1; i <= 10; ++i) after.push_back(std::to_string(rig.k70().curNosepiece.code(i)));
    EXPECT_EQ(before, after) << bench;
  }
}

TEST(NosepiecePage, ATabShowsWhatStandsAtItsAddress) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  ClickTab(*page.TabNosepiece, 3);
  EXPECT_EQ(page.LabelSeries->text(), "Plan F");
  EXPECT_EQ(Shown(*page.ListSeries), "Plan F");
  EXPECT_EQ(Shown(*page.ListItem), "DIC\t40x\t0.66\t0.75\tPlan F 40x");
  EXPECT_EQ(ShownParts(page), (Texts{"DIC", "40x", "0.66", "0.75", "Plan F 40x"}));
}

TEST(NosepiecePage, AChoiceGoesToTheSelectedAddressAlone) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  ClickTab(*page.TabNosepiece, 2);
  Enter(*page.ListItem, "Dry\t20x\t1.2\t0.4\tPlan A 20x");
  const clsNosepiece& nosepiece = rig.k70().curNosepiece;
  EXPECT_EQ(nosepiece.code(1), 1);
  EXPECT_EQ(nosepiece.code(2), 4);
  EXPECT_EQ(nosepiece.code(3), 5);
  EXPECT_EQ(nosepiece.code(4), 10);
  EXPECT_EQ(ShownParts(page), (Texts{"Dry", "20x", "1.2", "0.4", "Plan A 20x"}));
}

TEST(NosepiecePage, BrowsingAnotherSeriesMountsItsFirstObjective) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  Enter(*page.ListSeries, "Long WD");
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 19);
  EXPECT_EQ(page.LabelSeries->text(), "Long WD");
  EXPECT_EQ(Shown(*page.ListItem), "Dry\t20x\t8.2\t0.45\tLong WD 20x");
  EXPECT_EQ(ShownParts(page), (Texts{"Dry", "20x", "8.2", "0.45", "Long WD 20x"}));
}

TEST(NosepiecePage, BrowsingTheSeriesOfTheMountedObjectiveKeepsIt) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  ClickTab(*page.TabNosepiece, 1);
  Enter(*page.ListSeries, "Plan A");
  EXPECT_EQ(rig.k70().curNosepiece.code(2), 4);
  EXPECT_EQ(page.ListItem->index(), 3);
}

TEST(NosepiecePage, ArrowKeysInTheSeriesListBrowseToo) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  page.ListSeries->setFocus();
  QTest::keyClick(page.ListSeries, Qt::Key_Down);
  EXPECT_EQ(page.LabelSeries->text(), "Plan F");
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 8);
}

TEST(NosepiecePage, ASeriesWithoutObjectivesBlanksTheLabelsAndMountsNothing) {
  AtticRig rig;
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  ClickTab(*page.TabNosepiece, 2);
  ASSERT_EQ(rig.k70().curNosepiece.code(3), 4);
  Enter(*page.ListSeries, "Series 11");
  EXPECT_EQ(page.ListItem->rowCount(), 0);
  EXPECT_EQ(ShownParts(page), kBlank);
  EXPECT_EQ(page.LabelSeries->text(), "Series 11");
  EXPECT_EQ(rig.k70().curNosepiece.code(3), 4);
}

TEST(NosepiecePage, WithNoAddressesThereAreNoTabsAndTheListIsEmpty) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  rig.k70().curNosepiece.Count = 0;
  page.LoadData();
  EXPECT_EQ(page.TabNosepiece->count(), 0);
  EXPECT_EQ(page.ListItem->rowCount(), 0);
  EXPECT_EQ(ShownParts(page), kBlank);
  EXPECT_EQ(TurretOf(rig).count(), 0);
  const std::int32_t before = rig.k70().curNosepiece.code(1);
  Enter(*page.ListSeries, "Epi");
  EXPECT_EQ(rig.k70().curNosepiece.code(1), before) << "without a tab nothing is stored";
  rig.k70().curNosepiece.Count = 6;
  page.LoadData();
  EXPECT_EQ(page.TabNosepiece->count(), 6);
  EXPECT_EQ(Shown(*page.ListItem), "Macro\t2x\t8.5\t0.06\tPlan A 2x");
}

TEST(NosepiecePage, AMountedCodeWithADashedNameLeavesNoSelectedRow) {
  PageRig rig("Harbour");
  rig.k70().curNosepiece.code(1, 243);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(page.ListItem->index(), -1);
  EXPECT_EQ(ShownParts(page), kBlank);
  EXPECT_EQ(RowsOf(*page.ListItem), Texts{"--------\t----\t0\t0\t"});
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 0) << "loading has mounted the first of the series";
}

TEST(NosepiecePage, UnusedCodesShareOneRowThatStandsForTheMountedOne) {
  PageRig rig("Harbour");
  rig.k70().curNosepiece.code(1, 100);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(RowsOf(*page.ListItem), Texts{"--------\t----\t0\t0\t"});
  EXPECT_EQ(page.ListItem->index(), 0);
  EXPECT_EQ(page.ListItem->data(0).toInt(), 100);
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 100);
}

TEST(NosepiecePage, OfTwinsTheMountedOneWins) {
  for (const std::int32_t mounted : {6, 7}) {
    AtticRig rig;
    rig.k70().curNosepiece.code(1, mounted);
    auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
    EXPECT_EQ(page.ListItem->index(), 0);
    EXPECT_EQ(page.ListItem->data(0).toInt(), mounted);
    EXPECT_EQ(page.ListItem->data(1).toInt(), 247) << "the twins have one row";
    EXPECT_EQ(rig.k70().curNosepiece.code(1), mounted);
  }
}

TEST(NosepiecePage, TwinsAtTwoAddressesStayWhereTheyAreFromTabToTab) {
  AtticRig rig;
  rig.k70().curNosepiece.code(1, 6);
  rig.k70().curNosepiece.code(2, 7);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  for (const int tab : {1, 0, 1}) {
    ClickTab(*page.TabNosepiece, tab);
    EXPECT_EQ(page.ListItem->data(page.ListItem->index()).toInt(), 6 + tab);
    EXPECT_EQ(CodeAt<1>(rig.k70()), "6") << tab;
    EXPECT_EQ(CodeAt<2>(rig.k70()), "7") << tab;
  }
}

TEST(NosepiecePage, LoadingShowsTheNewNameOfTheObjectiveThatWasOnShow) {
  PageRig rig("Harbour");
  rig.k70().curNosepiece.code(1, 241);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  ASSERT_EQ(page.LabelName->text(), "Clinic 25x");
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "Renamed", 2, 3, "25", "1.98", "0.95", 3);
  page.LoadData();
  EXPECT_EQ(page.LabelName->text(), "Renamed");
  EXPECT_EQ(Shown(*page.ListItem), "Water\t25x\t1.98\t0.95\tRenamed");
}

TEST(NosepiecePage, OfTwinsTheFirstStandsWhereNeitherIsMounted) {
  AtticRig rig;
  rig.k70().curNosepiece.code(1, 1);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  Enter(*page.ListSeries, "Series 3");
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 6);
}

TEST(NosepiecePage, SameTextsApartFromEachOtherHaveTheirOwnRows) {
  AtticRig rig;
  rig.k70().curNosepiece.code(1, 1);
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "Series 1 4x", 1, 1, "4", "30", "0.1", 0);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  const Texts rows = RowsOf(*page.ListItem);
  EXPECT_EQ(std::count(rows.begin(), rows.end(), "Type 1\t4x\t30\t0.1\tSeries 1 4x"), 2);
}

TEST(NosepiecePage, ASeriesThatTheListDoesNotKnowSelectsNothing) {
  AtticRig rig;
  rig.k70().curNosepiece.code(1, 8);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(page.ListSeries->index(), -1);
  EXPECT_EQ(page.LabelSeries->text(), "");
  EXPECT_EQ(page.ListItem->rowCount(), 0);
  EXPECT_EQ(ShownParts(page), kBlank);
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 8);
  EXPECT_EQ(TurretOf(rig).place(0)->accessibleName(), "Address 1, 50x, Lost 50x");
}

TEST(NosepiecePage, ShowsTwentyCharactersOfAName) {
  AtticRig rig;
  rig.k70().curNosepiece.code(1, 2);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(page.LabelName->text(), "A name of thirty cha");
}

TEST(NosepiecePage, LoadingGoesBackToTheFirstTab) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  ClickTab(*page.TabNosepiece, 4);
  page.LoadData();
  EXPECT_EQ(page.TabNosepiece->index(), 0);
  EXPECT_EQ(page.LabelName->text(), "Plan A 2x");
  EXPECT_EQ(TurretOf(rig).index(), 0);
}

TEST(NosepiecePage, SeriesNamesAreThoseOfTheFirstMicroscope) {
  PageRig rig(List({"Quay", "Harbour", "Attic"}), Link::None);
  rig.prompts.AcceptAnyBox();
  rig.k70().Connect(1);
  rig.k70().Receive();
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  const Texts before = RowsOf(*page.ListSeries);
  rig.k70().Connect(2);
  rig.k70().Receive();
  page.LoadData();
  EXPECT_EQ(RowsOf(*page.ListSeries), before);
}

TEST(NosepiecePage, TheTabKeyIntoAListWithoutSelectionMountsNothing) {
  PageRig rig("Harbour");
  rig.k70().curNosepiece.code(1, 243);
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  rig.k70().curNosepiece.code(1, 243);
  page.ListSeries->setFocus();
  QTest::keyClick(page.ListSeries, Qt::Key_Tab);
  EXPECT_TRUE(page.ListItem->hasFocus());
  EXPECT_EQ(page.ListItem->index(), -1);
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 243);
}

TEST(NosepiecePage, AClickOnTheSelectedRowStoresAgain) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  rig.k70().curNosepiece.code(1, 9);
  ClickRow(*page.ListItem, 0);
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 1);
}

TEST(NosepiecePage, ColumnsBeginNoFurtherLeftThanTheTabStops) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  ASSERT_EQ(page.ListItem->columnCount(), 5);
  const int letters = page.ListItem->fontMetrics().horizontalAdvance(
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
  int column = 1;
  for (const int stop : {30, 60, 90, 120}) {
    EXPECT_GE(page.ListItem->header()->sectionPosition(column) + column, stop * letters / 52 / 4)
        << column;
    ++column;
  }
}

TEST(NosepiecePage, ValuesStandInTheFixedPitchFont) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  for (const ValueLabel* label :
       std::initializer_list<const ValueLabel*>{page.LabelSeries, page.LabelType, page.LabelMag,
                                                page.LabelWD, page.LabelNA, page.LabelName}) {
    EXPECT_EQ(label->font(), FixedFont()) << label->objectName().toStdString();
  }
}

TEST(NosepiecePage, ShowsNumbersInTheFormatOfTheSystem) {
  SetSystemNumberFormat({",", "."});
  {
    PageRig rig("Harbour");
    auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
    EXPECT_EQ(ShownParts(page), (Texts{"Macro", "2x", "8,5", "0,06", "Plan A 2x"}));
    rig.k70().DbNosepiece.Set_DbNosepiece(1, "Fine", 1, 1, "2,5", "1", "0,1", 0);
    rig.k70().curNosepiece.code(1, 241);
    page.LoadData();
    EXPECT_EQ(page.LabelMag->text(), "2,5x");
    EXPECT_EQ(TurretOf(rig).place(0)->accessibleName(), "Address 1, 2,5x, Fine");
  }
  SetSystemNumberFormat(PointFormat());
}

}  // namespace
}  // namespace mortane::test

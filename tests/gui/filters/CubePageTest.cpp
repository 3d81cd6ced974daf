// The page of the turret's addresses.
#include <QAbstractButton>
#include <QHeaderView>
#include <QTest>

#include "drawings/TurretDrawing.h"
#include "gui/filters/FilterPages.h"
#include "gui/support/PageActs.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"

namespace mortane::test {
namespace {

using Texts = std::vector<std::string>;

class CubePage : public testing::Test {
 protected:
  explicit CubePage(Bench bench = benches::Named("Harbour")) : rig(std::move(bench)) {
    rig.Show(&page);
  }

  void Mount(int address, int code) { rig.k70().curFilter.code(address, code); }
  int codeAt(int address) { return rig.k70().curFilter.code(address); }
  Texts parts() {
    Texts shown;
    for (const ValueLabel* label : std::initializer_list<const ValueLabel*>{
             page.LabelName, page.LabelExciter, page.LabelDichroic, page.LabelBarrier}) {
      shown.push_back(label->text().toStdString());
    }
    return shown;
  }
  int selectedCode() { return page.List1->data(page.List1->index()).toInt(); }

  PageRig rig;
  FilterQubeCtl& page = *MakeFilterQubeCtl(rig.k70());
};

const Texts kBlank{"", "", "", ""};

TEST_F(CubePage, HasATabForEachAddress) {
  EXPECT_EQ(RowsOf(*page.TabPocket), (Texts{"1", "2", "3", "4", "5", "6"}));
}

TEST_F(CubePage, ListsTheFixedCubesFromCodeNoughtAndTheNamedOptions) {
  ASSERT_EQ(page.List1->rowCount(), 12);
  for (int row = 0; row < 11; ++row) EXPECT_EQ(page.List1->data(row).toInt(), row);
  EXPECT_EQ(page.List1->text(0), "\t\t\t");
  EXPECT_EQ(page.List1->text(2), "UV Blue\t365/10\tDM 400\t460/50");
  EXPECT_EQ(page.List1->text(11), "Ratio\t387/11\tDM 495\t525/50");
  EXPECT_EQ(page.List1->data(11).toInt(), 241);
}

TEST_F(CubePage, ATabInsideANameShiftsNoColumn) {
  rig.k70().dbFilter.Set_DbFilterOption(1, "Lent\tout", 241, 4, 5);
  page.LoadData();
  page.List1->setIndex(11);
  EXPECT_EQ(parts(), (Texts{"Lent\tout", "387/11", "DM 495", "525/50"}));
}

TEST_F(CubePage, TypedLettersMountTheCubeOfThatName) {
  page.List1->setFocus();
  QTest::keyClicks(page.List1, "ora");
  EXPECT_EQ(page.LabelName->text(), "Orange");
  EXPECT_EQ(codeAt(1), selectedCode());
}

TEST_F(CubePage, OptionalCubesWithoutANameAreNotListed) {
  rig.k70().dbFilter.Set_DbFilterOption(2, "", 1, 1, 1);
  rig.k70().dbFilter.Set_DbFilterOption(3, "   ", 1, 1, 1);
  rig.k70().dbFilter.Set_DbFilterOption(4, "-------x", 1, 1, 1);
  rig.k70().dbFilter.Set_DbFilterOption(5, "------", 1, 1, 1);
  page.LoadData();
  ASSERT_EQ(page.List1->rowCount(), 13);
  EXPECT_EQ(page.List1->text(12), "------\t340/26\tDM 400\tLP 420");
  EXPECT_EQ(page.List1->data(12).toInt(), 245);
}

TEST_F(CubePage, ARecordBetweenTheFixedCubesAndTheOptionsIsNotListed) {
  auto& cubes = rig.instrument().database.cubes;
  cubes.back().code = 240;
  cubes.back().name = "Between";
  rig.k70().Receive();
  ASSERT_EQ(rig.k70().dbFilter.Name(240), "Between");
  page.LoadData();
  for (int row = 0; row < page.List1->rowCount(); ++row) {
    EXPECT_NE(page.List1->data(row).toInt(), 240) << row;
  }
}

TEST_F(CubePage, ATabShowsWhatStandsAtItsAddressAndVisitingChangesNothing) {
  const Texts names{"UV Blue", "Violet", "Green", "Yellow", "Orange", "Empty"};
  for (int i = 0; i < 6; ++i) {
    const int before = codeAt(i + 1);
    ClickTab(*page.TabPocket, i);
    EXPECT_EQ(parts().front(), names[static_cast<std::size_t>(i)]);
    EXPECT_EQ(selectedCode(), before);
    EXPECT_EQ(codeAt(i + 1), before);
  }
}

TEST_F(CubePage, AChoiceGoesToTheSelectedAddressAlone) {
  ClickTab(*page.TabPocket, 2);
  ClickRow(*page.List1, 9);
  EXPECT_EQ(codeAt(3), 9);
  EXPECT_EQ(codeAt(2), 3);
  EXPECT_EQ(codeAt(4), 7);
  EXPECT_EQ(parts(), (Texts{"Red", "560/40", "DM 595", "630/75"}));
}

TEST_F(CubePage, BehindASkippedCodeTheWrongRowIsSelectedAndStored) {
  rig.instrument().database.cubes[0].name = "-------";
  rig.k70().Receive();
  Mount(1, 4);
  page.LoadData();
  EXPECT_EQ(page.List1->index(), 4);
  EXPECT_EQ(selectedCode(), 5);
  EXPECT_EQ(codeAt(1), 5);
  EXPECT_EQ(parts().front(), "Green");
}

TEST_F(CubePage, ACodeBeforeTheSkippedOneSelectsItsOwnRow) {
  rig.instrument().database.cubes[4].name = "--------";
  rig.k70().Receive();
  Mount(1, 4);
  page.LoadData();
  EXPECT_EQ(selectedCode(), 4);
  EXPECT_EQ(codeAt(1), 4);
}

TEST_F(CubePage, ACodeThatHasNoRowOfItsNumberSelectsNothing) {
  rig.instrument().database.cubes[0].name = "-------";
  rig.k70().Receive();
  rig.k70().dbFilter.Set_DbFilterOption(1, "", 0, 0, 0);
  Mount(1, 10);
  page.LoadData();
  ASSERT_EQ(page.List1->rowCount(), 10);
  EXPECT_EQ(page.List1->index(), -1);
  EXPECT_EQ(codeAt(1), 10);
  EXPECT_EQ(parts(), kBlank);
}

TEST_F(CubePage, AnOptionalCubeIsSelectedByItsRowAlsoBehindASkippedCode) {
  rig.instrument().database.cubes[0].name = "-------";
  rig.k70().Receive();
  Mount(1, 241);
  page.LoadData();
  EXPECT_EQ(selectedCode(), 241);
  EXPECT_EQ(codeAt(1), 241);
}

TEST_F(CubePage, ATabSelectsByTheCodeAlsoBehindASkippedOne) {
  rig.instrument().database.cubes[0].name = "-------";
  rig.k70().Receive();
  page.LoadData();
  ClickTab(*page.TabPocket, 2);
  EXPECT_EQ(selectedCode(), 5);
  EXPECT_EQ(codeAt(3), 5);
}

TEST_F(CubePage, AMountedCubeThatIsNotListedLeavesTheRowOfTheTabBefore) {
  Mount(2, 242);
  ClickTab(*page.TabPocket, 1);
  EXPECT_EQ(selectedCode(), 2);
  EXPECT_EQ(parts().front(), "UV Blue");
  EXPECT_EQ(codeAt(2), 242);
}

TEST_F(CubePage, ACubeWithCodesBeyondTheListsShowsItsOtherItems) {
  rig.instrument().database.cubes[4].exciter = 250;
  rig.instrument().database.cubes[4].barrier = 300;
  rig.prompts.ExpectBox("*** DbFilter.DataError 5", box::kOk);
  rig.k70().Receive();
  page.LoadData();
  EXPECT_EQ(page.List1->text(5), "Green\t\tDM 495\t");
}

TEST_F(CubePage, NamesShowTenCharacters) {
  rig.instrument().database.cubes[1].name = "Eleven char";
  rig.k70().Receive();
  page.LoadData();
  EXPECT_EQ(parts().front(), "Eleven cha");
}

TEST_F(CubePage, ListsEveryCodeUpToACountBeyondTheTable) {
  auto& cubes = rig.instrument().database.cubes;
  for (int i = 0; i < 245; ++i) cubes.push_back({240, false, "Spare", 0, 0, 0});
  page.LoadData();
  ASSERT_EQ(page.List1->rowCount(), 12 + 245 - 8) << "eight dashed options stay out";
  EXPECT_EQ(page.List1->text(247), "\t\t\t");
  EXPECT_EQ(codeAt(1), 2);
}

TEST_F(CubePage, ACountOfNoneListsTheCodeForNothingAndTheOptions) {
  auto& cubes = rig.instrument().database.cubes;
  cubes.erase(cubes.begin(), cubes.begin() + 10);
  page.LoadData();
  EXPECT_EQ(RowsOf(*page.List1), (Texts{"\t\t\t", "Ratio\t387/11\tDM 495\t525/50"}));
  EXPECT_EQ(page.List1->index(), -1);
  EXPECT_EQ(codeAt(1), 2);
}

TEST_F(CubePage, ACountThatGivesNoAnswerIsNone) {
  rig.faults.Add({"AccessoryDatabase.FilterCubeCount"});
  page.LoadData();
  EXPECT_EQ(RowsOf(*page.List1), (Texts{"\t\t\t", "Ratio\t387/11\tDM 495\t525/50"}));
  EXPECT_EQ(codeAt(1), 2);
}

TEST_F(CubePage, WithNoAddressesThereAreNoTabsAndTheListIsEmpty) {
  rig.k70().curFilter.Count = 0;
  page.LoadData();
  EXPECT_EQ(page.TabPocket->count(), 0);
  EXPECT_EQ(page.List1->rowCount(), 0);
  EXPECT_EQ(parts(), kBlank);
  EXPECT_EQ(rig.Find<TurretDrawing>("turret").count(), 0);
  rig.k70().curFilter.Count = 6;
  page.LoadData();
  EXPECT_EQ(page.TabPocket->count(), 6);
  EXPECT_EQ(selectedCode(), 2);
}

TEST_F(CubePage, LoadingGoesBackToTheFirstTab) {
  ClickTab(*page.TabPocket, 4);
  page.LoadData();
  EXPECT_EQ(page.TabPocket->caption(), "1");
  EXPECT_EQ(parts().front(), "UV Blue");
  EXPECT_EQ(rig.Find<TurretDrawing>("turret").index(), 0);
}

TEST_F(CubePage, ArrowKeysInTheListMountToo) {
  page.List1->setFocus();
  QTest::keyClick(page.List1, Qt::Key_Down);
  EXPECT_EQ(codeAt(1), 3);
  EXPECT_EQ(parts().front(), "Violet");
}

TEST_F(CubePage, AClickOnAPlaceIsAClickOnItsTab) {
  auto& turret = rig.Find<TurretDrawing>("turret");
  QTest::mouseClick(turret.place(4), Qt::LeftButton);
  EXPECT_EQ(page.TabPocket->caption(), "5");
  EXPECT_EQ(parts().front(), "Orange");
  ClickTab(*page.TabPocket, 1);
  EXPECT_EQ(turret.index(), 1);
}

TEST_F(CubePage, ThePlacesAgreeWithTheListAtAllTimes) {
  auto& turret = rig.Find<TurretDrawing>("turret");
  ASSERT_EQ(turret.count(), 6);
  EXPECT_EQ(turret.index(), 0);
  EXPECT_EQ(turret.place(0)->accessibleName(), "Address 1, UV Blue");
  EXPECT_EQ(turret.place(5)->accessibleName(), "Address 6, Empty");
  ClickRow(*page.List1, 4);
  EXPECT_EQ(turret.place(0)->accessibleName(), "Address 1, Cyan");
  ClickRow(*page.List1, 0);
  EXPECT_EQ(turret.place(0)->accessibleName(), "Address 1, ----");
}

TEST_F(CubePage, ColumnsBeginNoFurtherLeftThanTheTabStops) {
  ASSERT_EQ(page.List1->columnCount(), 4);
  int column = 1;
  for (const int stop : {64, 128, 192}) {
    EXPECT_GE(page.List1->header()->sectionPosition(column),
              stop * page.List1->fontMetrics().averageCharWidth() / 4 - column);
    ++column;
  }
}

TEST_F(CubePage, ValuesAreTenCharactersWide) {
  for (const ValueLabel* label : std::initializer_list<const ValueLabel*>{
           page.LabelName, page.LabelExciter, page.LabelDichroic, page.LabelBarrier}) {
    EXPECT_EQ(label->sizeHint().width(), 10 * label->fontMetrics().horizontalAdvance(u'0'));
  }
}

// It may wait until it is shown where loading it changes nothing. One address alone is the
// protected one, which asks.
TEST_F(CubePage, LoadsWithoutBeingMadeWhereTheFirstAddressKeepsItsCube) {
  const LatePlan plan = FilterQubeCtl::Plan(rig.k70().curFilter, rig.k70().dbFilter);
  EXPECT_TRUE(plan.load());
  rig.k70().curFilter.Count = 2;
  EXPECT_TRUE(plan.load());
  rig.k70().curFilter.Count = 1;
  EXPECT_FALSE(plan.load());
  Mount(1, 242);
  EXPECT_TRUE(plan.load()) << "of no row";
  rig.k70().curFilter.Count = 0;
  EXPECT_TRUE(plan.load());
  rig.k70().curFilter.Count = 6;
  Mount(1, 4);
  EXPECT_TRUE(plan.load());
  rig.instrument().database.cubes[0].name = "-------";
  rig.k70().Receive();
  Mount(1, 4);
  EXPECT_FALSE(plan.load()) << "behind a skipped code another one is selected";
}

TEST_F(CubePage, ValuesStandInTheFixedPitchFont) {
  for (const ValueLabel* label : std::initializer_list<const ValueLabel*>{
           page.LabelName, page.LabelExciter, page.LabelDichroic, page.LabelBarrier}) {
    EXPECT_EQ(label->font(), FixedFont()) << label->objectName().toStdString();
  }
}

}  // namespace
}  // namespace mortane::test

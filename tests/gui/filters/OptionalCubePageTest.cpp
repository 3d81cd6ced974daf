// The page that composes the user's cubes.
#include <gtest/gtest.h>

#include <QTest>

#include "gui/filters/FilterPages.h"
#include "gui/support/PageActs.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/ValueLabel.h"

namespace mortane::test {
namespace {

constexpr char kDashes[] = "----------";

struct Cube {
  std::string name;
  std::int32_t exciter = 0;
  std::int32_t dichroic = 0;
  std::int32_t barrier = 0;

  bool operator==(const Cube&) const = default;
};

class OptionalCubePage : public testing::Test {
 protected:
  OptionalCubePage() { rig.Show(&page); }

  Cube cube(int position) {
    Cube found;
    rig.k70().dbFilter.Get_DbFilterOption(position, found.name, found.exciter, found.dichroic,
                                          found.barrier);
    return found;
  }
  void Put(int position, const Cube& cube) {
    rig.k70().dbFilter.Set_DbFilterOption(position, cube.name, cube.exciter, cube.dichroic,
                                          cube.barrier);
  }

  PageRig rig{"Harbour"};
  FilterOptionalQubeCtl& page = *MakeFilterOptionalQubeCtl(rig.k70());
};

TEST_F(OptionalCubePage, HasNineTabs) {
  EXPECT_EQ(RowsOf(*page.TabOption),
            (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7", "8", "9"}));
}

// A field has 6 pixels beside its text within its line, a list 30 for its frame and scroll bar.
TEST_F(OptionalCubePage, PartsAreAsWideAsTheirUsualTexts) {
  const auto widthOf = [](int characters, const QWidget& widget) {
    return widget.fontMetrics().horizontalAdvance(QString(characters, u'0'));
  };
  EXPECT_EQ(page.TextName->maximumWidth(), widthOf(16, *page.TextName) + 12 + 16);
  EXPECT_EQ(page.TextName->minimumWidth(), widthOf(10, *page.TextName) + 12 + 8);
  for (const ListBox* list :
       std::initializer_list<const ListBox*>{page.ListExciter, page.ListDichroic, page.ListBarrier})
    EXPECT_EQ(list->minimumWidth(), 30 + widthOf(11, *list));
}

TEST_F(OptionalCubePage, ATabSelectsTheItemsOfItsCubeAlsoTheOneForNothing) {
  Put(1, {"One", 3, 2, 1});
  Put(2, {"Two", 0, 0, 0});
  page.LoadData();
  EXPECT_EQ(page.ListExciter->index(), 3);
  EXPECT_EQ(page.ListDichroic->index(), 2);
  EXPECT_EQ(page.ListBarrier->index(), 1);
  ClickTab(*page.TabOption, 1);
  for (const ListBox* list :
       std::initializer_list<const ListBox*>{page.ListExciter, page.ListDichroic, page.ListBarrier})
    EXPECT_EQ(list->index(), 0);
}

TEST_F(OptionalCubePage, TheListsBeginWithTheItemForNothing) {
  const ListBox* lists[] = {page.ListExciter, page.ListDichroic, page.ListBarrier};
  const int fixed[] = {11, 9, 11};
  const int named[] = {2, 1, 1};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(lists[i]->text(0), "");
    EXPECT_EQ(lists[i]->data(0).toInt(), 0);
    ASSERT_EQ(lists[i]->rowCount(), 1 + fixed[i] + named[i]);
    EXPECT_EQ(lists[i]->data(fixed[i]).toInt(), fixed[i]);
    EXPECT_EQ(lists[i]->data(fixed[i] + 1).toInt(), 241);
  }
}

TEST_F(OptionalCubePage, ANewlyNamedItemAppearsWithTheNextLoadingAndAMarkedOneDoesNot) {
  EXPECT_EQ(page.ListExciter->rowCount(), 14);
  rig.k70().Exciter.Name(249, "New");
  rig.k70().Exciter.Name(248, kDashes);
  rig.k70().Exciter.Name(247, "  ");
  rig.k70().Exciter.Name(246, "---------");
  page.LoadData();
  ASSERT_EQ(page.ListExciter->rowCount(), 16);
  EXPECT_EQ(page.ListExciter->text(14), "---------");
  EXPECT_EQ(page.ListExciter->text(15), "New");
  EXPECT_EQ(page.ListExciter->data(15).toInt(), 249);
}

TEST_F(OptionalCubePage, AListWhoseCountGivesNoAnswerHasItsFirstRowAndTheOptions) {
  rig.faults.Add({"AccessoryDatabase.DichroicCount"});
  page.LoadData();
  EXPECT_EQ(RowsOf(*page.ListDichroic), (std::vector<std::string>{"", "DM 409"}));
  EXPECT_EQ(page.ListExciter->rowCount(), 14);
  EXPECT_EQ(page.ListBarrier->rowCount(), 13);
  EXPECT_EQ(cube(1), (Cube{"Ratio", 241, 4, 5}));
}

TEST_F(OptionalCubePage, AnItemBetweenTheFixedOnesAndTheOptionsIsNotListed) {
  rig.k70().Exciter.Name(240, "Between");
  page.LoadData();
  EXPECT_EQ(page.ListExciter->rowCount(), 14);
}

TEST_F(OptionalCubePage, AFixedItemOfTenDashesIsSkippedAndItsNeighboursKeepTheirCodes) {
  rig.k70().Dichroic.Name(4, kDashes);
  Put(1, {"Ratio", 241, 5, 5});
  page.LoadData();
  EXPECT_EQ(page.ListDichroic->rowCount(), 10);
  EXPECT_EQ(page.LabelDichroic->text(), "DM 505");
  EXPECT_EQ(cube(1), (Cube{"Ratio", 241, 5, 5}));
}

TEST_F(OptionalCubePage, AnItemWithoutARowSelectsNothingAndIsStoredBackUnchanged) {
  Put(1, {"Ratio", 249, 4, 200});
  page.LoadData();
  EXPECT_EQ(page.ListExciter->index(), -1);
  EXPECT_EQ(page.LabelExciter->text(), "");
  EXPECT_EQ(page.ListBarrier->index(), -1);
  EXPECT_EQ(page.LabelBarrier->text(), "");
  EXPECT_EQ(page.LabelDichroic->text(), "DM 495");
  Enter(*page.ListDichroic, "DM 400");
  EXPECT_EQ(cube(1), (Cube{"Ratio", 249, 1, 200}));
  page.SaveData();
  EXPECT_EQ(cube(1), (Cube{"Ratio", 249, 1, 200}));
}

TEST_F(OptionalCubePage, OnATabAnItemWithoutARowLeavesTheSelection) {
  Put(2, {"Two", 249, 1, 1});
  ClickTab(*page.TabOption, 1);
  EXPECT_EQ(page.LabelExciter->text(), "387/11");
  EXPECT_EQ(page.LabelDichroic->text(), "DM 400");
  EXPECT_EQ(cube(2), (Cube{"Two", 249, 1, 1}));
  EXPECT_EQ(cube(1), (Cube{"Ratio", 241, 4, 5}));
}

TEST_F(OptionalCubePage, ATabDoesNotRebuildTheLists) {
  rig.k70().Exciter.Name(249, "New");
  ClickTab(*page.TabOption, 1);
  EXPECT_EQ(page.ListExciter->rowCount(), 14);
}

TEST_F(OptionalCubePage, ATabShowsItsOwnCube) {
  Put(9, {"Nine", 1, 2, 3});
  ClickTab(*page.TabOption, 8);
  EXPECT_EQ(page.TextName->text(), "Nine");
  EXPECT_EQ(page.LabelExciter->text(), "340/26");
  EXPECT_EQ(page.LabelDichroic->text(), "DM 430");
  EXPECT_EQ(page.LabelBarrier->text(), "480/40");
  page.LoadData();
  EXPECT_EQ(page.TabOption->caption(), "9") << "loading keeps the tab";
  EXPECT_EQ(page.TextName->text(), "Nine");
}

TEST_F(OptionalCubePage, ATypedNameIsStoredForTheTabThatIsLeft) {
  TypeInto(*page.TextName, "Mine");
  ClickTab(*page.TabOption, 1);
  EXPECT_EQ(cube(1), (Cube{"Mine", 241, 4, 5}));
  EXPECT_EQ(page.TextName->text(), kDashes);
}

TEST_F(OptionalCubePage, LoadingABlankNameStoresTheDashesThatItShows) {
  Put(1, {"  ", 1, 2, 3});
  page.LoadData();
  EXPECT_EQ(page.TextName->text(), kDashes);
  EXPECT_EQ(cube(1), (Cube{kDashes, 1, 2, 3}));
}

TEST_F(OptionalCubePage, LoadingCutsANameOfElevenCharacters) {
  rig.instrument().database.cubes[10].name = "Eleven char";
  rig.k70().Receive();
  ASSERT_EQ(cube(1).name, "Eleven char");
  page.LoadData();
  EXPECT_EQ(page.TextName->text(), "Eleven cha");
  EXPECT_EQ(cube(1).name, "Eleven cha");
}

TEST_F(OptionalCubePage, ANameLeftBlankStaysBlank) {
  Enter(*page.TextName, "");
  EXPECT_EQ(page.TextName->text(), "");
  EXPECT_EQ(cube(1), (Cube{"", 241, 4, 5}));
}

TEST_F(OptionalCubePage, TheFirstCharacterWipesTheDashesAndEnterStores) {
  ClickTab(*page.TabOption, 1);
  page.TextName->setFocus();
  page.TextName->end(false);
  QTest::keyClicks(page.TextName, "Two");
  EXPECT_EQ(page.TextName->text(), "Two");
  EXPECT_EQ(cube(2).name, kDashes);
  QTest::keyClick(page.TextName, Qt::Key_Return);
  EXPECT_EQ(cube(2).name, "Two");
  EXPECT_TRUE(page.TextName->hasFocus());
}

TEST_F(OptionalCubePage, EnterOnTheDashesStoresABlankName) {
  ClickTab(*page.TabOption, 1);
  page.TextName->setFocus();
  QTest::keyClick(page.TextName, Qt::Key_Enter);
  EXPECT_EQ(page.TextName->text(), "");
  EXPECT_EQ(cube(2).name, "");
}

}  // namespace
}  // namespace mortane::test

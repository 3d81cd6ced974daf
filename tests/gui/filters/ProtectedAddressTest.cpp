// The question about the last address, and the sixth address.
#include <QPointer>
#include <QTest>

#include "gui/filters/FilterPages.h"
#include "gui/support/PageActs.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/ValueLabel.h"

namespace mortane::test {
namespace {

constexpr char kQuestion[] =
    "This position is related with Observation Method.\r\nIs Change data on this position?";

// The rows' item data are 0 to 10, as their places, and 241.
class ProtectedAddress : public testing::Test {
 protected:
  ProtectedAddress() { rig.Show(&page); }

  // On the last tab of a turret of that size, with that cube mounted.
  void OpenLast(int count, int code) {
    rig.k70().curFilter.Count = count;
    page.LoadData();
    rig.k70().curFilter.code(count, code);
    ClickTab(*page.TabPocket, count - 1);
    ASSERT_EQ(rig.k70().curFilter.code(count), code);
  }
  // On the sixth tab, the first row mounted. The list has a row more than there are cubes.
  void OpenSixth(std::size_t cubes) {
    rig.instrument().database.cubes.resize(cubes);
    rig.k70().dbFilter.Set_DbFilterOption(1, "", 0, 0, 0);
    rig.k70().curFilter.code(6, 0);
    page.LoadData();
    ASSERT_EQ(page.List1->rowCount(), static_cast<int>(cubes) + 1);
    ClickTab(*page.TabPocket, 5);
  }
  void Expect(Answer answer) { rig.prompts.ExpectBox(kQuestion, box::kYesNo, answer, "Warning"); }
  int codeAt(int address) { return rig.k70().curFilter.code(address); }

  PageRig rig{"Harbour"};
  FilterQubeCtl& page = *MakeFilterQubeCtl(rig.k70());
};

TEST_F(ProtectedAddress, YesMountsTheNewCube) {
  OpenLast(5, 1);
  Expect(Answer::Yes);
  ClickRow(*page.List1, 4);
  EXPECT_EQ(codeAt(5), 4);
  EXPECT_EQ(page.LabelName->text(), "Cyan");
  EXPECT_TRUE(rig.prompts.AllAnswersUsed());
}

TEST_F(ProtectedAddress, AnythingElsePutsTheSelectionBack) {
  for (const Answer answer : {Answer::No, Answer::Cancel, Answer::TimedOut}) {
    for (const int mounted : {0, 1}) {
      OpenLast(5, mounted);
      Expect(answer);
      ClickRow(*page.List1, 4);
      EXPECT_EQ(codeAt(5), mounted);
      EXPECT_EQ(page.List1->index(), mounted);
      EXPECT_EQ(page.LabelName->text(), mounted == 1 ? "Empty" : "");
      EXPECT_TRUE(rig.prompts.AllAnswersUsed());
    }
  }
}

TEST_F(ProtectedAddress, TheQuestionComesOnceForAClickAndForAnArrowKey) {
  OpenLast(5, 1);
  Expect(Answer::No);
  page.List1->setFocus();
  QTest::keyClick(page.List1, Qt::Key_Down);
  EXPECT_EQ(rig.prompts.Boxes().size(), 1U);
  EXPECT_EQ(page.List1->index(), 1);
  Expect(Answer::Yes);
  QTest::keyClick(page.List1, Qt::Key_Down);
  EXPECT_EQ(rig.prompts.Boxes().size(), 2U);
  EXPECT_EQ(codeAt(5), 2);
}

TEST_F(ProtectedAddress, TheModelKeepsTheCubeWhileTheQuestionStands) {
  OpenLast(5, 1);
  rig.prompts.ExpectBox(kQuestion, box::kYesNo, Answer::Yes, "Warning",
                        [this] { EXPECT_EQ(codeAt(5), 1); });
  ClickRow(*page.List1, 3);
  EXPECT_EQ(codeAt(5), 3);
}

TEST_F(ProtectedAddress, MovingBetweenTheFirstTwoRowsNeverAsks) {
  OpenLast(5, 1);
  ClickRow(*page.List1, 0);
  EXPECT_EQ(codeAt(5), 0);
  ClickRow(*page.List1, 1);
  EXPECT_EQ(codeAt(5), 1);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(ProtectedAddress, LeavingTheThirdRowNeverAsks) {
  OpenLast(5, 2);
  ClickRow(*page.List1, 7);
  EXPECT_EQ(codeAt(5), 7);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(ProtectedAddress, LeavingALaterRowNeverAsks) {
  OpenLast(5, 3);
  ClickRow(*page.List1, 7);
  EXPECT_EQ(codeAt(5), 7);
  ClickRow(*page.List1, 11);
  EXPECT_EQ(codeAt(5), 241);
  ClickRow(*page.List1, 1);
  EXPECT_EQ(codeAt(5), 1);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(ProtectedAddress, AnAddressBeforeTheLastNeverAsks) {
  rig.k70().curFilter.code(4, 1);
  ClickTab(*page.TabPocket, 3);
  ClickRow(*page.List1, 5);
  EXPECT_EQ(codeAt(4), 5);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(ProtectedAddress, ACubeThatIsNotListedIsNotProtected) {
  OpenLast(5, 242);
  ClickRow(*page.List1, 2);
  EXPECT_EQ(codeAt(5), 2);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(ProtectedAddress, OnATurretOfOneLoadingBehindASkippedCodeMayAsk) {
  rig.instrument().database.cubes[0].name = "-------";
  rig.k70().Receive();
  rig.k70().curFilter.Count = 1;
  rig.k70().curFilter.code(1, 2);
  Expect(Answer::No);
  page.LoadData();
  EXPECT_EQ(codeAt(1), 2);
  EXPECT_EQ(page.List1->data(page.List1->index()).toInt(), 2);
}

TEST_F(ProtectedAddress, TheSixthTabOfSixMovesFromTheFirstRowToTheSecondAndStoresIt) {
  rig.k70().curFilter.code(6, 0);
  ClickTab(*page.TabPocket, 5);
  EXPECT_EQ(page.List1->index(), 1);
  EXPECT_EQ(codeAt(6), 1);
  EXPECT_EQ(page.LabelName->text(), "Empty");
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(ProtectedAddress, OnATurretOfTenTheSixthTabMovesAndTheTenthAsks) {
  rig.k70().curFilter.Count = 10;
  page.LoadData();
  for (int address = 1; address <= 10; ++address) rig.k70().curFilter.code(address, 0);
  page.LoadData();
  ClickTab(*page.TabPocket, 5);
  EXPECT_EQ(codeAt(6), 1);
  ClickRow(*page.List1, 3);
  EXPECT_EQ(codeAt(6), 3) << "the sixth of ten is not protected";
  ClickTab(*page.TabPocket, 9);
  EXPECT_EQ(page.List1->index(), 0);
  EXPECT_EQ(codeAt(10), 0);
  Expect(Answer::No);
  ClickRow(*page.List1, 3);
  EXPECT_EQ(codeAt(10), 0);
}

TEST_F(ProtectedAddress, TheSixthTabMovesAlsoFromTheRowThatTheTabBeforeHasLeft) {
  rig.k70().curFilter.code(5, 0);
  rig.k70().curFilter.code(6, 242);
  ClickTab(*page.TabPocket, 4);
  ClickTab(*page.TabPocket, 5);
  EXPECT_EQ(codeAt(6), 1);
}

TEST_F(ProtectedAddress, WithOneRowTheSixthTabStaysOnIt) {
  OpenSixth(0);
  EXPECT_EQ(page.List1->index(), 0);
  EXPECT_EQ(codeAt(6), 0);
}

TEST_F(ProtectedAddress, OfTwoRowsTheSixthTabMovesToTheSecond) {
  OpenSixth(1);
  EXPECT_EQ(page.List1->index(), 1);
  EXPECT_EQ(codeAt(6), 1);
}

// Whatever the answer, the page is not there to take it.
class LostBehindTheQuestion : public ProtectedAddress, public testing::WithParamInterface<Answer> {
 protected:
  // The question is answered when the page is gone.
  void ExpectTheEnd() {
    rig.prompts.ExpectBox(kQuestion, box::kYesNo, GetParam(), "Warning", [this] { delete lost; });
  }

  const QPointer<FilterQubeCtl> lost = &page;
};

TEST_P(LostBehindTheQuestion, APageThatAskedForAClickMountsNothing) {
  OpenLast(5, 1);
  ExpectTheEnd();
  page.List1->setIndex(4);
  EXPECT_TRUE(lost.isNull());
  EXPECT_EQ(codeAt(5), 1);
}

// The wrong row behind a record that is not listed is selected by the loading itself.
TEST_P(LostBehindTheQuestion, APageThatAskedInItsLoadingMountsNothing) {
  rig.instrument().database.cubes[0].name = "-------";
  rig.k70().Receive();
  rig.k70().curFilter.Count = 1;
  rig.k70().curFilter.code(1, 2);
  ExpectTheEnd();
  page.LoadData();
  EXPECT_TRUE(lost.isNull());
  EXPECT_EQ(codeAt(1), 2);
}

INSTANTIATE_TEST_SUITE_P(Answers, LostBehindTheQuestion, testing::Values(Answer::Yes, Answer::No));

}  // namespace
}  // namespace mortane::test

// Real moves from the drive pages: what holds for the focus drive and for the stage.
#include <QTest>
#include <limits>

#include "gui/drives/DrivePages.h"

namespace mortane::test {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

template <typename RigKind>
class DriveMoves : public testing::Test {};
TYPED_TEST_SUITE(DriveMoves, DriveRigs, DriveRigName);

TYPED_TEST(DriveMoves, EachButtonMovesItsAxisByItsStepAndDropsTheInputAfterwards) {
  for (const auto& step : TypeParam::Steps()) {
    TypeParam rig;
    const DriveAxisRow axis = rig.Axes()[step.axis];
    ClickButton(*(rig.page.*step.button));
    EXPECT_EQ(rig.journal.Lines(), (Lines{axis.Read(axis.at), axis.Write(axis.at + step.steps)}));
    EXPECT_EQ(rig.prompts.Log(), Lines{"flush"});
  }
}

TYPED_TEST(DriveMoves, AStepShowsItsAxisInTheSelectedRowAlone) {
  for (const auto& step : TypeParam::Steps()) {
    TypeParam rig;
    rig.Select(1);
    ClickButton(*(rig.page.*step.button));
    for (std::size_t axis = 0; axis < rig.Axes().size(); ++axis) {
      const double micrometres = (rig.Axes()[axis].at + step.steps) / 20.0;
      EXPECT_EQ(rig.field(1, axis).text().toDouble(), axis == step.axis ? micrometres : 0.0);
      EXPECT_EQ(rig.shown(0, axis), "0");
    }
  }
}

TYPED_TEST(DriveMoves, WithRealMovesOffNothingMovesAndNoRowIsSelected) {
  TypeParam rig;
  rig.Select(1);
  ClickButton(*rig.page.CheckRealMove);
  for (const auto& step : rig.Steps()) ClickButton(*(rig.page.*step.button));
  ClickButton(*rig.page.ButtonStart);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_EQ(rig.prompts.Log(), Lines(rig.Steps().size(), "flush"));
  ClickButton(*rig.page.CheckRealMove);
  EXPECT_EQ(rig.journal.Lines(), rig.Preparation());
  rig.Forget();
  ClickButton(*rig.page.ButtonStart);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  rig.Forget();
  ClickButton(*rig.page.ButtonUpLarge);
  EXPECT_EQ(rig.journal.Lines().size(), 2U) << "it moves and shows nothing";
  EXPECT_EQ(rig.stored(1), 0);
}

TYPED_TEST(DriveMoves, NearTheEndsOf32BitsNothingIsWritten) {
  for (const auto& step : TypeParam::Steps()) {
    TypeParam rig;
    rig.stands(step.axis) = step.steps > 0 ? kLargest : kSmallest;
    rig.prompts.ExpectBox(rig.Axes()[step.axis].move + " Error!!", box::kCritical);
    ClickButton(*(rig.page.*step.button));
    EXPECT_TRUE(rig.journal.Writes().empty());
    EXPECT_EQ(rig.prompts.Log().back(), "flush");
  }
}

TYPED_TEST(DriveMoves, AStepThatFailsIsABoxAndTheRowShowsWhereTheDriveStands) {
  for (const auto& step : TypeParam::Steps()) {
    TypeParam rig;
    const DriveAxisRow axis = rig.Axes()[step.axis];
    rig.Select(0);
    rig.faults.Add({"put " + axis.member});
    rig.prompts.ExpectBox(axis.move + " Error!!", box::kCritical);
    ClickButton(*(rig.page.*step.button));
    EXPECT_EQ(rig.field(0, step.axis).text().toDouble(), axis.at / 20.0);
  }
}

TYPED_TEST(DriveMoves, APositionThatCannotBeReadIsShownAsZero) {
  for (const auto& step : TypeParam::Steps()) {
    TypeParam rig;
    const DriveAxisRow axis = rig.Axes()[step.axis];
    rig.Select(0);
    rig.field(0, step.axis).setText("7");
    rig.faults.Add({"get " + axis.member, 2});
    rig.prompts.ExpectBox(axis.read + " Error!!", box::kCritical);
    ClickButton(*(rig.page.*step.button));
    EXPECT_EQ(rig.shown(0, step.axis), "0");
    EXPECT_EQ(rig.stored(0, step.axis), 0);
  }
}

// the move to a row

TYPED_TEST(DriveMoves, AStartedMoveShowsEachAxisAndStoresNothing) {
  TypeParam rig;
  rig.Select(0);
  rig.field(0).setText("100");
  rig.ExpectWatch(rig.kWaitMs, Answer::TimedOut, rig.Pass(rig.kWaitMs));
  ClickButton(*rig.page.ButtonStart);
  for (std::size_t axis = 0; axis < rig.Axes().size(); ++axis) {
    EXPECT_EQ(rig.stands(axis), axis == 0 ? 2000 : 0);
    EXPECT_EQ(rig.shown(0, axis), axis == 0 ? "100" : "0");
    EXPECT_EQ(rig.stored(0, axis), 0);
  }
  EXPECT_EQ(rig.prompts.Log().back(), "flush");
  rig.page.SaveData();
  EXPECT_EQ(rig.stored(0), 2000);
}

TYPED_TEST(DriveMoves, ANumberBeyond32BitsOnAnyAxisMovesNothing) {
  TypeParam rig;
  rig.Select(0);
  for (std::size_t axis = 0; axis < rig.Axes().size(); ++axis) {
    for (const char* text : {"1e300", "-1e300", "107374182.4"}) {
      rig.field(0, axis).setText(text);
      rig.Forget();
      rig.page.ButtonStart->click();
      EXPECT_EQ(rig.journal.CallCount(), 0U) << text;
      EXPECT_TRUE(rig.prompts.Boxes().empty());
    }
    rig.field(0, axis).setText("0");
  }
}

TYPED_TEST(DriveMoves, ARowThatTheNextNosepieceDoesNotHaveIsNoTarget) {
  TypeParam rig;
  rig.Select(5);
  rig.drive().NoseCount = 5;
  rig.page.LoadData();
  rig.ShowTeaching();
  rig.Forget();
  ClickButton(*rig.page.ButtonStart);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_TRUE(rig.prompts.Log().empty());
}

TYPED_TEST(DriveMoves, WithoutARowOrWithRealMovesOffNothingIsStarted) {
  TypeParam rig;
  ClickButton(*rig.page.ButtonStart);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_TRUE(rig.prompts.Log().empty());
  ClickButton(*rig.page.CheckRealMove);
  rig.Select(1);
  ClickButton(*rig.page.ButtonStart);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_TRUE(rig.prompts.Log().empty());
}

// the nosepiece's row

TYPED_TEST(DriveMoves, TheRowOfTheNosepieceIsSelectedOnce) {
  TypeParam rig;
  rig.ExpectQuestion(Answer::Cancel);
  rig.page.SetNosePosition();
  EXPECT_EQ(rig.page.optNosepiece->selected(), 2);
  EXPECT_EQ(rig.journal.Lines(), Lines{"NosepieceDevice.Position -> 3"});
  EXPECT_EQ(rig.prompts.Log()[0], "pointer 11");
  EXPECT_EQ(rig.prompts.Log()[1], "pointer 0");
  EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  rig.Forget();
  rig.page.SetNosePosition();
  EXPECT_TRUE(rig.prompts.Log().empty());
}

TYPED_TEST(DriveMoves, ARowOfTheNosepieceThatIsHiddenIsSelectedWithoutAQuestion) {
  TypeParam rig;
  rig.instrument().Accessory(accessory::kNosepiece).value = 7;
  rig.page.SetNosePosition();
  EXPECT_EQ(rig.page.optNosepiece->selected(), 6);
}

TYPED_TEST(DriveMoves, AddressesWithoutARowSelectNothing) {
  for (const std::int32_t address : {0, 8, 9, 10}) {
    TypeParam rig("Attic");
    rig.instrument().Accessory(accessory::kNosepiece).value = address;
    rig.page.SetNosePosition();
    EXPECT_EQ(rig.page.optNosepiece->selected(), -1) << address;
    EXPECT_TRUE(rig.prompts.Log().empty());
  }
}

TYPED_TEST(DriveMoves, ANosepieceThatGivesNoAnswerSelectsNothing) {
  TypeParam rig;
  rig.faults.Add({"NosepieceDevice.Position"});
  rig.prompts.ExpectBox("NosePosition Error!!", box::kCritical);
  rig.page.SetNosePosition();
  EXPECT_EQ(rig.page.optNosepiece->selected(), -1);
}

// positions

TYPED_TEST(DriveMoves, SavingStoresWhatAllRowsShow) {
  TypeParam rig;
  for (int row = 0; row < 6; ++row) {
    for (std::size_t axis = 0; axis < rig.Axes().size(); ++axis) {
      rig.field(row, axis).setText(QString::number(row + 10 * static_cast<int>(axis)));
    }
  }
  rig.page.SaveData();
  for (int row = 0; row < 6; ++row) {
    for (std::size_t axis = 0; axis < rig.Axes().size(); ++axis) {
      EXPECT_EQ(rig.stored(row, axis), 20 * (row + 10 * static_cast<int>(axis)));
    }
  }
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TYPED_TEST(DriveMoves, APageThatIsDestroyedBehindABoxOfItsLoadingIsNotReadAgain) {
  for (const bool newTick : {true, false}) {
    TypeParam rig;
    auto* page = &rig.page;
    page->CheckRealMove->setChecked(!newTick);
    rig.Forget();
    rig.faults.FailCall(1);
    rig.prompts.ExpectBox("MoveStart Error!!", box::kCritical, Answer::Ok, "",
                          [page] { delete page; });
    page->LoadData();
    EXPECT_TRUE(rig.prompts.AllAnswersUsed());
    EXPECT_EQ(rig.prompts.Boxes().size(), 1U);
  }
}

}  // namespace
}  // namespace mortane::test

// The sequence of steps: Next, Previous, Finish, the pictures, and what each step begins with.
#include <gtest/gtest.h>

#include <QDir>
#include <QLabel>
#include <QPointer>

#include "WizardRig.h"
#include "common/Failure.h"
#include "widgets/StyleProperties.h"
#include "wizard/StepRail.h"

namespace mortane::test {
namespace {

using Steps = std::vector<int>;

TEST(Sequence, BeginsWithTheSystemAndHoldsWhatIsAlwaysThere) {
  StepsRig rig;
  EXPECT_EQ(rig.form().currentStep, 0);
  EXPECT_EQ(rig.form().menuIndex, 0);
  EXPECT_EQ(rig.form().currentPage, rig.fakes.pages[0]);
  EXPECT_EQ(rig.form().stepEnabled,
            (std::array<std::int16_t, 10>{-1, -1, 0, 0, 0, 0, 0, 0, 0, -1}));
  EXPECT_EQ(rig.fakes.calls, (Lines{"1.LoadData", "0.LoadData"}));
}

TEST(Sequence, IsEmptyOfCurrentStepsBeforeTheStart) {
  FakeSteps fakes;
  WizardRig rig(benches::Named("Harbour"), {}, fakes.Table());
  rig.form->Load();
  EXPECT_EQ(rig.form->currentStep, -1);
  EXPECT_EQ(rig.form->menuIndex, -1);
  EXPECT_EQ(rig.form->currentPage, nullptr);
  for (FakeStep* page : fakes.pages) EXPECT_TRUE(page->isHidden());
  for (int i = 0; i < kStepCount; ++i) {
    const bool always = i == 0 || i == 1 || i == 9;
    EXPECT_EQ(rig.form->ImageMenu[static_cast<std::size_t>(i)]->isEnabled(), always) << i;
    EXPECT_EQ(rig.form->stepEnabled[static_cast<std::size_t>(i)], always ? -1 : 0) << i;
  }
}

struct SequenceRow {
  const char* what;
  std::vector<int> on;
  Steps forward;
};

class SequenceOf : public testing::TestWithParam<SequenceRow> {};

TEST_P(SequenceOf, StepsIsGoneThroughByNextAndBackByPrevious) {
  StepsRig rig;
  for (const int step : GetParam().on) rig.SwitchOn({step});
  EXPECT_EQ(rig.Forward(), GetParam().forward);
  Steps back = GetParam().forward;
  std::reverse(back.begin(), back.end());
  EXPECT_EQ(rig.Backward(), back);
}

INSTANTIATE_TEST_SUITE_P(
    Wizard, SequenceOf,
    testing::Values(SequenceRow{"none", {}, {0, 1, 9}},
                    SequenceRow{"all", {2, 3, 4, 5, 6, 7, 8}, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
                    SequenceRow{"first", {2}, {0, 1, 2, 9}}, SequenceRow{"last", {8}, {0, 1, 8, 9}},
                    SequenceRow{"some", {3, 6, 7}, {0, 1, 3, 6, 7, 9}}),
    [](const auto& row) { return std::string(row.param.what); });

TEST(Sequence, LeavesOutAStepThatIsSwitchedOffAgain) {
  StepsRig rig;
  rig.SwitchOn({2, 3});
  rig.form().OnItemChanged(0, false);
  EXPECT_EQ(rig.Forward(), (Steps{0, 1, 3, 9}));
  rig.ClickPicture(2);
  EXPECT_EQ(rig.form().currentStep, 9);
  EXPECT_EQ(rig.Backward(), (Steps{9, 3, 1, 0}));
}

TEST(Sequence, EndsAtTheFirstStepWithPreviousDisabled) {
  StepsRig rig;
  EXPECT_FALSE(rig.form().ButtonPrevious->isEnabled());
  QTest::keyClick(&rig.form(), Qt::Key_P, Qt::AltModifier);
  EXPECT_EQ(rig.form().currentStep, 0);
}

TEST(Next, OnTheLastEnabledStepGoesToTheEnding) {
  StepsRig rig;
  rig.SwitchOn({4});
  rig.form().optMenu[4]->setChecked(true);
  ASSERT_EQ(rig.form().currentStep, 4);
  rig.Click(rig.form().ButtonNext);
  EXPECT_EQ(rig.form().currentStep, 9);
  EXPECT_FALSE(rig.form().ButtonNext->isEnabled());
}

TEST(Finish, FromEachStepGoesToTheEndingAndPassesTheOthersBy) {
  for (int step = 0; step < 9; ++step) {
    StepsRig rig;
    rig.SwitchOn({2, 3, 4, 5, 6, 7, 8});
    rig.form().optMenu[static_cast<std::size_t>(step)]->setChecked(true);
    ASSERT_EQ(rig.form().currentStep, step);
    rig.fakes.calls.clear();
    rig.Click(rig.form().ButtonFinish);
    EXPECT_EQ(rig.form().currentStep, 9) << step;
    EXPECT_EQ(rig.fakes.calls, Lines{"9.LoadData"}) << step;
  }
}

TEST(EachStep, LoadsItsPageButTheItemsAndShowsItAlone) {
  StepsRig rig;
  rig.SwitchOn({2, 3, 4, 5, 6, 7, 8});
  for (int step = 1; step < kStepCount; ++step) {
    rig.fakes.calls.clear();
    rig.Click(rig.form().ButtonNext);
    const Lines loading = step == 1 ? Lines{} : Lines{std::to_string(step) + ".LoadData"};
    EXPECT_EQ(rig.fakes.calls, loading) << "nothing is saved either";
    for (int i = 0; i < kStepCount; ++i) {
      EXPECT_EQ(rig.fakes.pages[static_cast<std::size_t>(i)]->isVisible(), i == step) << step;
      EXPECT_EQ(rig.form().optMenu[static_cast<std::size_t>(i)]->isChecked(), i == step) << step;
    }
    EXPECT_EQ(rig.form().menuIndex, step);
    EXPECT_EQ(rig.form().currentPage, rig.fakes.pages[static_cast<std::size_t>(step)]);
  }
}

TEST(EachStep, BeginsWithItsFirstHelp) {
  const std::array<const char*, kStepCount> texts{
      "Please input System Name.",
      "Please select wizard type.",
      "Click Address Number Tab and Select Series and Description from the list.",
      "Click Address Number Tab and Select Filter Cube from the List.",
      "Select Condenser Module of Each Address from the List.",
      "Set Other Settigs.",
      "Set whether each accessory is interlocked when Observation Method is changed.",
      "Set Focus Drive settings.",
      "Set Switch Functions of K70 Microscope ",
      "Check data to set."};
  StepsRig rig;
  rig.SwitchOn({2, 3, 4, 5, 6, 7, 8});
  for (const char* text : texts) {
    EXPECT_EQ(rig.Help(), text);
    rig.Click(rig.form().ButtonNext);
  }
}

TEST(EachStep, HasItsHelpBeforeItsPageIsLoaded) {
  StepsRig rig;
  rig.fakes.pages[9]->onLoad = [&rig] {
    EXPECT_EQ(rig.Help(), "Check data to set.");
    EXPECT_TRUE(rig.fakes.pages[9]->isHidden());
  };
  rig.Click(rig.form().ButtonFinish);
}

TEST(EachStep, BeginsWithTheFocusOnTheFirstControlOfItsPage) {
  StepsRig rig;
  rig.SwitchOn({2, 3, 4, 5, 6, 7, 8});
  for (int step = 1; step < kStepCount; ++step) {
    rig.Click(rig.form().ButtonNext);
    EXPECT_EQ(rig.form().focusWidget(), rig.fakes.pages[static_cast<std::size_t>(step)]->field);
  }
}

TEST(EachStep, SkipsControlsThatCannotBeReachedForTheFocus) {
  StepsRig rig;
  FakeStep& page = *rig.fakes.pages[1];
  page.field->setEnabled(false);
  auto* second = new QPushButton(&page);
  rig.Click(rig.form().ButtonNext);
  EXPECT_EQ(rig.form().focusWidget(), second);
}

TEST(EachStep, IsShownEvenIfItsLoadingFails) {
  StepsRig rig;
  rig.fakes.pages[1]->onLoad = {};
  rig.SwitchOn({2});
  rig.fakes.pages[2]->onLoad = [] { throw Failure("Src", 5, "broken"); };
  rig.app.prompts.ExpectBox("broken", 16);
  rig.Click(rig.form().ButtonNext);
  rig.Click(rig.form().ButtonNext);
  EXPECT_TRUE(rig.fakes.pages[2]->isVisible());
  EXPECT_EQ(rig.form().currentStep, 2);
}

TEST(Ending, HasExitInsteadOfFinishAndNoNext) {
  StepsRig rig;
  EXPECT_EQ(rig.form().ButtonFinish->text(), "&Finish");
  rig.Click(rig.form().ButtonFinish);
  EXPECT_EQ(rig.form().ButtonFinish->text(), "&Exit");
  EXPECT_FALSE(rig.form().ButtonNext->isEnabled());
  EXPECT_TRUE(rig.form().ButtonPrevious->isEnabled());
  rig.Click(rig.form().ButtonPrevious);
  EXPECT_EQ(rig.form().ButtonFinish->text(), "&Finish");
  EXPECT_TRUE(rig.form().ButtonNext->isEnabled());
}

TEST(Ending, IsReachedUnderTheHourglass) {
  StepsRig rig;
  rig.fakes.pages[9]->onLoad = [&rig] { EXPECT_EQ(rig.app.prompts.PointerBalance(), 1); };
  rig.Click(rig.form().ButtonFinish);
  EXPECT_EQ(rig.app.prompts.Log(), (Lines{"pointer 11", "pointer 0", "flush"}));
}

TEST(Ending, RestoresThePointerWhenItsLoadingFails) {
  StepsRig rig;
  rig.fakes.pages[9]->onLoad = [] { throw Failure("Src", 5, "broken"); };
  rig.app.prompts.ExpectBox("broken", 16);
  rig.Click(rig.form().ButtonFinish);
  EXPECT_EQ(rig.app.prompts.PointerBalance(), 0);
  EXPECT_EQ(rig.form().ButtonFinish->text(), "&Exit");
  EXPECT_TRUE(rig.fakes.pages[9]->isVisible());
}

TEST(OtherSteps, AreReachedWithoutTheHourglass) {
  StepsRig rig;
  rig.Click(rig.form().ButtonNext);
  EXPECT_TRUE(rig.app.prompts.Log().empty());
}

TEST(MainButton, IsNextAndOnTheEndingExit) {
  StepsRig rig;
  const auto isMain = [](QPushButton* button) { return button->property(kMainProperty).toBool(); };
  EXPECT_TRUE(isMain(rig.form().ButtonNext));
  EXPECT_FALSE(isMain(rig.form().ButtonFinish));
  rig.Click(rig.form().ButtonFinish);
  EXPECT_FALSE(isMain(rig.form().ButtonNext));
  EXPECT_TRUE(isMain(rig.form().ButtonFinish));
}

TEST(Picture, SelectsItsStepOnThePlainReleaseOfTheLeftButton) {
  StepsRig rig;
  rig.SwitchOn({3, 7});
  QTest::mousePress(rig.form().ImageMenu[7], Qt::LeftButton);
  EXPECT_EQ(rig.form().currentStep, 0) << "the release selects";
  QTest::mouseRelease(rig.form().ImageMenu[7], Qt::LeftButton);
  EXPECT_EQ(rig.form().currentStep, 7);
  rig.ClickPicture(3);
  EXPECT_EQ(rig.form().currentStep, 3);
  rig.ClickPicture(9);
  EXPECT_EQ(rig.form().currentStep, 9);
}

TEST(Picture, LeavesTheStepWhenTheButtonIsLetGoElsewhere) {
  StepsRig rig;
  rig.SwitchOn({7});
  QTest::mousePress(rig.form().ImageMenu[7], Qt::LeftButton);
  QTest::mouseRelease(rig.form().ImageMenu[7], Qt::LeftButton, {}, QPoint(-9, 9));
  EXPECT_EQ(rig.form().currentStep, 0);
  rig.ClickPicture(7);
  EXPECT_EQ(rig.form().currentStep, 7);
}

TEST(Picture, IsDeafToOtherButtonsAndModifiers) {
  StepsRig rig;
  rig.SwitchOn({3});
  rig.ClickPicture(3, Qt::RightButton);
  rig.ClickPicture(3, Qt::MiddleButton);
  for (const auto modifier :
       {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
    rig.ClickPicture(3, Qt::LeftButton, modifier);
  }
  EXPECT_EQ(rig.form().currentStep, 0);
}

TEST(Picture, OfTheItemsLeadsToTheSystem) {
  StepsRig rig;
  rig.SwitchOn({3});
  rig.ClickPicture(3);
  rig.ClickPicture(1);
  EXPECT_EQ(rig.form().currentStep, 0);
  rig.Click(rig.form().ButtonNext);
  ASSERT_EQ(rig.form().currentStep, 1);
  rig.ClickPicture(1);
  EXPECT_EQ(rig.form().currentStep, 0) << "from the items, too";
}

TEST(Picture, OfAStepThatIsOffDoesNotReact) {
  StepsRig rig;
  rig.ClickPicture(5);
  EXPECT_EQ(rig.form().currentStep, 0);
  rig.form().optMenu[5]->setChecked(true);
  EXPECT_EQ(rig.form().currentStep, 0);
  EXPECT_EQ(rig.form().menuIndex, 0);
  EXPECT_TRUE(rig.form().optMenu[0]->isChecked());
  EXPECT_EQ(rig.form().ImageMenu[5]->state(), StepState::Off);
}

TEST(Picture, ActsOnSpaceAndArrowsOnlyMoveTheFocus) {
  StepsRig rig;
  rig.SwitchOn({3});
  rig.form().ImageMenu[0]->setFocus();
  for (int i = 0; i < 2; ++i) QTest::keyClick(rig.form().focusWidget(), Qt::Key_Down);
  EXPECT_EQ(rig.form().focusWidget(), rig.form().ImageMenu[3]) << "those that are off are passed";
  EXPECT_EQ(rig.form().currentStep, 0);
  QTest::keyClick(rig.form().focusWidget(), Qt::Key_Space);
  EXPECT_EQ(rig.form().currentStep, 3);
}

TEST(Picture, OfTheCurrentStepChangesNothing) {
  StepsRig rig;
  rig.fakes.calls.clear();
  rig.ClickPicture(0);
  EXPECT_TRUE(rig.fakes.calls.empty());
}

TEST(Picture, ShowsHowFarThePersonIs) {
  StepsRig rig;
  rig.SwitchOn({2, 4});
  rig.form().optMenu[4]->setChecked(true);
  std::vector<StepState> states;
  for (const StepButton* picture : rig.form().ImageMenu) states.push_back(picture->state());
  using enum StepState;
  EXPECT_EQ(states, (std::vector<StepState>{Passed, NotVisited, NotVisited, Off, Current, Off, Off,
                                            Off, Off, ToCome}));
}

TEST(Picture, OfAStepThatFinishLeapsOverIsNotTicked) {
  StepsRig rig;
  rig.SwitchOn({2, 3, 4, 5, 6, 7, 8});
  for (int i = 0; i < 2; ++i) rig.Click(rig.form().ButtonNext);
  rig.Click(rig.form().ButtonFinish);
  std::vector<std::string> told;
  for (const StepButton* picture : rig.form().ImageMenu)
    told.push_back(picture->accessibleDescription().toStdString());
  EXPECT_EQ(told, (std::vector<std::string>{
                      "Step 1, passed", "Step 2, passed", "Step 3, passed", "Step 4, not visited",
                      "Step 5, not visited", "Step 6, not visited", "Step 7, not visited",
                      "Step 8, not visited", "Step 9, not visited", "Step 10, current"}));
}

TEST(Picture, IsThereForEachOfTheTenStepsAndNoMore) {
  StepsRig rig;
  std::vector<std::string> names;
  for (const StepButton* picture : rig.form().PictureMenu->findChildren<StepButton*>())
    names.push_back(picture->text().toStdString());
  EXPECT_EQ(names, (std::vector<std::string>{"System", "Setup Items", "Objective", "Filter Cube",
                                             "Condenser", "Control", "InterLock", "Z Focus",
                                             "Controller", "Ending"}));
}

TEST(ToolTip, SaysWhyAStepIsOff) {
  FakeSteps fakes;
  WizardRig rig(benches::Named("Shell"), {}, fakes.Table());
  rig.form->Load();
  const auto tip = [&rig](std::size_t step) { return rig.form->ImageMenu[step]->toolTip(); };
  EXPECT_EQ(tip(2), "No microscope is connected.");
  rig.Start();
  const std::array<const char*, kStepCount> tips{
      "",
      "",
      "No nosepiece is mounted.",
      "No filter cube turret is mounted.",
      "No condenser is mounted, or none is set on this type of microscope.",
      "This microscope has no other controls.",
      "This microscope has no interlocks.",
      "This microscope has no focus drive to set.",
      "The firmware of this microscope has no switches to set.",
      ""};
  for (std::size_t i = 0; i < tips.size(); ++i) EXPECT_EQ(tip(i), tips[i]) << i;
  rig.form->OnItemChanged(0, true);
  EXPECT_EQ(tip(2), "");
  rig.form->OnItemChanged(0, false);
  EXPECT_EQ(tip(2), "Left out in Setup Items.");
}

TEST(Buttons, ActOnTheirLettersOnSpaceAndOnEnter) {
  StepsRig rig;
  QTest::keyClick(&rig.form(), Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&rig] { return rig.form().currentStep == 1; }));
  rig.form().ButtonNext->setFocus();
  QTest::keyClick(rig.form().ButtonNext, Qt::Key_Return);
  EXPECT_EQ(rig.form().currentStep, 9);
  rig.form().ButtonPrevious->setFocus();
  QTest::keyClick(rig.form().ButtonPrevious, Qt::Key_Space);
  EXPECT_EQ(rig.form().currentStep, 1);
}

// No manual stands where the rig's window looks for it, so a box names the file of the chapter.
TEST(Steps, F1OpensTheManualAtTheChapterOfTheStep) {
  StepsRig rig;
  rig.SwitchOn({2, 3, 4, 5, 6, 7, 8});
  const char* const chapters[] = {"system",     "wizard",   "objectives", "filter-cubes",
                                  "condensers", "controls", "interlocks", "controls",
                                  "controls",   "wizard"};
  for (const char* chapter : chapters) {
    rig.app.prompts.ExpectBox(
        "The manual is not installed.\r\nIts place is " +
            QDir::toNativeSeparators(QStringLiteral("/%1.html").arg(QLatin1String(chapter)))
                .toStdString(),
        box::kOk + box::kExclamation);
    QTest::keyClick(&rig.form(), Qt::Key_F1);
    EXPECT_TRUE(rig.app.prompts.AllAnswersUsed()) << chapter;
    if (rig.form().ButtonNext->isEnabled()) rig.Click(rig.form().ButtonNext);
  }
}

}  // namespace
}  // namespace mortane::test

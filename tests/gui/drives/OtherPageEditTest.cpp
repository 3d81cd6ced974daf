// Edits on the page of the other controls, and the frames that another page may hide.
#include <QTest>

#include "gui/drives/OtherPage.h"
#include "gui/support/PageActs.h"

namespace mortane::test {
namespace {

struct ModeRow {
  Control<OptionGroup> ControlOtherCtl::*options;
  std::int32_t clsControlOther::*automatic;
  std::int32_t clsControlOther::*sensitivity;
};

constexpr ModeRow kModes[]{
    {&ControlOtherCtl::optAuto, &clsControlOther::curAutoZ, &clsControlOther::curSensitivityZ},
    {&ControlOtherCtl::optXYAuto, &clsControlOther::curAutoXY, &clsControlOther::curSensitivityXY},
};

TEST(OtherPageEdit, ManualMakesTheSensitivityCoarseThoughNoListShowsIt) {
  for (const ModeRow& row : kModes) {
    OtherRig rig("Quay");
    rig.k70().COther.*row.automatic = 1;
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    rig.k70().COther.*row.sensitivity = 3;
    ClickButton(*(page.*row.options)->button(1));
    EXPECT_EQ(rig.k70().COther.*row.automatic, 0);
    EXPECT_EQ(rig.k70().COther.*row.sensitivity, 1);
    EXPECT_FALSE(page.ComboFocus->isVisible());
    EXPECT_FALSE(row.options == &ControlOtherCtl::optXYAuto && page.ComboStage->isVisible());
  }
}

TEST(OtherPageEdit, ManualAgainMakesAnotherSensitivityCoarseToo) {
  OtherRig rig("Quay");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  EXPECT_EQ(rig.k70().COther.curSensitivityXY, 3);
  ClickButton(*page.optXYAuto->button(1));
  EXPECT_EQ(rig.k70().COther.curSensitivityXY, 1);
  EXPECT_EQ(page.ComboStage->index(), 2);
}

TEST(OtherPageEdit, TheColumnsStandAGapOfTheGridApart) {
  OtherRig rig("Quay");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  const QWidget* left = page.FrameManualHandle->parentWidget();
  const QWidget* right = page.FrameBuzzer->parentWidget();
  EXPECT_EQ(right->x(), left->geometry().right() + 1 + grid::kBetweenGroups);
}

TEST(OtherPageEdit, AutomaticKeepsTheSensitivity) {
  for (const ModeRow& row : kModes) {
    OtherRig rig("Quay");
    rig.k70().COther.*row.automatic = 0;
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    rig.k70().COther.*row.sensitivity = 2;
    ClickButton(*(page.*row.options)->button(0));
    EXPECT_EQ(rig.k70().COther.*row.automatic, 1);
    EXPECT_EQ(rig.k70().COther.*row.sensitivity, 2);
  }
}

TEST(OtherPageEdit, TheStagesCheckBoxSetsTheModeAndHidesTheList) {
  OtherRig rig("Quay");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  EXPECT_FALSE(page.CheckStageAuto->isChecked());
  EXPECT_TRUE(page.ComboStage->isVisible());
  ClickButton(*page.CheckStageAuto);
  EXPECT_EQ(rig.k70().COther.curAutoXY, 1);
  EXPECT_FALSE(page.ComboStage->isVisible());
  EXPECT_EQ(page.optXYAuto->selected(), 1) << "the options follow at the next loading";
  ClickButton(*page.CheckStageAuto);
  EXPECT_EQ(rig.k70().COther.curAutoXY, 0);
  EXPECT_TRUE(page.ComboStage->isVisible());
}

TEST(OtherPageEdit, TheStagesCheckBoxShowsNoListOfAnUnknownSensitivity) {
  OtherRig rig("Pair");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  page.CheckStageAuto->setFocus();
  QTest::keyClick(page.CheckStageAuto, Qt::Key_Space);
  QTest::keyClick(page.CheckStageAuto, Qt::Key_Space);
  EXPECT_EQ(rig.k70().COther.curAutoXY, 0);
  EXPECT_FALSE(page.ComboStage->isVisible());
}

// No microscope shows it; a program that sets it still gets what it stands for.
TEST(OtherPageEdit, TheFocusKnobsCheckBoxWorksByTheSameRule) {
  OtherRig rig("Harbour");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  page.CheckFocusAuto->setChecked(true);
  EXPECT_EQ(rig.k70().COther.curAutoZ, 1);
  EXPECT_TRUE(page.ComboFocus->isHidden());
  page.CheckFocusAuto->setChecked(false);
  EXPECT_EQ(rig.k70().COther.curAutoZ, 0);
  EXPECT_FALSE(page.ComboFocus->isHidden());
  EXPECT_EQ(rig.k70().COther.curAutoXY, 0);
}

TEST(OtherPageEdit, LoadingLeavesTheStagesCheckBoxAsItIs) {
  OtherRig rig("Quay");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  ClickButton(*page.CheckStageAuto);
  rig.k70().COther.curAutoXY = 0;
  page.LoadData();
  EXPECT_TRUE(page.CheckStageAuto->isChecked());
  EXPECT_EQ(rig.k70().COther.curAutoXY, 0);
}

TEST(OtherPageEdit, BothListsHoldThreeSensitivitiesAndShowNoneBeforeTheFirstLoading) {
  OtherRig rig("Shell");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  for (const ComboBox* combo :
       std::initializer_list<const ComboBox*>{page.ComboFocus, page.ComboStage}) {
    EXPECT_EQ(RowsOf(*combo), (std::vector<std::string>{"Coarse", "Medium", "Fine"}));
    EXPECT_EQ(combo->index(), -1);
  }
  EXPECT_EQ(rig.k70().COther.curSensitivityZ, -1);
  EXPECT_EQ(rig.k70().COther.curSensitivityXY, -1);
}

TEST(OtherPageEdit, ARowOfEitherListIsItsNumberFromOne) {
  OtherRig rig("Harbour");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  for (const int row : {2, 1, 0}) {
    page.ComboFocus->setIndex(row);
    ChooseRow(*page.ComboStage, row);
    EXPECT_EQ(rig.k70().COther.curSensitivityZ, row + 1);
    EXPECT_EQ(rig.k70().COther.curSensitivityXY, row + 1);
  }
}

struct SwitchRow {
  const char* bench;
  Control<OptionGroup> ControlOtherCtl::*options;
  std::int32_t clsControlOther::*field;
};

TEST(OtherPageEdit, TheFirstOptionOfSwitchesStandsForOne) {
  for (const SwitchRow& row :
       {SwitchRow{"Harbour", &ControlOtherCtl::optSwitch, &clsControlOther::curSwEnable},
        SwitchRow{"Harbour", &ControlOtherCtl::optTactorSwitch,
                  &clsControlOther::curTactorSwEnable},
        SwitchRow{"DeckRemote", &ControlOtherCtl::optR_TLPO_Switch,
                  &clsControlOther::curR_TLPOSwEnable}}) {
    OtherRig rig(row.bench);
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    for (const int option : {1, 0}) {
      ClickButton(*(page.*row.options)->button(option));
      EXPECT_EQ(rig.k70().COther.*row.field, option == 0 ? 1 : 0);
    }
  }
}

TEST(OtherPageEdit, AClickOnTheFirstLedStoresItWhereThreeWasKept) {
  OtherRig rig("DeckRemote");
  rig.k70().COther.curR_TLPOLED = 3;
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  EXPECT_EQ(page.optR_TLPO_LED->selected(), 0);
  ClickButton(*page.optR_TLPO_LED->button(0));
  EXPECT_EQ(rig.k70().COther.curR_TLPOLED, 0);
}

TEST(OtherPageEdit, ArrowsMoveInsideAGroupAndStore) {
  OtherRig rig("Harbour");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  page.optBuzzer->button(0)->setFocus();
  QTest::keyClick(page.optBuzzer->button(0), Qt::Key_Right);
  EXPECT_EQ(rig.k70().COther.curBuzzer, 1);
  QTest::keyClick(page.optBuzzer->button(1), Qt::Key_Right);
  EXPECT_EQ(rig.k70().COther.curBuzzer, 2);
}

TEST(OtherPageEdit, NothingIsStoredByHidingDisablingOrDestroying) {
  OtherRig rig("Quay");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  page.ComboStage->setFocus();
  const std::string before = ValuesOf(rig.k70().COther);
  page.setEnabled(false);
  page.setEnabled(true);
  page.hide();
  page.show();
  EXPECT_EQ(ValuesOf(rig.k70().COther), before);
  delete &page;
  EXPECT_EQ(ValuesOf(rig.k70().COther), before);
  EXPECT_EQ(rig.prompts.PointerBalance(), 0);
}

TEST(OtherPageEdit, EveryOptionTellsAScreenReaderWhatItIsOf) {
  OtherRig rig("Harbour");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  EXPECT_EQ(page.optAuto->button(0)->accessibleDescription(), "Focus Knob");
  EXPECT_EQ(page.optXYAuto->button(1)->accessibleDescription(), "Stage Knob");
  EXPECT_EQ(page.CheckStageAuto->accessibleDescription(), "Stage Knob");
  EXPECT_EQ(page.ComboStage->accessibleName(), "Stage Knob");
  EXPECT_EQ(page.optBuzzer->button(2)->accessibleDescription(), "Buzzer");
  EXPECT_EQ(page.optSwitch->button(0)->accessibleDescription(), "K70 Switch");
}

struct VisibleRow {
  Control<InnerFrame> ControlOtherCtl::*frame;
  void (ControlOtherCtl::*set)(bool visible);
  bool (ControlOtherCtl::*get)();
};

constexpr VisibleRow kFlawed[]{
    {&ControlOtherCtl::FrameBuzzer, &ControlOtherCtl::BuzzerVisible,
     &ControlOtherCtl::BuzzerVisible},
    {&ControlOtherCtl::FrameSwitch, &ControlOtherCtl::SwitchVisible,
     &ControlOtherCtl::SwitchVisible},
    {&ControlOtherCtl::FrameR_TLPORemote, &ControlOtherCtl::R_TLPORemoteVisible,
     &ControlOtherCtl::R_TLPORemoteVisible},
};

TEST(OtherPageVisible, TheKnobsFrameTellsWhetherItIsShown) {
  OtherRig rig("Harbour");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  for (const bool visible : {false, true}) {
    page.ManualHandleVisible(visible);
    EXPECT_EQ(page.FrameManualHandle->isVisible(), visible);
    EXPECT_EQ(page.ManualHandleVisible(), visible);
    EXPECT_EQ(page.FrameManualHandle->caption(), "Knob Setting");
  }
}

TEST(OtherPageVisible, ReadingAnyOtherWritesIntoItsCaptionAndIsFalse) {
  for (const VisibleRow& row : kFlawed) {
    OtherRig rig("DeckRemote");
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    for (const bool visible : {false, true}) {
      (page.*row.set)(visible);
      EXPECT_EQ((page.*row.frame)->isVisible(), visible);
      EXPECT_FALSE((page.*row.get)());
      EXPECT_EQ((page.*row.frame)->caption(), visible ? "True" : "False");
      EXPECT_EQ((page.*row.frame)->accessibleName(), visible ? "True" : "False");
      EXPECT_EQ((page.*row.frame)->isVisible(), visible);
    }
  }
}

TEST(OtherPageVisible, DoesNotDependOnThePageBeingShownOrLoaded) {
  OtherRig rig("Harbour");
  ControlOtherCtl page(rig.k70().COther);
  EXPECT_TRUE(page.ManualHandleVisible());
  EXPECT_FALSE(page.BuzzerVisible());
  EXPECT_EQ(page.FrameBuzzer->caption(), "True");
}

// A page that shows parts of this one sets all frames visible, loads, and then hides some.
TEST(OtherPageVisible, LoadingHidesAgainByItsOwnRules) {
  OtherRig rig("Outpost");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  page.ManualHandleVisible(true);
  for (const VisibleRow& row : kFlawed) (page.*row.set)(true);
  page.LoadData();
  EXPECT_EQ(FramesOf(page), "k");
  page.ManualHandleVisible(false);
  EXPECT_EQ(FramesOf(page), "");
  page.LoadData();
  EXPECT_EQ(FramesOf(page), "k");
}

}  // namespace
}  // namespace mortane::test

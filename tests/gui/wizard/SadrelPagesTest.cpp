// Pages of the full window as steps: what they show by the type of the microscope, and the tabs of
// the switches.
#include <gtest/gtest.h>

#include "WizardRig.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlOtherCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageRig.h"
#include "interlocks/clsInterLockOffset.h"
#include "switches/ReportList.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"
#include "widgets/Card.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"
#include "wizard/SadrelPages.h"
#include "wizard/SelSetupItemCtl.h"

namespace mortane::test {
namespace {

struct FrameRow {
  std::int32_t type;
  bool knobs;
  bool buzzer;
};

class ControlsOfType : public testing::TestWithParam<FrameRow> {};

TEST_P(ControlsOfType, HideWhatABeginnerNeedNotSee) {
  PageRig rig("Harbour");
  rig.k70().curType = GetParam().type;
  auto& page = rig.Show(new SadrelControlOtherCtl(rig.k70()));
  const ControlOtherCtl& inner = *page.ControlOtherCtl1;
  EXPECT_EQ(inner.FrameManualHandle->isVisible(), GetParam().knobs);
  EXPECT_EQ(inner.FrameBuzzer->isVisible(), GetParam().buzzer);
  EXPECT_EQ(inner.FrameSwitch->isVisible(), true);
  EXPECT_EQ(page.qhrOnly(), GetParam().type == 1);
}

INSTANTIATE_TEST_SUITE_P(AllTypes, ControlsOfType,
                         testing::Values(FrameRow{0, false, true}, FrameRow{1, false, false},
                                         FrameRow{2, false, true}, FrameRow{3, false, true},
                                         FrameRow{4, false, true}, FrameRow{5, false, true},
                                         FrameRow{6, true, false}),
                         [](const auto& row) { return std::to_string(row.param.type); });

TEST(Controls, HideTheRemoteOfTypesOneAndSix) {
  for (const std::int32_t type : {0, 1, 6}) {
    Bench bench = benches::Named("Harbour");
    bench.instruments.back().Unit(controllerunit::NumberInLibrary(controllerunit::kRemote)) = {
        1, "V1.0"};
    PageRig rig(std::move(bench));
    rig.k70().curType = type;
    auto& page = rig.Show(new SadrelControlOtherCtl(rig.k70()));
    EXPECT_EQ(page.ControlOtherCtl1->FrameR_TLPORemote->isVisible(), type == 0) << type;
  }
}

TEST(Controls, ShowAgainWhatAnotherTypeHid) {
  PageRig rig("Harbour");
  rig.k70().curType = 1;
  auto& page = rig.Show(new SadrelControlOtherCtl(rig.k70()));
  ASSERT_FALSE(page.ControlOtherCtl1->FrameBuzzer->isVisible());
  rig.k70().curType = 6;
  page.LoadData();
  EXPECT_TRUE(page.ControlOtherCtl1->FrameManualHandle->isVisible());
  rig.k70().curType = 0;
  page.LoadData();
  EXPECT_TRUE(page.ControlOtherCtl1->FrameBuzzer->isVisible());
}

// All frames are shown first, and the loading ends with the step that fails.
TEST(Controls, ShowWhatALoadingThatFailsDidNotComeTo) {
  for (const std::int32_t type : {0, 6}) {
    PageRig rig("Harbour");
    rig.k70().curType = type;
    auto& page = rig.Show(new SadrelControlOtherCtl(rig.k70()));
    ControlOtherCtl& inner = *page.ControlOtherCtl1;
    for (QWidget* frame :
         std::initializer_list<QWidget*>{inner.FrameManualHandle, inner.FrameBuzzer,
                                         inner.FrameSwitch, inner.FrameR_TLPORemote}) {
      frame->hide();
    }
    rig.k70().COther.curAutoXY = 0;
    rig.k70().COther.curSensitivityXY = 9;
    rig.prompts.ExpectBox("Data_Load Error2", box::kOk);
    page.LoadData();
    EXPECT_EQ(inner.FrameManualHandle->isVisible(), type == 6) << type;
    EXPECT_TRUE(inner.FrameSwitch->isVisible()) << type;
    EXPECT_EQ(inner.FrameBuzzer->isVisible(), type == 0) << type;
    EXPECT_EQ(inner.FrameR_TLPORemote->isVisible(), type == 0) << type;
  }
}

TEST(Controls, StayHiddenWhereTheMicroscopeHasNone) {
  PageRig rig("Shell");
  rig.k70().curType = 6;
  auto& page = rig.Show(new SadrelControlOtherCtl(rig.k70()));
  EXPECT_FALSE(page.ControlOtherCtl1->FrameR_TLPORemote->isVisible());
}

TEST(SadrelPages, StandUnderAHeader) {
  PageRig rig("Harbour");
  auto& page = rig.Show(new SadrelControlFocusDriveCtl(rig.k70()));
  EXPECT_EQ(page.Header->objectName(), "Header");
  EXPECT_EQ(page.ControlFocusDriveCtl1->objectName(), "ControlFocusDriveCtl1");
  EXPECT_GE(page.ControlFocusDriveCtl1->y(), page.Header->geometry().bottom());
}

TEST(FocusStep, PassesOnToTheFocusDrivePage) {
  PageRig rig("Harbour");
  auto& page = rig.Show(new SadrelControlFocusDriveCtl(rig.k70()));
  const OptionGroup& compensation = *page.ControlFocusDriveCtl1->optFocusCompensation;
  ASSERT_EQ(compensation.selected(), 1);
  rig.k70().CZDrive.curFocusCompensation = 1;
  page.LoadData();
  EXPECT_EQ(compensation.selected(), 2) << "none stands last";
  page.SetNosePositgion();
  EXPECT_GE(page.ControlFocusDriveCtl1->optNosepiece->selected(), 0);
}

TEST(FocusStep, LoadsAndSavesWhatTheFocusDrivePageShows) {
  PageRig rig("Harbour");
  rig.k70().CZDrive.Position(1, 77);
  auto& page = rig.Show(new SadrelControlFocusDriveCtl(rig.k70()));
  rig.k70().CZDrive.Position(1, 99);
  page.SaveData();
  EXPECT_EQ(rig.k70().CZDrive.Position(1), 77);
}

TEST(StageStep, PassesOnToTheStagePage) {
  PageRig rig("Harbour");
  auto& page = rig.Show(new SadrelControlXYStageCtl(rig.k70()));
  EXPECT_EQ(page.ControlXYStageCtl1->objectName(), "ControlXYStageCtl1");
  page.SetNosePosition();
  EXPECT_GE(page.ControlXYStageCtl1->optNosepiece->selected(), 0);
}

TEST(StageStep, LoadsAndSavesWhatTheStagePageShows) {
  PageRig rig("Harbour");
  rig.k70().CXYDrive.PositionX(1, 77);
  auto& page = rig.Show(new SadrelControlXYStageCtl(rig.k70()));
  rig.k70().CXYDrive.PositionX(1, 99);
  page.SaveData();
  EXPECT_EQ(rig.k70().CXYDrive.PositionX(1), 77);
}

struct TabRow {
  const char* what;
  const char* body;  // its version; empty: no such unit
  const char* hub;
  bool handController;
  bool k70;
  bool tactor;
  int first;
};

class SwitchTabsOf : public testing::TestWithParam<TabRow> {
 protected:
  static Bench BenchOf(const TabRow& row) {
    Bench bench = benches::Named("Harbour");
    const auto unit = [&bench](std::int32_t number) -> controller::ControllerUnit& {
      return bench.instruments.back().Unit(controllerunit::NumberInLibrary(number));
    };
    unit(controllerunit::kBody) = {row.body[0] != '\0', row.body};
    unit(controllerunit::kHub) = {row.hub[0] != '\0', row.hub};
    unit(controllerunit::kHandController) = {row.handController, "V9.0"};
    return bench;
  }
};

TEST_P(SwitchTabsOf, AreShownByTheFirmware) {
  const TabRow& row = GetParam();
  PageRig rig(BenchOf(row));
  auto& page = rig.Show(new SadrelControlTactorSwitch(rig.k70(), rig.prompts));
  EXPECT_EQ(page.optSettings->option(0)->isVisible(), row.k70);
  EXPECT_EQ(page.optSettings->option(1)->isVisible(), row.tactor);
  EXPECT_EQ(page.CurrentItem(), row.first);
  EXPECT_EQ(page.SwitchSettingCtl1->isVisible(), row.first == 0);
  EXPECT_EQ(page.TactorSwitchSettingCtl1->isVisible(), row.first == 1);
  EXPECT_EQ(page.SwitchSettingCtl1->ListView1->rowCount() > 0, row.k70) << "else it is not loaded";
  EXPECT_EQ(page.TactorSwitchSettingCtl1->ListView1->rowCount() > 0, row.tactor);
}

INSTANTIATE_TEST_SUITE_P(
    Wizard, SwitchTabsOf,
    testing::Values(TabRow{"Body", "V1.3", "", false, true, false, 0},
                    TabRow{"BodyAndController", "V1.3", "", true, true, true, 0},
                    TabRow{"OldBody", "V1.29", "V9.0", true, false, false, 0},
                    TabRow{"Simulated", "vDEMO", "", true, true, true, 0},
                    TabRow{"HubAndController", "", "V1.3", true, false, true, 1},
                    TabRow{"SimulatedHubAndController", "", "vDEMO", true, false, true, 1},
                    TabRow{"OldHubAndController", "", "V1.29", true, false, false, 0},
                    TabRow{"HubAlone", "", "V1.3", false, false, false, 0},
                    TabRow{"ControllerAlone", "", "", true, false, false, 0}),
    [](const auto& row) { return std::string(row.param.what); });

TEST(SwitchStep, AsksForEachVersionOnceALoading) {
  struct Row {
    const char* bench;
    Lines asked;
  };
  for (const Row& row : {Row{"Quay", {"ControllerVersion(1) -> \"vDEMO\""}},
                         Row{"Hub", {"ControllerVersion(2) -> \"V1.30\""}}}) {
    PageRig rig(row.bench);
    auto& page = rig.Show(new SadrelControlTactorSwitch(rig.k70(), rig.prompts));
    rig.journal.Clear();
    page.LoadData();
    EXPECT_EQ(rig.journal.Lines(), row.asked) << row.bench;
  }
}

TEST(SwitchStep, LoadsBothTabsAnewWhicheverIsShown) {
  PageRig rig("Harbour");
  auto& page = rig.Show(new SadrelControlTactorSwitch(rig.k70(), rig.prompts));
  for (const int shown : {0, 1}) {
    page.optSettings->select(shown);
    const Lines body = RowsOf(*page.SwitchSettingCtl1->ListView1);
    const Lines hand = RowsOf(*page.TactorSwitchSettingCtl1->ListView1);
    rig.k70().curSwitch.Func(1, static_cast<std::int16_t>(2 + shown));
    rig.k70().curTactor.Func(3, static_cast<std::int16_t>(2 + shown));
    page.LoadData();
    EXPECT_NE(RowsOf(*page.SwitchSettingCtl1->ListView1), body) << shown;
    EXPECT_NE(RowsOf(*page.TactorSwitchSettingCtl1->ListView1), hand) << shown;
    EXPECT_EQ(page.CurrentItem(), 0) << "the first tab is opened again";
  }
}

TEST(SwitchStep, NamesItsTabsAndTellsTheirClicks) {
  PageRig rig("Harbour");
  auto& page = rig.Show(new SadrelControlTactorSwitch(rig.k70(), rig.prompts));
  EXPECT_EQ(page.optSettings->option(0)->text(), "K70 Switch");
  EXPECT_EQ(page.optSettings->option(1)->text(), "Tactor Switch");
  const QSignalSpy told(&page, &ContainerPage::Change);
  QTest::mouseClick(page.optSettings->option(1), Qt::LeftButton);
  ASSERT_EQ(told.size(), 1);
  EXPECT_EQ(told[0][0], 1);
  EXPECT_TRUE(page.TactorSwitchSettingCtl1->isVisible());
  EXPECT_FALSE(page.SwitchSettingCtl1->isVisible());
}

// A page is there once it was saved; saving it stores nothing.
TEST(SwitchStep, SavesBothPagesWhereTheOffsetsAreEnabledAndElseNone) {
  for (const bool enabled : {true, false}) {
    PageRig rig("Harbour");
    clsInterLockOffset& offset = rig.k70().ILOffset;
    if (!enabled) offset.curND = offset.curFStop = offset.curEpiFStop = offset.curAStop = kUnknown;
    ASSERT_EQ(offset.IsEnable(), enabled);
    SadrelControlTactorSwitch page(rig.k70(), rig.prompts);
    page.SaveData();
    EXPECT_EQ(page.TactorSwitchSettingCtl1.made() != nullptr, enabled);
    EXPECT_EQ(page.SwitchSettingCtl1.made() != nullptr, enabled);
    EXPECT_TRUE(rig.prompts.Boxes().empty());
  }
}

// A started wizard with every offered step on, as "File" leaves it.
struct WholeRig : WizardRig {
  explicit WholeRig(Bench bench = benches::Named("Harbour")) : WizardRig(std::move(bench)) {
    Start();
    for (int item = 0; item < 7; ++item) {
      if (form->SelSetupItemCtl1->IsOffered(item)) form->OnItemChanged(item, true);
    }
  }
  std::string HelpAt(int step) {
    form->optMenu[static_cast<std::size_t>(step)]->setChecked(true);
    EXPECT_EQ(form->currentStep, step);
    return form->LabelHelp->text().toStdString();
  }
};

// The pages are made when their steps are first entered, after the buttons below them.
TEST(StepsOfOnePage, TabLeadsFromThePagesLastControlToTheButtonsBelow) {
  WholeRig rig;
  for (const int step : {5, 7}) {
    rig.form->optMenu[static_cast<std::size_t>(step)]->setChecked(true);
    QApplication::processEvents();
    const QWidget* first = QApplication::focusWidget();
    ASSERT_TRUE(rig.form->FrameControl->isAncestorOf(first)) << step;
    for (int i = 0; i < 20 && rig.form->FrameControl->isAncestorOf(QApplication::focusWidget());
         ++i)
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), rig.form->ButtonCancel) << step;
  }
}

TEST(StepHelp, OfTheControlsGoesByTheType) {
  WholeRig rig;
  EXPECT_EQ(rig.HelpAt(5), "Set Other Settigs.");
  rig.form->optMenu[0]->setChecked(true);
  GetK70().curType = 1;
  EXPECT_EQ(rig.HelpAt(5), "Select Buzzer On or Off.");
  EXPECT_FALSE(rig.form->SadrelControlOtherCtl1->ControlOtherCtl1->FrameBuzzer->isVisible());
}

TEST(StepHelp, OfTheSwitchesFollowsTheirTabs) {
  WholeRig rig;
  EXPECT_EQ(rig.HelpAt(8), "Set Switch Functions of K70 Microscope ");
  SectionBar& tabs = *rig.form->SadrelControlTactorSwitch1->optSettings;
  QTest::mouseClick(tabs.option(1), Qt::LeftButton);
  EXPECT_EQ(rig.form->LabelHelp->text(), "Set Tactor Controller settings.");
  QTest::mouseClick(tabs.option(0), Qt::LeftButton);
  EXPECT_EQ(rig.form->LabelHelp->text(), "Set Switch Functions of K70 Microscope ");
}

TEST(StepHelp, OfTheOtherStepsIsTheirs) {
  WholeRig rig;
  EXPECT_EQ(rig.HelpAt(6),
            "Set whether each accessory is interlocked when Observation Method is changed.");
  EXPECT_EQ(rig.HelpAt(7), "Set Focus Drive settings.");
}

TEST(FocusStep, ShowsWhereTheNosepieceStands) {
  WholeRig rig;
  rig.HelpAt(7);
  EXPECT_EQ(rig.form->SadrelControlFocusDriveCtl1->ControlFocusDriveCtl1->optNosepiece->selected(),
            0);
}

TEST(StageStep, IsOnTheFormAndNeverShown) {
  WholeRig rig;
  for (int step = 0; step < kStepCount; ++step) {
    rig.HelpAt(step);
    EXPECT_TRUE(rig.form->SadrelControlXYStageCtl1->isHidden()) << step;
  }
}

TEST(EachStepOfABench, IsShownLoadedAndSavedNowhere) {
  for (const char* name : {"Harbour", "Lantern", "Pair", "Hub", "Outpost", "Relay", "Deck",
                           "DeckRemote", "Watch", "Hollow"}) {
    WholeRig rig(benches::Named(name));
    rig.journal.Clear();
    while (rig.form->ButtonNext->isEnabled()) {
      QTest::mouseClick(rig.form->ButtonNext, Qt::LeftButton);
      EXPECT_TRUE(rig.form->currentPage->isVisible()) << name;
    }
    EXPECT_EQ(rig.form->currentStep, 9) << name;
    EXPECT_TRUE(rig.prompts.Boxes().empty()) << name;
  }
}

}  // namespace
}  // namespace mortane::test

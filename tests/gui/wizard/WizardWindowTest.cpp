// The wizard's window: its start, its look, leaving it, and how small it may get.
#include <gtest/gtest.h>

#include <QLabel>
#include <QScrollArea>
#include <QStatusBar>
#include <array>
#include <functional>

#include "WizardRig.h"
#include "app/GetAppIcon.h"
#include "app/SystemNameCtl.h"
#include "app/SystemSettingsCtl.h"
#include "drives/ControlOtherCtl.h"
#include "gui/support/EventLoop.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"
#include "widgets/ListBox.h"
#include "widgets/SectionBar.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"
#include "wizard/ModeList.h"
#include "wizard/SadrelPages.h"
#include "wizard/SelSetupItemCtl.h"
#include "wizard/StepRail.h"

namespace mortane::test {
namespace {

constexpr char kWizardCaption[] = "Sadrel";

TEST(WizardWindow, BearsItsTextsAndNames) {
  WizardRig rig(benches::Named("Harbour"));
  SadrelMainForm& form = *rig.form;
  form.Load();
  EXPECT_EQ(form.windowTitle(), "Sadrel");
  EXPECT_EQ(form.objectName(), "SadrelMainForm");
  EXPECT_EQ(form.ButtonCancel->text(), "&Cancel");
  EXPECT_EQ(form.ButtonPrevious->text(), "&Previous");
  EXPECT_EQ(form.ButtonNext->text(), "&Next");
  EXPECT_EQ(form.ButtonFinish->text(), "&Finish");
  for (const char* name : {"ButtonCancel",
                           "ButtonPrevious",
                           "ButtonNext",
                           "ButtonFinish",
                           "LabelHelp",
                           "SystemSettingsCtl1",
                           "SelSetupItemCtl1",
                           "ObjectiveSettingsCtl1",
                           "FilterQubeSettingsCtl1",
                           "CondenserSettingsCtl1",
                           "SadrelControlOtherCtl1",
                           "InterlockSettingsCtl1",
                           "SadrelControlFocusDriveCtl1",
                           "SadrelControlTactorSwitch1",
                           "SadrelEndingCtl1",
                           "PictureMenu",
                           "ImageMenu_0",
                           "ImageMenu_9",
                           "FrameOptionButton",
                           "optMenu_0",
                           "optMenu_9",
                           "FrameControl",
                           "ScrollControl",
                           "ButtonKept",
                           "SessionNote"}) {
    EXPECT_NE(form.findChild<QWidget*>(name), nullptr) << name;
  }
  EXPECT_EQ(form.SadrelControlXYStageCtl1->objectName(), "SadrelControlXYStageCtl1");
  const SadrelControlTactorSwitch& switches = *form.SadrelControlTactorSwitch1;
  EXPECT_EQ(switches.optSettings->objectName(), "optSettings");
  EXPECT_EQ(switches.SwitchSettingCtl1->objectName(), "SwitchSettingCtl1");
  EXPECT_EQ(switches.TactorSwitchSettingCtl1->objectName(), "TactorSwitchSettingCtl1");
  EXPECT_EQ(form.SadrelControlOtherCtl1->ControlOtherCtl1->objectName(), "ControlOtherCtl1");
  Lines names;
  for (const StepButton* picture : form.ImageMenu) names.push_back(picture->text().toStdString());
  EXPECT_EQ(names, (Lines{"System", "Setup Items", "Objective", "Filter Cube", "Condenser",
                          "Control", "InterLock", "Z Focus", "Controller", "Ending"}));
}

TEST(WizardWindow, ShowsTheVersionInItsLastPanelAndItsOwnIcon) {
  WizardRig rig(benches::Named("Harbour"));
  EXPECT_EQ(rig.Find<QLabel>("StatusBar1_5").text(), "");
  rig.form->Load();
  EXPECT_EQ(rig.Find<QLabel>("StatusBar1_5").text(), "1.0.0");
  EXPECT_FALSE(rig.form->windowIcon().isNull());
}

// Where a control of the window stands in it.
QRect PlaceOf(const QWidget& control, const QWidget& window) {
  return {control.mapTo(&window, QPoint()), control.size()};
}

TEST(WizardWindow, IsFilledFromEdgeToEdge) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  SadrelMainForm& form = *rig.form;
  for (const QSize& size : {QSize(1152, 740), QSize(1500, 1000)}) {
    form.resize(size);
    QApplication::processEvents();
    const QRect rail = PlaceOf(*form.PictureMenu, form);
    const QRect help = PlaceOf(*form.LabelHelp->parentWidget(), form);
    const QRect area = PlaceOf(rig.Find<QWidget>("ScrollControl"), form);
    const QRect bar = PlaceOf(*form.ButtonNext->parentWidget(), form);
    EXPECT_EQ(rail.left(), 0);
    EXPECT_EQ(rail.width(), 176);
    EXPECT_EQ(rail.top(), help.top());
    EXPECT_EQ(rail.bottom(), bar.bottom());
    for (const QRect& right : {help, area, bar}) {
      EXPECT_EQ(right.left(), rail.right() + 1);
      EXPECT_EQ(right.right(), size.width() - 1);
    }
    EXPECT_EQ(area.top(), help.bottom() + 1);
    EXPECT_EQ(bar.top(), area.bottom() + 1);
  }
}

TEST(WizardWindow, HasButtonsOfOneWidthAndTheLastOneApart) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  const SadrelMainForm& form = *rig.form;
  const std::array<const QPushButton*, 4> buttons{form.ButtonCancel, form.ButtonPrevious,
                                                  form.ButtonNext, form.ButtonFinish};
  for (const QPushButton* button : buttons) {
    EXPECT_EQ(button->width(), 104) << button->text().toStdString();
    EXPECT_TRUE(button->autoDefault());
  }
  const auto gap = [&buttons](std::size_t right) {
    return buttons[right]->x() - buttons[right - 1]->geometry().right() - 1;
  };
  EXPECT_EQ(gap(2), grid::kBetweenControls);
  EXPECT_EQ(gap(3), grid::kBetweenControls + grid::kBetweenColumns);
  const QLabel& note = rig.Find<QLabel>("SessionNote");
  EXPECT_EQ(note.font().pointSizeF(), CaptionFont().pointSizeF());
  EXPECT_EQ(note.x() - buttons[0]->geometry().right() - 1, 2 * grid::kBetweenControls);
  EXPECT_EQ(buttons[1]->x() - note.geometry().right() - 1, grid::kBetweenControls);
}

TEST(WizardStart, ConnectsReceivesAndShowsTheSystem) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  EXPECT_EQ(GetK70().lConnectDevice, 1);
  EXPECT_EQ(rig.form->currentStep, 0);
  EXPECT_EQ(rig.form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName->text(), "Harbour");
  EXPECT_TRUE(rig.form->SystemSettingsCtl1->isVisible());
}

// One press of Alt+P more than there are steps: the key of Previous is off then.
TEST(WizardStart, TakesALetterHeldWithAltForNoPartOfTheName) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  TextField& name = *rig.form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName;
  name.setFocus();
  QTest::keyClick(&name, 'p', Qt::AltModifier);
  QTest::mouseClick(rig.form->ButtonNext, Qt::LeftButton);
  EXPECT_EQ(GetK70().SystemName, "Harbour");
}

TEST(WizardStart, SwitchesTheStepsOfTheStandardOn) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  for (const std::size_t step : {2U, 3U, 4U}) {
    EXPECT_EQ(rig.form->stepEnabled[step], -1) << step;
    EXPECT_TRUE(rig.form->ImageMenu[step]->isEnabled()) << step;
  }
  for (const std::size_t step : {5U, 6U, 7U, 8U}) {
    EXPECT_EQ(rig.form->stepEnabled[step], 0) << step;
    EXPECT_FALSE(rig.form->ImageMenu[step]->isEnabled()) << step;
  }
}

TEST(WizardStart, ThatFailsClosesTheWindow) {
  WizardRig rig(List({"Quay"}));
  rig.prompts.ExpectBox("No Microscope\r\nPlease restart this application or your machine.", 0);
  rig.form->Load();
  rig.form->show();
  EXPECT_TRUE(QTest::qWaitFor([&rig] { return !rig.form->isVisible(); }));
  EXPECT_EQ(rig.form->currentStep, -1);
}

TEST(WizardStart, HappensOnce) {
  StepsRig rig;
  rig.fakes.calls.clear();
  rig.form().hide();
  rig.form().show();
  rig.form().activateWindow();
  QApplication::processEvents();
  EXPECT_TRUE(rig.fakes.calls.empty());
}

TEST(WizardCancel, AsksAndStaysOrLeaves) {
  StepsRig rig;
  rig.SwitchOn({3});
  rig.ClickPicture(3);
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Cancel, kWizardCaption);
  rig.Click(rig.form().ButtonCancel);
  EXPECT_TRUE(rig.form().isVisible());
  EXPECT_EQ(rig.form().currentStep, 3);
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Ok, kWizardCaption);
  rig.Click(rig.form().ButtonCancel);
  EXPECT_FALSE(rig.form().isVisible());
}

TEST(WizardControlMenu, AsksTheSameAndCancelLeavesAllAsItWas) {
  StepsRig rig;
  rig.SwitchOn({3});
  rig.ClickPicture(3);
  const auto enabled = rig.form().stepEnabled;
  rig.fakes.calls.clear();
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Cancel, kWizardCaption);
  EXPECT_FALSE(rig.app.RequestClose());
  EXPECT_TRUE(rig.form().isVisible());
  EXPECT_EQ(rig.form().currentStep, 3);
  EXPECT_EQ(rig.form().stepEnabled, enabled);
  EXPECT_TRUE(rig.fakes.calls.empty());
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Ok, kWizardCaption);
  EXPECT_TRUE(rig.app.RequestClose());
}

TEST(WizardClosing, ByTheProgramAsksNothing) {
  StepsRig rig;
  rig.form().Unload();
  EXPECT_FALSE(rig.form().isVisible());
  EXPECT_TRUE(rig.app.prompts.Log().empty());
}

TEST(WizardName, HasTheFocusFirstAndIsStoredByNext) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  TextField& name = *rig.form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName;
  EXPECT_EQ(rig.form->focusWidget(), &name);
  name.selectAll();
  QTest::keyClicks(&name, "Bay 4");
  QTest::keyClick(rig.form.get(), Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&rig] { return rig.form->currentStep == 1; }));
  EXPECT_EQ(GetK70().SystemName, "Bay 4");
}

TEST(WizardName, IsStoredByAClickOnAPicture) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  TextField& name = *rig.form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName;
  name.selectAll();
  QTest::keyClicks(&name, "Bay 4");
  QTest::mouseClick(rig.form->ImageMenu[9], Qt::LeftButton);
  EXPECT_EQ(GetK70().SystemName, "Bay 4");
}

TEST(WizardName, OfANamelessMicroscopeIsLeftAloneUnlessThePersonGoesThere) {
  Bench bench = benches::Named("Harbour");
  bench.instruments[1].name = "  ";
  WizardRig rig(std::move(bench));
  rig.Start();
  EXPECT_EQ(rig.form->focusWidget(), rig.form->ButtonNext);
  QTest::mouseClick(rig.form->ButtonFinish, Qt::LeftButton);
  EXPECT_EQ(GetK70().SystemName, "  ");
}

TEST(WizardText, ThatIsRefusedKeepsTheStepWhateverThePersonClicks) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  SadrelMainForm& form = *rig.form;
  form.activateWindow();
  form.optMenu[2]->setChecked(true);
  QTest::mouseClick(form.ObjectiveSettingsCtl1->sections()->option(1), Qt::LeftButton);
  auto& distance = rig.Find<TextField>("TextWD");
  const auto refuse = [&](const std::function<void()>& act) {
    distance.setFocus();
    distance.selectAll();
    QTest::keyClicks(&distance, "abc");
    rig.prompts.ExpectBox("Please Input right value.", 0);
    act();
    // A button acts a moment after its letter.
    EXPECT_TRUE(QTest::qWaitFor([&rig] { return rig.prompts.AllAnswersUsed(); }));
    DeliverAll();
    EXPECT_EQ(form.currentStep, 2);
    EXPECT_TRUE(distance.hasFocus());
    EXPECT_EQ(distance.text(), "abc");
  };
  for (QWidget* clicked :
       std::initializer_list<QWidget*>{form.ButtonCancel, form.ButtonPrevious, form.ButtonNext,
                                       form.ButtonFinish, form.ImageMenu[0], form.ImageMenu[3]}) {
    refuse([clicked] { QTest::mouseClick(clicked, Qt::LeftButton); });
  }
  for (const Qt::Key letter : {Qt::Key_C, Qt::Key_P, Qt::Key_N, Qt::Key_F}) {
    refuse([&] { QTest::keyClick(&form, letter, Qt::AltModifier); });
  }
  EXPECT_TRUE(form.isVisible());
}

TEST(WizardItems, FromAPersonsClickReachTheSequence) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  SelSetupItemCtl& items = *rig.form->SelSetupItemCtl1;
  QTest::mouseClick(rig.form->ButtonNext, Qt::LeftButton);
  items.SetupMode(1);
  items.ListCustom->SetRowChecked(0, false);
  EXPECT_EQ(rig.form->stepEnabled[2], 0);
  QTest::mouseClick(rig.form->ButtonNext, Qt::LeftButton);
  EXPECT_EQ(rig.form->currentStep, 3);
  QTest::mouseClick(rig.form->ButtonPrevious, Qt::LeftButton);
  EXPECT_EQ(rig.form->currentStep, 1);
  EXPECT_EQ(items.SetupMode(), 1) << "coming back loads nothing";
  EXPECT_FALSE(items.ListCustom->isRowChecked(0));
}

// A window of 200 % on 1920 x 1080 has 960 x 540 and opens with nine tenths of it.
class SmallWizard : public testing::TestWithParam<QSize> {};

TEST_P(SmallWizard, KeepsStepsHelpAndButtonsInSight) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  rig.form->resize(GetParam());
  QApplication::processEvents();
  EXPECT_EQ(rig.form->size(), GetParam());
  const auto inSight = [&rig](const QWidget& widget) {
    return widget.visibleRegion() == QRegion(widget.rect()) &&
           rig.form->rect().contains(
               QRect(widget.mapTo(rig.form.get(), QPoint(0, 0)), widget.size()));
  };
  const SadrelMainForm& form = *rig.form;
  const std::array<const QPushButton*, 4> buttons{form.ButtonCancel, form.ButtonPrevious,
                                                  form.ButtonNext, form.ButtonFinish};
  for (const QPushButton* button : buttons) {
    EXPECT_TRUE(inSight(*button)) << button->text().toStdString();
    EXPECT_GE(button->width(), button->sizeHint().width());
  }
  for (const StepButton* picture : rig.form->ImageMenu) {
    EXPECT_TRUE(inSight(*picture)) << picture->text().toStdString();
  }
  for (int step = 0; step < kStepCount; ++step) {
    if (rig.form->stepEnabled[static_cast<std::size_t>(step)] == 0) continue;
    rig.form->optMenu[static_cast<std::size_t>(step)]->setChecked(true);
    QApplication::processEvents();
    const QLabel& help = *rig.form->LabelHelp;
    EXPECT_TRUE(inSight(help));
    EXPECT_LE(help.heightForWidth(help.width()), help.height()) << step;
    const QWidget& frame = *rig.form->FrameControl;
    EXPECT_GE(frame.width(), frame.minimumSizeHint().width()) << step;
    EXPECT_GE(frame.height(), frame.minimumSizeHint().height()) << step;
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, SmallWizard,
                         testing::Values(QSize(1152, 740), QSize(1024, 640), QSize(864, 486),
                                         QSize(800, 500)));

}  // namespace
}  // namespace mortane::test

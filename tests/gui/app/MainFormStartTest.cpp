// The main window from its loading to the first sight of its pages.
#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QToolBar>

#include "AppRig.h"
#include "app/SelScopeDlg.h"
#include "app/SystemNameCtl.h"
#include "app/SystemSettingsCtl.h"
#include "common/Failure.h"
#include "gui/support/EventLoop.h"
#include "support/Sample.h"
#include "widgets/CommandKey.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/Rail.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

struct ActionRow {
  const char* name;
  const char* caption;
};

TEST(MainForm, BearsItsMenusByNameAndCaption) {
  AppRig rig(benches::Named("Harbour"));
  EXPECT_EQ(rig.form->windowTitle(), "Mortane");
  for (const ActionRow& row :
       {ActionRow{"MenuFileOpen", "Open(&O)"}, ActionRow{"MenuFileSave", "Save(&S)"},
        ActionRow{"FileMenuExit", "Exit(&X)"}, ActionRow{"MenuConnectSelect", "Select(&L)"},
        ActionRow{"MenuConnectReceive", "Receive(&R)"}, ActionRow{"MenuConnectSend", "Send(&N)"}}) {
    EXPECT_EQ(rig.Find<QAction>(row.name).text(), row.caption);
  }
  EXPECT_EQ(rig.Find<QMenu>("MenuFile").title(), "File(&F)");
  EXPECT_EQ(rig.Find<QMenu>("MenuConnect").title(), "Connect(&C)");
  EXPECT_TRUE(rig.Find<QAction>("MenuSeparator").isSeparator());
  EXPECT_EQ(rig.form->MenuFile->actions(),
            (QList<QAction*>{rig.form->MenuFileOpen, rig.form->MenuFileSave,
                             rig.form->MenuSeparator, rig.form->FileMenuExit}));
  EXPECT_EQ(rig.form->MenuConnect->actions(),
            (QList<QAction*>{rig.form->MenuConnectSelect, rig.form->MenuConnectReceive,
                             rig.form->MenuConnectSend}));
}

TEST(MainForm, HasItsToolBarByPosition) {
  AppRig rig(benches::Named("Harbour"));
  const QList<QAction*> buttons = rig.Find<QToolBar>("Toolbar1").actions();
  ASSERT_EQ(buttons.size(), 6);
  const char* captions[] = {"Open", "Save", "", "Select", "Receive", "Send"};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(buttons[i]->text(), captions[i]);
  EXPECT_TRUE(buttons[2]->isSeparator());
}

TEST(MainForm, BearsItsOtherControlsByName) {
  AppRig rig(benches::Named("Harbour"));
  for (const char* name : {"Picture2", "PictureMenu", "FrameOptionButton", "FrameControl",
                           "SystemSettingsCtl1", "StatusBar1", "ImageCommand_0", "ImageCommand_3",
                           "ImageButton_0", "ImageButton_5", "optMenu_0", "optMenu_5"}) {
    EXPECT_NE(rig.form->findChild<QWidget*>(name), nullptr) << name;
  }
  const char* titles[] = {"System",     "Objectives", "Filter Cubes",
                          "Condensers", "Interlocks", "Controls"};
  for (std::size_t i = 0; i < kPageCount; ++i) {
    EXPECT_EQ(rig.form->ImageButton[i]->text(), titles[i]);
  }
  const char* commands[] = {"Select", "Receive", "Send", "Exit"};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(rig.form->ImageCommand[i]->text(), commands[i]);
    EXPECT_EQ(rig.form->ImageCommand[i]->isMain(), i == 2);
  }
  EXPECT_EQ(rig.form->CommonDialog1.filter, "XML File (*.xml)|*.xml");
  EXPECT_EQ(rig.form->CommonDialog1.defaultExtension, ".xml");
}

TEST(MainForm, HasNoMenuThatHidesTheToolBar) {
  AppRig rig(benches::Named("Harbour"));
  EXPECT_EQ(rig.form->contextMenuPolicy(), Qt::PreventContextMenu);
}

TEST(MainForm, LoadingShowsTheVersionAndTheSystemPage) {
  FakePages fakes;
  AppRig rig(benches::Named("Harbour"), {}, fakes.Table());
  EXPECT_EQ(rig.Find<QLabel>("StatusBar1_5").text(), "");
  rig.form->Load();
  EXPECT_EQ(rig.Find<QLabel>("StatusBar1_5").text(), "1.0.0");
  EXPECT_FALSE(rig.form->windowIcon().isNull());
  for (std::size_t i = 0; i < kPageCount; ++i) {
    EXPECT_EQ(fakes.pages[i]->isVisibleTo(rig.form.get()), i == 0) << i;
    EXPECT_EQ(rig.form->optMenu[i]->isChecked(), i == 0) << i;
    EXPECT_EQ(rig.form->ImageButton[i]->isSelected(), i == 0) << i;
  }
  EXPECT_TRUE(fakes.calls.empty()) << "nothing is known of a microscope yet";
  EXPECT_TRUE(rig.journal.Lines().empty());
}

TEST(MainForm, LoadingShowsTheCommandKeysUp) {
  AppRig rig(benches::Named("Harbour"));
  for (CommandKey* key : rig.form->ImageCommand) key->setDown(true);
  rig.form->Load();
  for (CommandKey* key : rig.form->ImageCommand) {
    EXPECT_FALSE(key->isDown()) << key->text().toStdString();
  }
}

TEST(MainForm, TellsTheVersionInTheSmallLetterOfCaptions) {
  AppRig rig(benches::Named("Harbour"));
  rig.form->Load();
  const QLabel& version = rig.Find<QLabel>("StatusBar1_5");
  EXPECT_DOUBLE_EQ(version.font().pointSizeF(), QApplication::font().pointSizeF() * 0.92);
  EXPECT_EQ(version.foregroundRole(), QPalette::PlaceholderText);
}

TEST(MainForm, PagesLieOnTopOfEachOther) {
  FakePages fakes;
  AppRig rig(benches::Named("Harbour"), {}, fakes.Table());
  rig.Start();
  for (std::size_t i = 0; i < kPageCount; ++i) {
    QTest::mousePress(rig.form->ImageButton[i], Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(fakes.pages[i]->pos(), QPoint(0, 0));
    EXPECT_EQ(fakes.pages[i]->size(), rig.form->FrameControl->size());
  }
}

// Fails at one step of its loading.
class StumblingForm : public MortaneMainForm {
 public:
  using MortaneMainForm::MortaneMainForm;
  int failing = -1;

 protected:
  void LoadStep(int step) override {
    if (step == failing) RaiseOwnFailure(kNoObjectError, "a control is missing");
    MortaneMainForm::LoadStep(step);
  }
};

class LoadError : public testing::TestWithParam<int> {};

TEST_P(LoadError, TellsTheStepAndTheWindowComesUpAllTheSame) {
  BasicAppRig<StumblingForm> rig(benches::Named("Harbour"));
  rig.form->failing = GetParam();
  rig.prompts.ExpectBox("Form_Load Error" + std::to_string(GetParam()), 0);
  rig.form->Load();
  EXPECT_EQ(rig.Find<QLabel>("StatusBar1_5").text(), GetParam() > 1 ? "1.0.0" : "");
  EXPECT_FALSE(rig.form->optMenu[0]->isChecked()) << "the loading stopped before";
  rig.form->show();
  EXPECT_TRUE(rig.form->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Steps, LoadError, testing::Range(0, 7));

TEST(Start, ShowsTheConnectedMicroscope) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  EXPECT_TRUE(rig.form->isVisible());
  EXPECT_EQ(GetK70().lConnectDevice, 1);
  const SystemNameCtl& panel = *rig.form->SystemSettingsCtl1->SystemNameCtl1;
  EXPECT_EQ(panel.TextSystemName->text().toStdString(), rig.instrument().name);
}

TEST(Start, RunsOnceHoweverOftenTheWindowIsActivated) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  rig.form->hide();
  rig.form->show();
  QEvent activation(QEvent::WindowActivate);
  QApplication::sendEvent(rig.form.get(), &activation);
  DeliverAll();
  EXPECT_TRUE(rig.journal.Lines().empty());
  EXPECT_TRUE(rig.prompts.Log().empty());
}

TEST(Start, BeginsWithActivationWithoutWaitingForAPainting) {
  AppRig rig(benches::Named("Harbour"));
  rig.form->Load();
  rig.journal.Clear();
  QEvent activation(QEvent::WindowActivate);
  QApplication::sendEvent(rig.form.get(), &activation);
  EXPECT_TRUE(rig.journal.Lines().empty()) << "not inside the event";
  DeliverAll();
  EXPECT_EQ(GetK70().lConnectDevice, 1);
}

TEST(Start, WithoutAMicroscopeClosesTheWindowAndAsksNothing) {
  AppRig rig(benches::Named("Quay"));
  rig.prompts.ExpectBox("No Microscope\r\nPlease restart this application or your machine.", 0);
  rig.Start();
  EXPECT_FALSE(rig.form->isVisible());
}

TEST(Start, ThePathsOwnDialogChoosesAmongSeveral) {
  AppRig rig(Microscopes({"Alpha", "Beta"}));
  const WhenShown<SelScopeDlg> person([](SelScopeDlg& dialog) {
    dialog.List1->setIndex(1);
    dialog.OkButton->click();
  });
  rig.Start();
  EXPECT_EQ(GetK70().lConnectDevice, 2);
}

TEST(Start, CancellingTheDialogClosesTheWindow) {
  AppRig rig(Microscopes({"Alpha", "Beta"}));
  const WhenShown<SelScopeDlg> person([](SelScopeDlg& dialog) { dialog.CancelButton->click(); });
  rig.Start();
  EXPECT_FALSE(rig.form->isVisible());
  EXPECT_EQ(GetK70().lConnectDevice, -1);
}

TEST(Start, LoadsThePagesThatHaveSomethingToShowInTheirOrder) {
  FakePages fakes;
  fakes.enabled = {true, true, false, true, false, true};
  AppRig rig(benches::Named("Harbour"), {}, fakes.Table());
  rig.Start();
  EXPECT_EQ(fakes.calls, (std::vector<std::string>{"0.LoadData", "1.LoadData", "3.LoadData",
                                                   "5.LoadData", "5.SetNosePostiton"}));
  for (std::size_t i = 0; i < kPageCount; ++i) {
    EXPECT_EQ(rig.form->ImageButton[i]->isEnabled(), fakes.enabled[i]) << i;
  }
}

// Objectives, filter cubes and condensers.
TEST(Start, PagesOfTurretsAreThereForEachThatHasAddresses) {
  struct Row {
    const char* bench;
    std::array<bool, 3> enabled;
  };
  for (const Row& row : {Row{"Harbour", {true, true, true}},
                         Row{"Hollow", {false, false, false}},    // no turret has any
                         Row{"Outpost", {true, true, false}}}) {  // a nosepiece that is only sensed
    AppRig rig(benches::Named(row.bench));
    rig.Start();
    for (std::size_t i = 0; i < row.enabled.size(); ++i) {
      EXPECT_EQ(rig.form->ImageButton[i + 1]->isEnabled(), row.enabled[i]) << row.bench << ' ' << i;
    }
  }
}

TEST(Start, APageThatCannotBeLoadedIsToldAndTheOthersAreLoaded) {
  FakePages fakes;
  AppRig rig(benches::Named("Harbour"), {}, fakes.Table());
  fakes.pages[1]->onLoad = [] { throw Failure("LIB", 7, "The turret is jammed."); };
  rig.prompts.ExpectBox("The turret is jammed.", 16);
  rig.Start();
  EXPECT_EQ(fakes.calls.back(), "5.SetNosePostiton");
}

TEST(PageButtons, ShowTheirPageOnPress) {
  FakePages fakes;
  AppRig rig(benches::Named("Harbour"), {}, fakes.Table());
  rig.Start();
  fakes.calls.clear();
  QTest::mousePress(rig.form->ImageButton[3], Qt::LeftButton);
  EXPECT_TRUE(fakes.pages[3]->isVisible());
  EXPECT_FALSE(fakes.pages[0]->isVisible());
  EXPECT_TRUE(rig.form->optMenu[3]->isChecked());
  EXPECT_TRUE(rig.form->ImageButton[3]->isSelected());
  EXPECT_FALSE(rig.form->ImageButton[0]->isSelected());
  EXPECT_TRUE(fakes.calls.empty()) << "moving between pages neither loads nor saves";
}

struct PressRow {
  Qt::MouseButton button;
  Qt::KeyboardModifiers modifiers;
};

TEST(PageButtons, IgnoreOtherButtonsAndModifiers) {
  FakePages fakes;
  AppRig rig(benches::Named("Harbour"), {}, fakes.Table());
  rig.Start();
  for (const PressRow& row :
       {PressRow{Qt::RightButton, Qt::NoModifier}, PressRow{Qt::MiddleButton, Qt::NoModifier},
        PressRow{Qt::LeftButton, Qt::ShiftModifier}, PressRow{Qt::LeftButton, Qt::ControlModifier},
        PressRow{Qt::LeftButton, Qt::AltModifier}}) {
    QTest::mouseClick(rig.form->ImageButton[3], row.button, row.modifiers);
    EXPECT_TRUE(rig.form->optMenu[0]->isChecked());
  }
}

// Counts how often it is shown.
TEST(PageButtons, PressedOnTheCurrentPageDoNotShowItAgain) {
  FakePages fakes;
  AppRig rig(benches::Named("Harbour"), {}, fakes.Table());
  rig.Start();
  struct Counter : QObject {
    int hides = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      hides += event->type() == QEvent::Hide ? 1 : 0;
      return false;
    }
  } counter;
  fakes.pages[0]->installEventFilter(&counter);
  QTest::mousePress(rig.form->ImageButton[0], Qt::LeftButton);
  EXPECT_EQ(counter.hides, 0);
  EXPECT_TRUE(fakes.pages[0]->isVisible());
}

TEST(PageButtons, DisabledOnesDoNothing) {
  FakePages fakes;
  fakes.enabled[3] = false;
  AppRig rig(benches::Named("Harbour"), {}, fakes.Table());
  rig.Start();
  QTest::mousePress(rig.form->ImageButton[3], Qt::LeftButton);
  EXPECT_TRUE(rig.form->optMenu[0]->isChecked());
}

TEST(PageButtons, ByKeyMoveTheFocusWithArrowsAndSelectWithSpace) {
  FakePages fakes;
  AppRig rig(benches::Named("Harbour"), {}, fakes.Table());
  rig.Start();
  rig.form->activateWindow();
  rig.form->ImageButton[0]->setFocus();
  QTest::keyClick(rig.form->ImageButton[0], Qt::Key_Down);
  EXPECT_TRUE(rig.form->ImageButton[1]->hasFocus());
  EXPECT_TRUE(rig.form->optMenu[0]->isChecked());
  QTest::keyClick(rig.form->ImageButton[1], Qt::Key_Space);
  EXPECT_TRUE(rig.form->optMenu[1]->isChecked());
}

TEST(TabKey, GoesFromThePageButtonThroughThePageToTheCommandKeys) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  rig.form->activateWindow();
  rig.form->ImageButton[0]->setFocus();
  const std::vector<std::string> stops{"TextSystemName", "TextAccessories", "ImageCommand_0",
                                       "ImageCommand_1", "ImageCommand_2",  "ImageCommand_3",
                                       "ImageButton_0"};
  for (const std::string& stop : stops) {
    QTest::keyClick(rig.form.get(), Qt::Key_Tab);
    ASSERT_NE(rig.form->focusWidget(), nullptr);
    EXPECT_EQ(rig.form->focusWidget()->objectName().toStdString(), stop);
  }
}

// Two programs on one device: what the second one says, and that it ends.
TEST(TwoCopies, TheSecondOneIsRefused) {
  AppRig second(benches::Named("Harbour"));
  RigLibrary first(benches::Named("Harbour"));
  clsK70 holder(first.library, first.prompts);
  ASSERT_TRUE(holder.CreateConnectionName("1"));
  second.prompts.ExpectBox(
      "Other Application has already used this Microscope.\r\nPlease restart this application "
      "or your machine.",
      0);
  second.Start();
  EXPECT_FALSE(second.form->isVisible());
}

TEST(Start, SurvivesAFailureOfWhicheverControllerCall) {
  const auto run = [](std::size_t failing) {
    AppRig rig(benches::Named("Harbour"));
    rig.prompts.AcceptAnyBox();
    if (failing > 0) rig.faults.FailCall(failing);
    rig.form->Load();
    rig.form->show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return rig.form->IsStarted(); })) << "call " << failing;
    EXPECT_EQ(rig.prompts.PointerBalance(), 0) << "call " << failing;
    return rig.journal.CallCount();
  };
  const std::size_t calls = run(0);
  ASSERT_GT(calls, 50U);
  for (const std::size_t k : SampleOf(calls, 101)) run(k);
}

}  // namespace
}  // namespace mortane::test

// The page of the drives and controls: what it asks of its sub-pages, and of the fiber
// illuminator's server.
#include <QApplication>
#include <QShowEvent>

#include "gui/app/ControlPages.h"
#include "widgets/PageHeader.h"

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

using controller::FiberData;

struct TabRow {
  const char* caption;
  const char* subPage;
};

constexpr std::array kTabs{
    TabRow{"Focus Drive", "ControlFocusDriveCtl1"},
    TabRow{"XY Stage", "ControlXYStageCtl1"},
    TabRow{"Other", "ControlOtherCtl1"},
    TabRow{"K70 Switch", "SwitchSettingCtl1"},
    TabRow{"Tactor Switch", "ControlTactorSwitchCtl1"},
    TabRow{"Joypad Switch", "JoypadSwitchSettingCtl1"},
};

QAbstractButton& Tab(const ControlSettingsCtl& page, int index) {
  return *page.optControl->option(index);
}

TEST(ControlPage, BearsItsTabsAndSubPages) {
  ControlRig rig("Quay");
  ControlSettingsCtl& page = rig.ShowPage();
  EXPECT_EQ(page.Header->title(), "Controls");
  EXPECT_EQ(page.Header->objectName(), "Header");
  ASSERT_EQ(page.optControl->count(), 6);
  for (int i = 0; i < 6; ++i) {
    const TabRow& row = kTabs[static_cast<std::size_t>(i)];
    EXPECT_EQ(Tab(page, i).text(), row.caption);
    EXPECT_EQ(Tab(page, i).objectName(), u"optControl_%1"_s.arg(i));
    EXPECT_EQ(rig.pages[static_cast<std::size_t>(i)]->objectName(), row.subPage);
  }
  EXPECT_EQ(page.ControlFocusDriveCtl1, rig.pages[0]);
  EXPECT_EQ(page.ControlXYStageCtl1, rig.pages[1]);
  EXPECT_EQ(page.ControlOtherCtl1, rig.pages[2]);
  EXPECT_EQ(page.SwitchSettingCtl1, rig.pages[3]);
  EXPECT_EQ(page.ControlTactorSwitchCtl1, rig.pages[4]);
  EXPECT_EQ(page.JoypadSwitchSettingCtl1, rig.pages[5]);
}

TEST(ControlPage, IsMadeWithItsFirstTabSelectedAndAsksNothingButForTheFiberServer) {
  ControlRig rig("Quay");
  const std::unique_ptr<ControlSettingsCtl> page(rig.Make());
  EXPECT_EQ(page->CurrentItem(), 0);
  EXPECT_EQ(page->shownSubPage(), rig.pages[0]);
  EXPECT_EQ(rig.calls, Lines{"Focus.SetNosePosition"});
  EXPECT_TRUE(rig.journal.Lines().empty());
  EXPECT_EQ(rig.journal.CallCount(), 2U) << "the creation of its two objects";
  EXPECT_EQ(rig.joystick.statusCalls, 0);
}

TEST(ControlPage, LoadsTheOfferedSubPagesFromTheLastToTheFirst) {
  ControlRig rig("Quay");
  ControlSettingsCtl& page = rig.ShowPage();
  page.LoadData();
  EXPECT_EQ(rig.calls, (Lines{"Joypad.LoadData", "Tactor.LoadData", "K70.LoadData",
                              "Other.LoadData", "Stage.LoadData", "Focus.LoadData"}));
}

TEST(ControlPage, DoesNotLoadASubPageWithoutATab) {
  ControlRig rig("Lantern");
  rig.joystick.Fail(kJoystickUnplugged);
  ControlSettingsCtl& page = rig.ShowPage();
  page.LoadData();
  EXPECT_EQ(rig.calls, (Lines{"Other.LoadData", "Focus.LoadData"}));
}

TEST(ControlPage, OpensItsFirstTabOnceWhenItIsNewAndLeavesItThen) {
  ControlRig rig("Quay");
  ControlSettingsCtl& page = rig.Show(rig.Make());
  EXPECT_EQ(rig.Shown(), "ControlXYStageCtl1");
  EXPECT_EQ(std::count(rig.calls.begin(), rig.calls.end(), "Stage.SetNosePosition"), 1);
  ClickButton(Tab(page, 4));
  rig.calls.clear();
  page.LoadData();
  EXPECT_EQ(rig.Shown(), "ControlXYStageCtl1");
  EXPECT_EQ(rig.calls.back(), "Stage.SetNosePosition");
  rig.calls.clear();
  page.LoadData();
  EXPECT_EQ(rig.calls.back(), "Focus.LoadData") << "the selected tab is selected";
}

// Tells how many controller calls were made before it was asked.
struct CountingJoystick : ScriptedJoystick {
  explicit CountingJoystick(const controller::Journal& controllerCalls)
      : journal(controllerCalls) {}
  std::int32_t ReadStatus() override {
    callsBefore = journal.CallCount();
    return ScriptedJoystick::ReadStatus();
  }

  const controller::Journal& journal;
  std::size_t callsBefore = 1;
};

TEST(ControlPage, AsksForTheJoystickBeforeTheFiberServerAndTheController) {
  ControlRig rig("Quay");
  CountingJoystick joystick(rig.journal);
  Lines calls;
  const std::unique_ptr<ControlSettingsCtl> page(new ControlSettingsCtl(
      {rig.k70(), rig.library, rig.prompts, joystick, {}}, MakeFakeSubPages(calls)));
  rig.journal.Clear();
  page->LoadData();
  EXPECT_EQ(joystick.statusCalls, 1);
  EXPECT_EQ(joystick.callsBefore, 0U);
}

TEST(ControlPage, AsksItsQuestionsInOrderBeforeAnySubPageIsLoaded) {
  Bench bench = benches::Named("Quay");
  bench.fiber.open = false;
  ControlRig rig(std::move(bench));
  ControlSettingsCtl& page = rig.ShowPage();
  rig.simulated.bench().fiber.open = false;
  bool asked = false;
  rig.pages[5]->onLoad = [&] {
    asked = true;
    EXPECT_TRUE(rig.k70().COther.curFiberStatus);
    EXPECT_EQ(rig.journal.Lines(), (Lines{"IsOpen -> false", "Open(1000)", "Status -> 1",
                                          "IsOpen -> true", "SwitchEnable -> int16(1)",
                                          "LED -> int16(2)", "ControllerVersion(1) -> \"vDEMO\""}));
  };
  page.LoadData();
  EXPECT_TRUE(asked);
}

struct ClickRow {
  int tab;
  const char* call;
};

TEST(ControlPage, AClickOnATabHidesThePageOnShowAndOpensItsOwn) {
  ControlRig rig("Quay");
  ControlSettingsCtl& page = rig.ShowPage();
  Lines events;
  QObject::connect(&page, &ContainerPage::Change, &page,
                   [&](int index) { events.push_back(std::to_string(index) + " " + rig.Shown()); });
  for (const ClickRow& row :
       {ClickRow{0, "Focus.SetNosePosition"}, ClickRow{1, "Stage.SetNosePosition"},
        ClickRow{2, "Other.LoadData"}, ClickRow{3, "K70.LoadData"}, ClickRow{4, "Tactor.LoadData"},
        ClickRow{5, "Joypad.LoadData"}, ClickRow{5, "Joypad.LoadData"},
        ClickRow{0, "Focus.SetNosePosition"}}) {
    const std::string subPage = kTabs[static_cast<std::size_t>(row.tab)].subPage;
    rig.calls.clear();
    events.clear();
    ClickButton(Tab(page, row.tab));
    EXPECT_EQ(rig.calls, Lines{row.call});
    EXPECT_EQ(events, Lines{std::to_string(row.tab) + " " + subPage});
    EXPECT_EQ(page.CurrentItem(), row.tab);
    EXPECT_EQ(rig.Shown(), subPage);
  }
}

TEST(ControlPage, TheKeyboardOpensTabsAndPassesOverThoseThatAreHidden) {
  ControlRig rig("Lantern");
  rig.joystick.Fail(kJoystickUnplugged);
  ControlSettingsCtl& page = rig.ShowPage();
  Tab(page, 2).setFocus();
  QTest::keyClick(&Tab(page, 2), Qt::Key_Left);
  EXPECT_EQ(page.CurrentItem(), 0);
  EXPECT_EQ(rig.Shown(), "ControlFocusDriveCtl1");
}

struct SaveRow {
  const char* bench;
  bool withoutOther;
  Lines saved;
};

// The test of the focus drive saves the other controls, and theirs the focus drive.
TEST(ControlPage, SavingIsCrossed) {
  for (const SaveRow& row :
       {SaveRow{"Quay", false, {"Other.SaveData", "Stage.SaveData", "Focus.SaveData"}},
        SaveRow{"Lantern", false, {"Other.SaveData", "Focus.SaveData"}},
        SaveRow{"Pair", false, {"Stage.SaveData", "Focus.SaveData"}},
        SaveRow{"Deck", false, {"Focus.SaveData"}}, SaveRow{"Shell", false, {}},
        SaveRow{"Outpost", false, {"Other.SaveData", "Focus.SaveData"}},
        SaveRow{"Outpost", true, {"Other.SaveData"}}}) {
    ControlRig rig(row.bench);
    ControlSettingsCtl& page = rig.ShowPage();
    if (row.withoutOther) rig.k70().COther.curAutoZ = -1;
    rig.calls.clear();
    page.SaveData();
    EXPECT_EQ(rig.calls, row.saved) << row.bench;
    EXPECT_EQ(rig.journal.CallCount(), 0U);
  }
}

TEST(ControlPage, SavingGoesByTheUnitsAsTheyAreNow) {
  ControlRig rig("Outpost");
  rig.k70().COther.curAutoZ = -1;
  ControlSettingsCtl& page = rig.ShowPage();
  rig.k70().COther.curAutoZ = 1;
  rig.calls.clear();
  page.SaveData();
  EXPECT_EQ(rig.calls, (Lines{"Other.SaveData", "Focus.SaveData"}));
}

TEST(ControlPage, TheNosepiecePositionGoesToTheFocusDriveAlone) {
  ControlRig rig("Quay");
  ControlSettingsCtl& page = rig.ShowPage();
  page.SetNosePostiton();
  EXPECT_EQ(rig.calls, Lines{"Focus.SetNosePosition"});
}

TEST(ControlPage, WhenItIsShownTheFocusDriveIsLoadedAgain) {
  ControlRig rig("Lantern");
  ControlSettingsCtl& page = rig.ShowPage();
  for (int i = 0; i < 2; ++i) {
    page.hide();
    rig.calls.clear();
    page.show();
    EXPECT_EQ(rig.calls, Lines{"Focus.LoadData"});
  }
}

TEST(ControlPage, AWindowThatComesBackFromTheTaskBarLoadsNothing) {
  ControlRig rig("Lantern");
  ControlSettingsCtl& page = rig.ShowPage();
  QShowEvent restored;
  QSpontaneKeyEvent::setSpontaneous(&restored);
  qApp->notify(&page, &restored);  // sending it would make it the program's own
  EXPECT_TRUE(rig.calls.empty());
}

struct FiberRow {
  const char* what;
  bool installed;
  bool open;
  bool opens;
  bool answers;
};

TEST(ControlPage, FindsTheFiberIlluminatorInAnyState) {
  for (const FiberRow& row :
       {FiberRow{"missing", false, false, false, false}, FiberRow{"open", true, true, true, true},
        FiberRow{"closed", true, false, true, true},
        FiberRow{"without device", true, false, false, false}}) {
    Bench bench = benches::Named("Quay");
    bench.fiber.installed = row.installed;
    bench.fiber.open = row.open;
    bench.fiber.opens = row.opens;
    ControlRig rig(std::move(bench));
    ControlSettingsCtl& page = rig.ShowPage();
    EXPECT_EQ(rig.k70().COther.curFiberStatus, row.answers) << row.what;
    page.SendData();
    EXPECT_EQ(rig.journal.Writes(),
              row.answers ? (Lines{"SwitchEnable = int16(1)", "LED = int16(2)"}) : Lines{})
        << row.what;
    EXPECT_TRUE(rig.prompts.Boxes().empty()) << row.what;
  }
}

TEST(ControlPage, SendsWhatWasChosenForTheFiberIlluminator) {
  ControlRig rig("Quay");
  ControlSettingsCtl& page = rig.ShowPage();
  rig.k70().COther.curFiberSwEnable = 0;
  rig.k70().COther.curFiberLED = 1;
  page.SendData();
  EXPECT_EQ(rig.journal.Lines(), (Lines{"SwitchEnable = int16(0)", "LED = int16(1)"}));
}

TEST(ControlPage, ClosesTheFiberServerWhenItGoes) {
  for (const bool installed : {true, false}) {
    Bench bench = benches::Named("Quay");
    bench.fiber.installed = installed;
    ControlRig rig(std::move(bench));
    ControlSettingsCtl& page = rig.ShowPage();
    delete &page;
    EXPECT_EQ(rig.journal.Lines(), installed ? Lines{"Close()"} : Lines{});
  }
}

TEST(ControlPage, LoadsWhicheverCallFails) {
  std::size_t calls = 0;
  for (std::size_t k = 0; k <= calls; ++k) {
    Bench bench = benches::Named("Quay");
    bench.fiber.open = false;
    ControlRig rig(std::move(bench));
    ControlSettingsCtl* page = rig.Make();
    rig.journal.Clear();
    if (k > 0) rig.faults.FailCall(k);
    rig.Show(page);
    if (k == 0) calls = rig.journal.CallCount();
    EXPECT_EQ(rig.faults.Hits(), k > 0 ? 1U : 0U) << k;
    EXPECT_TRUE(rig.prompts.Boxes().empty()) << k;
    EXPECT_EQ(TabsOf(*page).substr(0, 3), "012") << k;
  }
  EXPECT_EQ(calls, 7U);
}

TEST(ControlPage, LoadsAndSavesWithoutAController) {
  ControlRig rig("Quay");
  ControlSettingsCtl& page = rig.ShowPage();
  rig.k70().Disconnect();
  rig.journal.Clear();
  page.LoadData();
  page.SaveData();
  page.SetNosePostiton();
  page.SendData();
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

}  // namespace
}  // namespace mortane::test

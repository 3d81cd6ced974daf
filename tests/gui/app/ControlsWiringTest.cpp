// The page of the drives and controls in the main window, with its own sub-pages: what they have to
// do with other areas, with the joystick and with the fiber illuminator.
#include <QAbstractButton>
#include <QFrame>
#include <filesystem>

#include "AppRig.h"
#include "app/ControlSettingsCtl.h"
#include "app/MainPages.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlOtherCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "drives/clsControlOther.h"
#include "interlocks/clsInterLockOther.h"
#include "support/Rows.h"
#include "support/Sample.h"
#include "support/TempFolder.h"
#include "switches/JoypadSwitchSettingCtl.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"
#include "widgets/CommandKey.h"
#include "widgets/OptionGroup.h"
#include "widgets/PageButton.h"
#include "widgets/SectionBar.h"

namespace mortane::test {
namespace {

constexpr std::size_t kControls = 5;

struct StartedRig : AppRig {
  explicit StartedRig(Bench bench, std::vector<std::string> arguments = {})
      : AppRig(std::move(bench), std::move(arguments)) {
    Start();
  }
  explicit StartedRig(const char* benchName) : StartedRig(benches::Named(benchName)) {}

  ControlSettingsCtl& page() { return *form->ControlSettingsCtl1; }
};

// The simulated microscope, which is told in a box, and which has the fiber illuminator.
struct QuayRig : AppRig {
  QuayRig() : AppRig(benches::Named("Quay"), {"/SIM"}) {
    prompts.AcceptAnyBox();
    Start();
    prompts.AcceptAnyBox(false);
  }
  void Send() {
    QTest::mouseClick(form->ImageCommand[2], Qt::LeftButton);
    QApplication::processEvents();
  }
};

TEST(ControlsWiring, TheWindowHoldsItsSixPagesByName) {
  StartedRig rig("Harbour");
  for (const char* name :
       {"SystemSettingsCtl1", "ObjectiveSettingsCtl1", "FilterQubeSettingsCtl1",
        "CondenserSettingsCtl1", "InterlockSettingsCtl1", "ControlSettingsCtl1"}) {
    EXPECT_EQ(rig.Find<Page>(name).objectName(), name);
  }
}

struct BenchRow {
  const char* bench;
  bool enabled;
};

TEST(ControlsWiring, ThePageIsEnabledByAnyOfItsUnits) {
  for (const BenchRow& row :
       {BenchRow{"Harbour", true}, BenchRow{"Lantern", true}, BenchRow{"Hub", true},
        BenchRow{"Deck", true}, BenchRow{"Watch", true}, BenchRow{"Shell", false}}) {
    StartedRig rig(row.bench);
    EXPECT_EQ(rig.form->ImageButton[kControls]->isEnabled(), row.enabled) << row.bench;
    EXPECT_EQ(rig.page().objectName(), "ControlSettingsCtl1");
  }
}

TEST(ControlsWiring, AJoystickAloneDoesNotEnableThePage) {
  StartedRig rig("Shell");
  EXPECT_EQ(rig.joystick.status, kJoystickOk);
  EXPECT_FALSE(rig.form->ImageButton[kControls]->isEnabled());
}

TEST(ControlsWiring, EachTabHasItsOwnPage) {
  StartedRig rig("Harbour");
  EXPECT_NE(dynamic_cast<ControlFocusDriveCtl*>(&*rig.page().ControlFocusDriveCtl1), nullptr);
  EXPECT_NE(dynamic_cast<ControlXYStageCtl*>(&*rig.page().ControlXYStageCtl1), nullptr);
  EXPECT_NE(dynamic_cast<ControlOtherCtl*>(&*rig.page().ControlOtherCtl1), nullptr);
  EXPECT_NE(dynamic_cast<SwitchSettingCtl*>(&*rig.page().SwitchSettingCtl1), nullptr);
  EXPECT_NE(dynamic_cast<TactorSwitchSettingCtl*>(&*rig.page().ControlTactorSwitchCtl1), nullptr);
  EXPECT_NE(dynamic_cast<JoypadSwitchSettingCtl*>(&*rig.page().JoypadSwitchSettingCtl1), nullptr);
}

TEST(ControlsWiring, EveryTabOpensOnEveryMicroscope) {
  for (const std::string& bench : ColumnsOfRow(1, benches::Names(), 2)) {
    if (bench == "Attic" || bench == "Crowd" || bench == "Quay") continue;  // told in boxes
    StartedRig rig(bench.c_str());
    rig.prompts.AcceptAnyBox();  // a drive that does not move says so
    QTest::mousePress(rig.form->ImageButton[kControls], Qt::LeftButton);
    for (int tab = 0; tab < controltab::kCount; ++tab) {
      QAbstractButton* option = rig.page().optControl->option(tab);
      if (!option->isVisible()) continue;
      QTest::mouseClick(option, Qt::LeftButton);
      EXPECT_EQ(rig.page().CurrentItem(), tab) << bench;
      EXPECT_TRUE(rig.page().shownSubPage()->isVisible()) << bench << tab;
    }
  }
}

TEST(ControlsWiring, TheFocusDrivesCompensationDecidesWhetherItFollowsTheNosepiece) {
  StartedRig rig("Harbour");
  clsK70& k70 = GetK70();
  auto& focus = dynamic_cast<ControlFocusDriveCtl&>(*rig.page().ControlFocusDriveCtl1);
  k70.ILOther.Status(accessory::kZFocusDrive, 0);
  ASSERT_EQ(k70.ILOther.Status(accessory::kZFocusDrive), 0);
  focus.optFocusCompensation->select(2);
  focus.optFocusCompensation->select(1);
  EXPECT_EQ(k70.ILOther.Status(accessory::kZFocusDrive), 1);
  focus.optFocusCompensation->select(2);
  EXPECT_EQ(k70.ILOther.Status(accessory::kZFocusDrive), 0);
}

// No switch changes a knob's speed any more: the stage's knob, which was manual, becomes automatic.
TEST(ControlsWiring, TheSwitchPagesSetTheKnobOfItsOwnDrive) {
  for (const bool body : {true, false}) {
    StartedRig rig("Harbour");
    clsK70& k70 = GetK70();
    ControlSettingsCtl& page = rig.page();
    auto& switches = dynamic_cast<SwitchRowsCtl&>(body ? *page.SwitchSettingCtl1
                                                       : *page.ControlTactorSwitchCtl1);
    for (std::int16_t i = 1; i <= clsDbSwitch::SwitchCount; ++i) k70.curSwitch.Func(i, 0);
    for (std::int16_t i = 1; i <= clsControlTactor::SwitchCount; ++i) k70.curTactor.Func(i, 0);
    k70.COther.curAutoZ = 1;
    k70.COther.curAutoXY = 0;
    rig.prompts.ExpectBox("XYstage Knob Setting is changed to Auto mode.", 0);
    switches.cmdAllClear->click();
    EXPECT_TRUE(rig.prompts.AllAnswersUsed()) << body;
    EXPECT_EQ(k70.COther.curAutoZ, 1) << body;
    EXPECT_EQ(k70.COther.curAutoXY, 1) << body;
  }
}

TEST(ControlsWiring, TheHandControllersSideCanBeSetWhereThereIsAStage) {
  for (const bool stage : {true, false}) {
    Bench bench = benches::Named("Harbour");
    if (!stage) Unfit(bench, accessory::kXYStage);
    StartedRig rig(std::move(bench));
    auto& tactor = dynamic_cast<TactorSwitchSettingCtl&>(*rig.page().ControlTactorSwitchCtl1);
    EXPECT_EQ(tactor.frmHandle->isEnabled(), stage);
  }
}

TEST(ControlsWiring, AHandControllersFileThatIsRefusedIsToldOnce) {
  const TempFolder folder;
  StartedRig rig("Harbour");
  auto& tactor = dynamic_cast<TactorSwitchSettingCtl&>(*rig.page().ControlTactorSwitchCtl1);
  const std::string missing = folder.Path("missing.xml");
  rig.prompts.ExpectFileToOpen(missing);
  rig.prompts.AcceptAnyBox();
  tactor.btnReadFileOpen->click();
  EXPECT_EQ(rig.prompts.Boxes().size(), 1U);
}

TEST(ControlsWiring, TheHandControllersFileIsWrittenAndReadBack) {
  const TempFolder folder;
  StartedRig rig("Harbour");
  clsK70& k70 = GetK70();
  auto& tactor = dynamic_cast<TactorSwitchSettingCtl&>(*rig.page().ControlTactorSwitchCtl1);
  const std::string file = folder.Path("hand.xml");
  k70.curTactor.Func(2, 7);
  rig.prompts.ExpectFileToSave(file);
  tactor.Command1->click();
  k70.curTactor.Func(2, 0);
  rig.prompts.ExpectFileToOpen(file);
  rig.prompts.AcceptAnyBox();
  tactor.btnReadFileOpen->click();
  EXPECT_EQ(k70.curTactor.Func(2), 7);
}

TEST(ControlsWiring, TheJoypadsFunctionsAreKeptInTheUsersFolder) {
  const TempFolder folder;
  RigLibrary library(benches::Named("Harbour"));
  ScriptedJoystick joystick;
  {
    MortaneMainForm form({.k70 = ProvideK70(library.library, library.prompts),
                          .library = library.library,
                          .prompts = library.prompts,
                          .joystick = joystick,
                          .arguments = {"mortane"},
                          .applicationData = folder.Path("data")},
                         MainPages());
  }
  ReleaseK70();
  int files = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path("data"))) {
    if (entry.is_regular_file()) ++files;
  }
  EXPECT_EQ(files, 1);
}

TEST(ControlsWiring, TheFiberIlluminatorIsSentToAfterTheModelAndClosedAtTheEnd) {
  QuayRig rig;
  GetK70().COther.curFiberLED = 1;
  rig.Send();
  ASSERT_GE(rig.journal.Writes().size(), 2U);
  const std::vector<std::string> last(rig.journal.Writes().end() - 2, rig.journal.Writes().end());
  EXPECT_EQ(last, (std::vector<std::string>{"SwitchEnable = int16(1)", "LED = int16(1)"}));
  rig.journal.Clear();
  rig.form.reset();
  EXPECT_EQ(rig.journal.Lines().front(), "Close()");
}

TEST(ControlsWiring, AFiberIlluminatorThatRefusesASendIsToldInABox) {
  for (const char* call : {"put SwitchEnable", "put LED"}) {
    QuayRig rig;
    rig.faults.Add({call});
    rig.prompts.ExpectBox("Simulated failure.", box::kCritical);
    rig.Send();
    EXPECT_TRUE(rig.prompts.AllAnswersUsed()) << call;
    EXPECT_TRUE(rig.form->isEnabled()) << call;
  }
}

}  // namespace
}  // namespace mortane::test

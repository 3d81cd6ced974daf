// The Select command, and commands whose controller calls fail.
#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

#include "AppRig.h"
#include "CommandRig.h"
#include "app/SelFileItemDlg.h"
#include "app/SelScopeDlg.h"
#include "app/SystemNameCtl.h"
#include "app/SystemSettingsCtl.h"
#include "gui/support/EventLoop.h"
#include "support/Sample.h"
#include "support/TempFolder.h"
#include "widgets/CommandKey.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

Bench Three() {
  return Microscopes({"Alpha", "Beta", "Gamma"});
}

// The window connected to one of three microscopes by its name.
struct SelectRig : CommandRig {
  SelectRig() : CommandRig(Three(), {"Alpha"}) {}
  void Select(int line) {
    const WhenShown<SelScopeDlg> person([line](SelScopeDlg& dialog) {
      dialog.List1->setIndex(line);
      dialog.OkButton->click();
    });
    form().MenuConnectSelect->trigger();
  }
  std::vector<bool> Transfers() {
    return {form().ImageCommand[1]->isEnabled(), form().ImageCommand[2]->isEnabled(),
            form().MenuConnectReceive->isEnabled(), form().MenuConnectSend->isEnabled()};
  }
  // All other controls that start a command.
  bool OthersEnabled() {
    bool enabled = form().ImageCommand[0]->isEnabled() && form().ImageCommand[3]->isEnabled() &&
                   form().MenuFileOpen->isEnabled() && form().MenuFileSave->isEnabled() &&
                   form().FileMenuExit->isEnabled() && form().MenuConnectSelect->isEnabled();
    for (const QAction* button : form().Toolbar1->actions()) {
      enabled = enabled && (button->isSeparator() || button->isEnabled());
    }
    return enabled;
  }
};

TEST(Select, OfTheConnectedDeviceChangesNothing) {
  SelectRig rig;
  rig.Select(0);
  EXPECT_EQ(Calls(rig.app.prompts), Lines{"flush"});
  EXPECT_EQ(GetK70().lConnectDevice, 1);
  EXPECT_TRUE(rig.fakes.calls.empty());
  EXPECT_TRUE(rig.app.journal.Writes().empty());
}

TEST(Select, ConnectsReceivesAndRefreshesThePages) {
  SelectRig rig;
  rig.fakes.enabled = {true, false, true, true, true, true};
  QTest::mousePress(rig.form().ImageButton[4], Qt::LeftButton);
  rig.Select(1);
  EXPECT_EQ(GetK70().lConnectDevice, 2);
  EXPECT_EQ(GetK70().SystemName, "Beta");
  Lines expected = OfAllPages("LoadData");
  for (const char* line : {"0.LoadData", "2.LoadData", "3.LoadData", "4.LoadData", "5.LoadData",
                           "5.SetNosePostiton"}) {
    expected.push_back(line);
  }
  EXPECT_EQ(rig.fakes.calls, expected);
  EXPECT_FALSE(rig.form().ImageButton[1]->isEnabled());
  EXPECT_TRUE(rig.form().optMenu[0]->isChecked()) << "the system page comes up";
  EXPECT_EQ(Calls(rig.app.prompts), (Lines{"pointer 11", "pointer 0", "flush", "flush"}));
}

TEST(Select, EnablesAPageThatTheNewDeviceHas) {
  Bench bench = Microscopes({"Alpha", "Beta", "Gamma"});
  CommandRig rig(std::move(bench), {"Alpha"});
  rig.form().ImageButton[2]->setEnabled(false);
  const WhenShown<SelScopeDlg> person([](SelScopeDlg& dialog) {
    dialog.List1->setIndex(1);
    dialog.OkButton->click();
  });
  rig.form().MenuConnectSelect->trigger();
  EXPECT_TRUE(rig.form().ImageButton[2]->isEnabled());
}

TEST(Select, LetsTheOldDeviceGoBeforeItTakesTheNewOne) {
  SelectRig rig;
  rig.Select(1);
  const Lines& lines = rig.app.journal.Lines();
  const auto at = [&](const char* line) { return std::find(lines.begin(), lines.end(), line); };
  ASSERT_NE(at("DeviceList.Item(1).Disconnect()"), lines.end());
  EXPECT_LT(at("DeviceList.Item(1).Disconnect()"), at("DeviceList.Item(2).Connect()"));
  RigLibrary other(benches::Named("Quay"));
  clsK70 holder(other.library, other.prompts);
  EXPECT_TRUE(holder.CreateConnectionName("1"));
  EXPECT_FALSE(holder.CreateConnectionName("2"));
}

TEST(Select, GoesOnWhenTheOldDeviceCannotBeLetGo) {
  SelectRig rig;
  rig.app.faults.Add({"DeviceList.Item(1).Disconnect"});
  rig.app.prompts.ExpectBox("*** Disconnect Error!!(80004005)", 0);
  rig.Select(1);
  EXPECT_EQ(GetK70().lConnectDevice, 2);
}

TEST(Select, OfAHeldDeviceStopsAndDisablesExactlyTheTransfers) {
  SelectRig rig;
  RigLibrary other(benches::Named("Quay"));
  clsK70 holder(other.library, other.prompts);
  ASSERT_TRUE(holder.CreateConnectionName("2"));
  rig.app.prompts.ExpectBox("Other Application has already used this Microscope.", 0);
  rig.Select(1);
  EXPECT_EQ(rig.Transfers(), std::vector<bool>(4, false));
  EXPECT_TRUE(rig.OthersEnabled());
  EXPECT_EQ(GetK70().lConnectDevice, -1);
  EXPECT_EQ(rig.app.CountLog("flush"), 0) << "this path drops no input";
  EXPECT_TRUE(rig.fakes.calls.empty());

  rig.app.prompts.AcceptAnyBox();
  rig.Tool(5);  // the tool bar still tries
  EXPECT_TRUE(rig.app.prompts.Boxes().back().text.starts_with("System Name"));
  EXPECT_EQ(rig.app.prompts.Boxes().back().style, 16);
  rig.Select(0);
  EXPECT_EQ(rig.Transfers(), std::vector<bool>(4, true));
  EXPECT_EQ(GetK70().lConnectDevice, 1);
}

// What the model still holds was not received from any microscope.
TEST(Select, WithoutAConnectionATransferThatIsTriedLeavesNothingToCompareWith) {
  for (const int tool : {5, 6}) {
    SelectRig rig;
    RigLibrary other(benches::Named("Quay"));
    clsK70 holder(other.library, other.prompts);
    ASSERT_TRUE(holder.CreateConnectionName("2"));
    rig.app.prompts.AcceptAnyBox();
    rig.Select(1);
    ASSERT_EQ(GetK70().lConnectDevice, -1);
    rig.Tool(tool);
    GetK70().SystemName = "Bay 4";
    QTest::keyClick(&rig.form(), Qt::Key_Shift);
    DeliverAll();
    EXPECT_FALSE(rig.form().ImageButton[0]->isPending()) << tool;
  }
}

TEST(Select, WithoutAConnectionOpenAndSaveStillWork) {
  SelectRig rig;
  RigLibrary other(benches::Named("Quay"));
  clsK70 holder(other.library, other.prompts);
  ASSERT_TRUE(holder.CreateConnectionName("2"));
  rig.app.prompts.ExpectBox("Other Application has already used this Microscope.", 0);
  rig.Select(1);
  const TempFolder folder;
  rig.app.prompts.ExpectFileToSave(folder.Path("a.xml"));
  rig.form().MenuFileSave->trigger();
  rig.app.prompts.ExpectFileToOpen(folder.Path("a.xml"));
  const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  rig.form().MenuFileOpen->trigger();
  EXPECT_EQ(rig.app.prompts.Boxes().size(), 1U);
}

// The window's own pages ask the controller as they are loaded, and do without an answer. The
// drives and the other controls tell it.
TEST(Select, WithoutAConnectionAFileIsOpenedOnAllPages) {
  AppRig rig(Three(), {"Alpha"});
  rig.Start();
  const TempFolder folder;
  rig.prompts.ExpectFileToSave(folder.Path("a.xml"));
  rig.form->MenuFileSave->trigger();
  rig.faults.Add({"DeviceList.Item(2).Connect"});
  rig.prompts.ExpectBox("Device Connect Error.", 16);
  {
    const WhenShown<SelScopeDlg> person([](SelScopeDlg& dialog) {
      dialog.List1->setIndex(1);
      dialog.OkButton->click();
    });
    rig.form->MenuConnectSelect->trigger();
  }
  ASSERT_EQ(GetK70().lConnectDevice, -1);
  rig.prompts.ClearRecords();
  rig.prompts.AcceptAnyBox();
  GetK70().SystemName = "Bay 4";
  rig.prompts.ExpectFileToOpen(folder.Path("a.xml"));
  const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  rig.form->MenuFileOpen->trigger();
  EXPECT_EQ(GetK70().SystemName, "Alpha");
  Lines told;
  for (const auto& box : rig.prompts.Boxes()) told.push_back(box.text);
  EXPECT_EQ(told, (Lines{"Data_Load Error3", "MoveStart Error!!", "MoveStart Error!!"}));
}

TEST(Select, ThatCannotConnectStopsAndLeavesTheControlsAsTheyWere) {
  SelectRig rig;
  rig.app.faults.Add({"DeviceList.Item(2).Connect"});
  rig.app.prompts.ExpectBox("Device Connect Error.", 16);
  rig.Select(1);
  EXPECT_EQ(rig.Transfers(), std::vector<bool>(4, true));
  EXPECT_EQ(rig.app.CountLog("flush"), 0) << "this path drops no input";
  EXPECT_TRUE(rig.fakes.calls.empty());
  {
    RigLibrary other(benches::Named("Quay"));
    clsK70 refused(other.library, other.prompts);
    EXPECT_FALSE(refused.CreateConnectionName("2")) << "the name is kept";
  }

  rig.app.faults.Clear();
  rig.Select(1);
  EXPECT_EQ(GetK70().lConnectDevice, 2) << "the same device can be tried again";
}

using CommandRow = Control<QAction> MortaneMainForm::*;

// Each controller call that the model makes for a command fails in turn, and none of them unseen.
TEST(Commands, SurviveAFailureOfWhicheverControllerCall) {
  for (const CommandRow command :
       {&MortaneMainForm::MenuConnectReceive, &MortaneMainForm::MenuConnectSend}) {
    CommandRig rig;
    rig.app.prompts.AcceptAnyBox();
    const auto run = [&](std::size_t failing) {
      GetK70().SystemName = "call " + std::to_string(failing);
      rig.app.faults.Clear();
      if (failing > 0) rig.app.faults.FailCall(failing);
      rig.app.prompts.ClearRecords();
      const std::size_t before = rig.app.journal.CallCount();
      (rig.form().*command)->trigger();
      EXPECT_EQ(rig.app.prompts.PointerBalance(), 0) << failing;
      EXPECT_TRUE(rig.form().isEnabled()) << failing;
      EXPECT_EQ(Calls(rig.app.prompts).back(), "flush") << failing;
      return rig.app.journal.CallCount() - before;
    };
    const std::size_t calls = run(0);
    ASSERT_GT(calls, 0U);
    for (const std::size_t k : SampleOf(calls, 37)) {
      run(k);
      EXPECT_FALSE(rig.app.prompts.Boxes().empty()) << "call " << k << " failed unseen";
    }
  }
}

// Pages ask the controller too; they do without an answer.
TEST(Commands, SurviveAFailureOfWhatThePagesAsk) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  rig.prompts.AcceptAnyBox();
  rig.form->MenuConnectReceive->trigger();
  const std::size_t calls = rig.journal.CallCount();
  for (const std::size_t k : SampleOf(calls, 179)) {
    rig.faults.Clear();
    rig.faults.FailCall(k);
    rig.form->MenuConnectReceive->trigger();
    EXPECT_EQ(rig.prompts.PointerBalance(), 0) << k;
    EXPECT_EQ(Calls(rig.prompts).back(), "flush") << k;
  }
}

TEST(Select, SurvivesAFailureOfEachControllerCallInTurn) {
  for (const std::size_t k : SampleOf(60, 7)) {
    SelectRig rig;
    rig.app.prompts.AcceptAnyBox();
    const WhenShown<SelScopeDlg> person([&](SelScopeDlg& dialog) {
      dialog.List1->setIndex(1);
      rig.app.faults.FailCall(k);
      dialog.OkButton->click();
      if (dialog.isVisible()) dialog.reject();
    });
    rig.form().MenuConnectSelect->trigger();
    EXPECT_EQ(rig.app.prompts.PointerBalance(), 0) << k;
    EXPECT_TRUE(rig.form().isEnabled()) << k;
  }
}

}  // namespace
}  // namespace mortane::test

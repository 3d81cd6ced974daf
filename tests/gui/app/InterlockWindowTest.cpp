// The interlock page in the main window, while commands load other data into the model.
#include <gtest/gtest.h>

#include <QAction>
#include <QPushButton>
#include <QRadioButton>

#include "app/MainPages.h"
#include "app/SelFileItemDlg.h"
#include "app/SelScopeDlg.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "gui/app/AppRig.h"
#include "gui/support/PageActs.h"
#include "interlocks/InterlockObservationCtl.h"
#include "interlocks/InterlockOffsetCtl.h"
#include "interlocks/InterlockOtherCtl.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "interlocks/InterlockStates.h"
#include "interlocks/clsInterLockObservation.h"
#include "support/Rows.h"
#include "support/TempFolder.h"
#include "widgets/CheckToggle.h"
#include "widgets/ComboBox.h"
#include "widgets/CommandKey.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/SectionBar.h"

namespace mortane::test {
namespace {

constexpr std::size_t kInterlockPage = 4;

// What a settings file holds, and what it leaves out of the interlocks and the drives.
std::string ModelText(const clsK70& k70) {
  DomDocument document;
  k70.WriteSections(document);
  return document.ToText() + "\n" + NosepieceStates(k70.ILOther) + "\n" +
         LightPathStates(k70.ILOther) + "\n" + ZoomStates(k70.ILOther) + "\n" +
         std::to_string(k70.CZDrive.curFocusCompensation) + " " +
         std::to_string(k70.CXYDrive.curFocusCompensation);
}

struct WindowRow {
  const char* bench;
  bool enabled;
};

TEST(InterlockWindow, TheWindowEnablesThePageWhereOneOfItsUnitsIs) {
  const PageRow row = MainPages()[kInterlockPage];
  ASSERT_TRUE(row.make);
  for (const WindowRow& given :
       {WindowRow{"Harbour", true}, WindowRow{"Pair", true}, WindowRow{"Hub", true},
        WindowRow{"Relay", false}, WindowRow{"Watch", false}, WindowRow{"Shell", false}}) {
    Rig rig(given.bench);
    rig.ConnectAndReceive();
    EXPECT_EQ(row.isEnabled(rig.k70), given.enabled) << given.bench;
  }
  Bench bench = benches::Named("Harbour");
  for (std::int32_t k = 1; k <= 12; ++k) Fit(bench.instruments.back(), k, kNotMounted);
  Rig compensation(std::move(bench));
  compensation.ConnectAndReceive();
  ASSERT_FALSE(compensation.k70.ILObservation.IsEnable() || compensation.k70.ILOther.IsEnable());
  EXPECT_TRUE(row.isEnabled(compensation.k70)) << "for the third unit alone";
}

TEST(InterlockWindow, TheButtonOfThePageSaysWhyItIsDisabled) {
  AppRig rig(benches::Named("Shell"));
  rig.Start();
  EXPECT_EQ(rig.form->ImageButton[kInterlockPage]->toolTip(),
            "Nothing is mounted that follows another accessory or is compensated.");
}

// The window with the page on show and the focus in the switch of the lamp.
class ShownInterlockPage : public testing::Test {
 protected:
  ShownInterlockPage() {
    rig.Start();
    rig.form->activateWindow();
    QTest::mouseClick(rig.form->ImageButton[kInterlockPage], Qt::LeftButton);
    QApplication::processEvents();
    lamp().setFocus();
  }

  InterlockSettingsCtl& page() { return *rig.form->InterlockSettingsCtl1; }
  CheckToggle& lamp() { return *page().InterlockObservationCtl1->CheckAccessories[0]; }
  CheckToggle& zFocus() { return *page().InterlockOtherCtl1->CheckNosepiece[4]; }
  ComboBox& factor() { return *page().InterlockOffsetCtl1->ComboNDFilter; }
  void Select(int line) {
    const WhenShown<SelScopeDlg> person([line](SelScopeDlg& dialog) {
      dialog.List1->setIndex(line);
      dialog.OkButton->click();
    });
    rig.form->MenuConnectSelect->trigger();
  }

  AppRig rig{List({"Quay", "Harbour", "Lantern", "Deck"}), {"Harbour"}};
};

TEST_F(ShownInterlockPage, BearsItsName) {
  EXPECT_EQ(rig.form->findChild<QWidget*>("InterlockSettingsCtl1"), &page());
  EXPECT_TRUE(page().isVisible());
  EXPECT_TRUE(lamp().isChecked());
  EXPECT_TRUE(zFocus().isChecked());
}

// Those of what the page shows; loading the window's other pages prepares the drives for moves.
std::vector<std::string> WritesOfSettings(const controller::Journal& journal) {
  std::vector<std::string> writes = journal.Writes();
  std::erase_if(writes, [](const std::string& line) {
    return line.find("Interlock") == std::string::npos &&
           line.find("OffsetCode") == std::string::npos &&
           line.find("FocusCompensation") == std::string::npos;
  });
  return writes;
}

TEST_F(ShownInterlockPage, AReceiveShowsWhatTheControllerHolds) {
  Instrument& harbour = rig.simulated.bench().instruments[1];
  harbour.Interlock(4, 1) = 0;
  harbour.Interlock(12, 3) = 0;
  harbour.zDrive.focusCompensation = 1;
  harbour.Accessory(1).offsetCode = 2;
  rig.form->MenuConnectReceive->trigger();
  EXPECT_TRUE(lamp().hasFocus());
  EXPECT_FALSE(lamp().isChecked());
  EXPECT_FALSE(zFocus().isChecked());
  EXPECT_EQ(factor().currentText(), "0.90");
  EXPECT_EQ(GetK70().ILObservation.Status(4), 0);
  EXPECT_EQ(GetK70().CZDrive.curFocusCompensation, 1);
  EXPECT_EQ(WritesOfSettings(rig.journal), std::vector<std::string>{});
}

TEST_F(ShownInterlockPage, AReceiveThatGetsNoAnswerDisablesTheSwitchUnderTheFocus) {
  rig.faults.Add({Interlock(4, 1)});
  rig.prompts.AcceptAnyBox();
  rig.form->MenuConnectReceive->trigger();
  QApplication::processEvents();
  EXPECT_FALSE(lamp().isEnabled());
  EXPECT_TRUE(lamp().isChecked());
  EXPECT_EQ(GetK70().ILObservation.Status(4), -1);
  EXPECT_EQ(GetK70().ILObservation.Status(1), 0);
}

TEST_F(ShownInterlockPage, OpeningAFileShowsWhatItHolds) {
  const TempFolder folder;
  rig.prompts.ExpectFileToOpen(
      folder.Write("a.xml", R"(<Setup><INTERLOCK><OBSERVATION POSITION="lamp" CODE="False"/>)"
                            R"(<OTHER POSITION="FoucusStage" CODE="False"/>)"
                            R"(<OFFSET POSITION="ND" CODE="x"/></INTERLOCK></Setup>)"));
  const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  rig.form->MenuFileOpen->trigger();
  EXPECT_FALSE(lamp().isChecked());
  EXPECT_FALSE(zFocus().isChecked());
  EXPECT_EQ(GetK70().CZDrive.curFocusCompensation, 1) << "its switch has gone off";
  EXPECT_EQ(factor().currentText(), "1.00");
}

TEST_F(ShownInterlockPage, SelectingAnotherMicroscopeShowsItsStates) {
  rig.journal.Clear();
  Select(1);
  ASSERT_EQ(GetK70().lConnectDevice, 2);
  EXPECT_FALSE(page().isVisible()) << "the system page comes up";
  EXPECT_FALSE(lamp().isChecked());
  EXPECT_FALSE(zFocus().isChecked());
  EXPECT_EQ(GetK70().CZDrive.curFocusCompensation, 1);
  EXPECT_TRUE(page().InterlockOtherCtl1->CheckNosepiece[5]->isHidden()) << "its body is of V1.20";
  Select(2);
  ASSERT_EQ(GetK70().lConnectDevice, 3);
  EXPECT_TRUE(rig.form->ImageButton[kInterlockPage]->isEnabled());
  EXPECT_EQ(WritesOfSettings(rig.journal), std::vector<std::string>{});
}

TEST_F(ShownInterlockPage, WithoutAConnectionThePageIsStillLoadedAndShown) {
  Select(1);
  rig.faults.Add({"DeviceList.Item(1).Connect"});
  rig.prompts.AcceptAnyBox();
  Select(0);
  ASSERT_EQ(GetK70().lConnectDevice, -1);
  rig.form->optMenu[kInterlockPage]->setChecked(true);
  EXPECT_TRUE(page().isVisible());
  page().LoadData();
}

TEST_F(ShownInterlockPage, GoingToItAgainLoadsTheSecondSubPage) {
  GetK70().ILOther.Status(12, 0);
  rig.form->optMenu[0]->setChecked(true);
  EXPECT_TRUE(zFocus().isChecked());
  rig.form->optMenu[kInterlockPage]->setChecked(true);
  EXPECT_FALSE(zFocus().isChecked());
  GetK70().ILOther.Status(12, 1);
  QTest::mouseClick(rig.form->ImageButton[kInterlockPage], Qt::LeftButton);
  EXPECT_FALSE(zFocus().isChecked()) << "it is on show";
}

TEST_F(ShownInterlockPage, SendWritesTheEditsAndKeepsTheLookOfTheSwitches) {
  ClickButton(lamp());
  ClickButton(*page().InterlockObservationCtl1->CheckAccessories[3]);
  page().optSettings->select(2);
  ChooseRow(factor(), 8);
  page().optSettings->select(0);
  lamp().clearFocus();
  const std::string edited = ModelText(GetK70());
  const QImage before = lamp().grab().toImage();
  bool seen = false;
  rig.prompts.onCall = [&] {
    if (rig.prompts.Log().back() != "wait 3000") return;
    seen = true;
    EXPECT_FALSE(lamp().isEnabled()) << "the window is busy";
    EXPECT_EQ(lamp().grab().toImage(), before);
  };
  rig.form->MenuConnectSend->trigger();
  EXPECT_TRUE(seen);
  Instrument& harbour = rig.simulated.bench().instruments[1];
  EXPECT_EQ(harbour.Interlock(4, 1), 0);
  EXPECT_EQ(harbour.Interlock(1, 1), 1);
  EXPECT_EQ(harbour.Accessory(1).offsetCode, 8);
  EXPECT_EQ(ModelText(GetK70()), edited);
}

TEST_F(ShownInterlockPage, ABusyWindowStoresNothing) {
  const std::string before = ModelText(GetK70());
  rig.form->setEnabled(false);
  rig.form->setEnabled(true);
  EXPECT_EQ(ModelText(GetK70()), before);
}

}  // namespace
}  // namespace mortane::test

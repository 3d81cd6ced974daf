// The dots at controls and sections of what is not sent: their words, when they come and go, and
// the way from the list of changes to the control.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>

#include "AppRig.h"
#include "ShownMarks.h"
#include "app/ControlSettingsCtl.h"
#include "app/DifferencesDlg.h"
#include "app/ItemPlaces.h"
#include "app/SelScopeDlg.h"
#include "app/SystemNameCtl.h"
#include "app/SystemSettingsCtl.h"
#include "drawings/TurretDrawing.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "filters/clsFilter.h"
#include "gui/support/PageActs.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOther.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"
#include "record/ModelItems.h"
#include "record/SentItems.h"
#include "support/Rows.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"
#include "widgets/ComboBox.h"
#include "widgets/LatePage.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

using Marks = std::set<std::string>;

class MarksOf : public testing::Test {
 protected:
  explicit MarksOf(Bench bench = benches::Named("Harbour"), Lines arguments = {})
      : rig(std::move(bench), std::move(arguments)) {
    rig.Start();
    MakeLoadedPages(*rig.form);
  }

  void Look() {
    QTest::keyClick(rig.form.get(), Qt::Key_Shift);
    QApplication::processEvents();
  }
  Marks Shown() {
    Look();
    return ShownMarks(*rig.form);
  }
  void ShowPage(std::size_t page) {
    QTest::mouseClick(rig.form->ImageButton[page], Qt::LeftButton);
    QApplication::processEvents();
  }
  void ShowSection(std::size_t page, ContainerPage& container, int section) {
    ShowPage(page);
    ClickButton(*container.sections()->option(section));
  }
  TextField& Name() { return *rig.form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName; }
  void TypeName(const char* text) {
    TypeInto(Name(), text);
    QTest::keyClick(&Name(), Qt::Key_Return);
    QApplication::processEvents();
  }
  // The row of the list of changes that says so; activates it.
  void GoToRow(const char* item) {
    Look();
    const WhenShown<DifferencesDlg> person([item](DifferencesDlg& dialog) {
      for (QTreeWidgetItemIterator row(dialog.List1); *row != nullptr; ++row) {
        if ((*row)->text(0) != item) continue;
        dialog.List1->setCurrentItem(*row);
        QTest::keyClick(dialog.List1, Qt::Key_Return);
        return;
      }
      ADD_FAILURE() << "no row " << item;
      dialog.reject();
    });
    rig.form->findChild<QToolButton*>("ButtonPending")->click();
    QApplication::processEvents();
  }

  AppRig rig;
};

TEST(ItemPlaces, StandForEveryKindThatIsSent) {
  for (std::size_t i = 0; i < kItemKinds; ++i) {
    const auto kind = static_cast<ItemKind>(i);
    const bool shown = std::any_of(ItemPlaces().begin(), ItemPlaces().end(),
                                   [kind](const ItemPlace& place) { return place.kind == kind; });
    EXPECT_EQ(shown, !TransferOf(kind).empty()) << i;
  }
}

TEST(ItemPlaces, StandForEveryPositionThatIsAWord) {
  for (const ItemPlace& place : ItemPlaces()) {
    for (const std::string_view word : PositionWords(place.kind)) {
      const ConfigurationItem item{{"", "", std::string(word), ""}, place.kind, "True", {}};
      const bool follows = place.place != nullptr && place.place(item.key.position) >= 0;
      const bool named =
          std::any_of(ItemPlaces().begin(), ItemPlaces().end(), [&](const ItemPlace& other) {
            return other.kind == place.kind && other.position == word;
          });
      const bool isWord = place.place != nullptr || named;
      EXPECT_TRUE(isWord) << word;
      if (place.kind == ItemKind::ObservationInterlock) {
        EXPECT_TRUE(follows) << word;
      }
    }
    if (place.place != nullptr) {
      EXPECT_LT(place.place("x"), 0) << place.control;
    }
  }
}

TEST_F(MarksOf, AFieldSaysWhatWasThereAndLosesItsDotWhenThatIsPutBack) {
  EXPECT_EQ(Shown(), Marks());
  TypeName("Bay 4");
  EXPECT_EQ(Shown(), (Marks{"SystemNameCtl1 TextSystemName: not sent: was Harbour"}));
  TypeName("Harbour");
  EXPECT_EQ(Shown(), Marks());
}

TEST_F(MarksOf, ABlankNameSaysSo) {
  GetK70().DbNosepiece.Set_DbNosepiece(1, "", 0, 0, "0", "0", "0", 0);
  rig.form->MenuConnectSend->trigger();
  ShowSection(1, *rig.form->ObjectiveSettingsCtl1, 1);
  auto& name = *rig.form->ObjectiveSettingsCtl1->findChild<TextField*>("TextName");
  TypeInto(name, "Own 5x");
  QTest::keyClick(&name, Qt::Key_Return);
  Look();
  EXPECT_TRUE(name.isPending());
  EXPECT_TRUE(name.accessibleDescription().startsWith("not sent: was ---"));
}

TEST_F(MarksOf, APlaceAndItsSectionHaveDots) {
  ShowPage(1);
  auto& page = *rig.form->ObjectiveSettingsCtl1;
  auto& turret = *page.findChild<TurretDrawing*>();
  ClickButton(*turret.place(1));
  const std::string before = turret.place(1)->accessibleName().section(", ", -1).toStdString();
  auto& list = *page.findChild<ListBox*>("ListItem");
  const int row = list.index();
  ClickRow(list, row == 0 ? 1 : row - 1);
  EXPECT_EQ(Shown(), (Marks{"ObjectiveCtl1 place_2: not sent: was " + before,
                            "ObjectiveSettingsCtl1 section Nosepiece"}));
  EXPECT_TRUE(rig.form->ImageButton[1]->isPending());
  ClickRow(list, row);
  EXPECT_EQ(Shown(), Marks());
}

TEST_F(MarksOf, APartOfARecordHasADotAndSoHasItsTab) {
  auto& page = *rig.form->ObjectiveSettingsCtl1;
  ShowSection(1, page, 1);
  auto& tabs = *page.findChild<TabStrip*>("TabStrip1");
  auto& distance = *page.findChild<TextField*>("TextWD");
  ClickTab(tabs, 2);
  const std::string before = distance.text().toStdString();
  TypeInto(distance, "3.25");
  QTest::keyClick(&distance, Qt::Key_Return);
  const Marks marks{"ObjectiveOptionCtl1 TabStrip1[2]",
                    "ObjectiveOptionCtl1 TextWD: not sent: was " + before,
                    "ObjectiveSettingsCtl1 section Optional Obj."};
  EXPECT_EQ(Shown(), marks);
  ClickTab(tabs, 0);
  EXPECT_EQ(Shown(), (Marks{"ObjectiveOptionCtl1 TabStrip1[2]",
                            "ObjectiveSettingsCtl1 section Optional Obj."}))
      << "the field shows another record";
  ClickTab(tabs, 2);
  EXPECT_EQ(Shown(), marks);
}

TEST_F(MarksOf, ARowOfAPageThatIsNotOnShowMarksTheOptionOfThatPage) {
  GetK70().curTactor.Func(12, 13);
  const Marks marks = Shown();
  EXPECT_TRUE(marks.contains("ControlTactorSwitchCtl1 section B")) << testing::PrintToString(marks);
  EXPECT_TRUE(marks.contains("ControlSettingsCtl1 section Tactor Switch"));
  EXPECT_EQ(marks.size(), 2U);
}

TEST(LateMarks, StandAtTheSectionBeforeItsSubPageIsMadeAndAtTheControlsAfterwards) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  const auto shown = [&rig] {
    QTest::keyClick(rig.form.get(), Qt::Key_Shift);
    QApplication::processEvents();
    return ShownMarks(*rig.form);
  };
  GetK70().curTactor.Func(12, 13);
  const Marks before{"ControlSettingsCtl1 section Tactor Switch"};
  EXPECT_EQ(shown(), before);
  auto& page = *rig.form->ControlSettingsCtl1;
  EXPECT_EQ(page.ControlTactorSwitchCtl1.made(), nullptr);
  QTest::mouseClick(rig.form->ImageButton[kPageCount - 1], Qt::LeftButton);
  ClickButton(*page.sections()->option(controltab::kTactorSwitch));
  ASSERT_NE(page.ControlTactorSwitchCtl1.made(), nullptr);
  const Marks after = shown();
  EXPECT_TRUE(after.contains("ControlTactorSwitchCtl1 section B")) << testing::PrintToString(after);
  EXPECT_EQ(after.size(), 2U);
}

TEST_F(MarksOf, NoDotAsksTheController) {
  rig.journal.Clear();
  TypeName("Bay 4");
  GetK70().curSwitch.Func(1, 13);
  GetK70().ILObservation.Status(accessory::kNDFilter, 0);
  EXPECT_FALSE(Shown().empty());
  EXPECT_EQ(rig.journal.Lines(), Lines());
}

TEST_F(MarksOf, AReceiveAndASendTakeAllAway) {
  TypeName("Bay 4");
  GetK70().curSwitch.Func(1, 13);
  ASSERT_EQ(Shown().size(), 3U);
  rig.form->MenuConnectSend->trigger();
  EXPECT_EQ(Shown(), Marks());
  TypeName("Bay 5");
  GetK70().curSwitch.Func(1, 3);
  ASSERT_EQ(Shown().size(), 3U);
  rig.form->MenuConnectReceive->trigger();
  EXPECT_EQ(Shown(), Marks());
}

TEST_F(MarksOf, WhatASendWithFailuresDidNotWriteStaysMarked) {
  TypeName("Bay 4");
  GetK70().curNosepiece.code(1, 7);
  GetK70().curFilter.code(1, 2);
  Look();
  rig.faults.Add({"NosepieceDevice.Positions"});
  rig.prompts.AcceptAnyBox();
  rig.form->MenuConnectSend->trigger();
  const Marks marks = Shown();
  ASSERT_EQ(marks.size(), 2U) << testing::PrintToString(marks);
  EXPECT_TRUE(marks.begin()->starts_with("ObjectiveCtl1 place_1: not sent: was "));
  EXPECT_TRUE(marks.contains("ObjectiveSettingsCtl1 section Nosepiece"));
  rig.faults.Clear();
  rig.form->MenuConnectSend->trigger();
  EXPECT_EQ(Shown(), Marks());
}

class MarksOfTwo : public MarksOf {
 protected:
  MarksOfTwo() : MarksOf(Microscopes({"Alpha", "Beta"}), {"Alpha"}) {}
};

TEST_F(MarksOfTwo, AMicroscopeThatIsGoneTakesThemAway) {
  TypeName("Bay 4");
  ASSERT_FALSE(Shown().empty());
  const WhenShown<SelScopeDlg> person([](SelScopeDlg& dialog) {
    dialog.List1->setIndex(1);
    dialog.OkButton->click();
  });
  rig.faults.Add({"DeviceList.Item(2).Connect"});
  rig.prompts.AcceptAnyBox();
  rig.form->MenuConnectSelect->trigger();
  EXPECT_EQ(Shown(), Marks());
}

TEST_F(MarksOf, ARowOfTheListGoesToTheFieldOfTheRecord) {
  auto& page = *rig.form->ObjectiveSettingsCtl1;
  ShowSection(1, page, 1);
  auto& tabs = *page.findChild<TabStrip*>("TabStrip1");
  auto& aperture = *page.findChild<TextField*>("TextNA");
  ClickTab(tabs, 3);
  TypeInto(aperture, "0.55");
  QTest::keyClick(&aperture, Qt::Key_Return);
  ClickTab(tabs, 0);
  page.sections()->select(0);
  ShowPage(0);
  GoToRow("Optional Objective 4");
  EXPECT_TRUE(rig.form->optMenu[1]->isChecked());
  EXPECT_EQ(page.CurrentItem(), 1);
  EXPECT_EQ(tabs.index(), 3);
  EXPECT_EQ(rig.form->focusWidget(), &aperture);
  EXPECT_EQ(aperture.text(), "0.55");
}

TEST_F(MarksOf, ARowOfTheListGoesToThePlaceTheSwitchAndTheOption) {
  GetK70().curNosepiece.code(3, 8);
  GetK70().curTactor.Func(5, 13);
  GetK70().ILOther.ZoomStatus(accessory::kNDFilter, 0);
  GetK70().curLimit.curSkip = GetK70().curLimit.curSkip == 0 ? 1 : 0;
  Look();

  GoToRow("Objective 3");
  EXPECT_EQ(rig.form->ObjectiveSettingsCtl1->findChild<TurretDrawing*>()->index(), 2);
  EXPECT_EQ(rig.form->ObjectiveSettingsCtl1->findChild<TabStrip*>("TabNosepiece")->index(), 2);

  GoToRow("Empty Position");
  EXPECT_EQ(rig.form->ObjectiveSettingsCtl1->CurrentItem(), 2);
  EXPECT_EQ(rig.form->focusWidget()->objectName().section('_', 0, 0), "optSkipEmpty");

  GoToRow("Tactor Switch 1 (A)");
  EXPECT_TRUE(rig.form->optMenu[5]->isChecked());
  const auto& list =
      *rig.form->ControlSettingsCtl1->ControlTactorSwitchCtl1->findChild<ListBox*>("ListView1");
  ASSERT_GE(list.index(), 0);
  EXPECT_EQ(list.cells(list.index()).value(0), "1 (A)");
  EXPECT_EQ(list.RowNote(list.index()).section(' ', 0, 1), "not sent:");
}

TEST_F(MarksOf, TheWayToAnItemStoresNothing) {
  GetK70().curNosepiece.code(3, 8);
  Look();
  rig.journal.Clear();
  GoToRow("Objective 3");
  EXPECT_EQ(rig.journal.Lines(), Lines());
  EXPECT_EQ(GetK70().curNosepiece.code(3), 8);
  EXPECT_EQ(Shown().size(), 2U);
}

// A saving stores 0 for a number that may not be; the field was neither left nor entered.
TEST_F(MarksOf, AfterASendTheFieldsShowWhatWasStored) {
  auto& page = *rig.form->ObjectiveSettingsCtl1;
  ShowSection(1, page, 1);
  auto& aperture = *page.findChild<TextField*>("TextNA");
  TypeInto(aperture, "415.5");
  rig.form->MenuConnectSend->trigger();
  EXPECT_EQ(aperture.text(), "0");
  EXPECT_FALSE(aperture.isRefused());
  EXPECT_EQ(page.CurrentItem(), 1) << "the page stays as it is";
  EXPECT_EQ(rig.form->focusWidget(), &aperture);
  EXPECT_EQ(Shown(), Marks());
}

TEST_F(MarksOf, AfterASendThatFailsTheFieldsShowItToo) {
  auto& page = *rig.form->ObjectiveSettingsCtl1;
  ShowSection(1, page, 1);
  auto& aperture = *page.findChild<TextField*>("TextNA");
  const std::string before = aperture.text().toStdString();
  TypeInto(aperture, "415.5");
  rig.faults.Add({"AccessoryDatabase.Nosepieces"});
  rig.prompts.AcceptAnyBox();
  rig.form->MenuConnectSend->trigger();
  EXPECT_EQ(aperture.text(), "0");
  EXPECT_TRUE(Shown().contains("ObjectiveOptionCtl1 TextNA: not sent: was " + before));
}

TEST_F(MarksOf, WhatWasStoredIsShownWithoutACallAndWithoutAnEdit) {
  for (const std::size_t number : {1U, 5U}) ShowPage(number);
  GetK70().CZDrive.Position(1, 4000);
  GetK70().CXYDrive.PositionY(2, 6000);
  const auto items = ItemsOf(GetK70());
  rig.journal.Clear();
  rig.prompts.ClearRecords();
  rig.form->ObjectiveSettingsCtl1->ShowStored();
  rig.form->ControlSettingsCtl1->ShowStored();
  EXPECT_EQ(rig.form->findChild<TextField*>("TextNosepiece_0")->text(), "200");
  EXPECT_EQ(rig.form->findChild<TextField*>("TextNosepieceY_1")->text(), "300");
  EXPECT_EQ(rig.journal.Lines(), Lines());
  EXPECT_EQ(rig.prompts.Log(), Lines());
  EXPECT_EQ(ItemsOf(GetK70()), items);
}

class MarksAfterLoading : public MarksOf {
 protected:
  MarksAfterLoading() : MarksOf(benches::Named("Outpost")) {}
};

// The body has no escape in its firmware.
TEST_F(MarksAfterLoading, TellOfTheEscapeThatWasSetOn) {
  const Marks marks{"ControlFocusDriveCtl1 chkEscape_0: not sent: was OFF",
                    "ControlSettingsCtl1 section Focus Drive"};
  EXPECT_EQ(Shown(), marks);
  rig.form->MenuConnectReceive->trigger();
  EXPECT_EQ(Shown(), marks) << "loading sets it again";
}

}  // namespace
}  // namespace mortane::test

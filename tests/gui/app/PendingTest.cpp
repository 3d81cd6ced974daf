// What is not sent yet: the dots of the page buttons, the count in the note, and the list.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>

#include "AppRig.h"
#include "app/ControlSettingsCtl.h"
#include "app/DifferencesDlg.h"
#include "app/InputFlush.h"
#include "app/PendingChanges.h"
#include "app/SessionNote.h"
#include "app/SystemNameCtl.h"
#include "app/SystemSettingsCtl.h"
#include "condensers/clsCondenser.h"
#include "drives/ControlFocusDriveCtl.h"
#include "gui/support/EventLoop.h"
#include "objectives/clsNosepiece.h"
#include "widgets/PageButton.h"
#include "widgets/SectionBar.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

// The started window with its own pages.
class Pending : public testing::Test {
 protected:
  explicit Pending(Bench bench = benches::Named("Harbour")) : rig(std::move(bench)) { rig.Start(); }

  SessionNote& note() {
    return static_cast<SessionNote&>(*rig.form->findChild<ValueLabel*>("SessionNote"));
  }
  std::string Count() {
    Look();
    return note().ButtonPending->isHidden() ? "" : note().ButtonPending->text().toStdString();
  }
  // A page's number for each dot.
  std::string Dots() {
    Look();
    std::string dots;
    for (std::size_t i = 0; i < kPageCount; ++i) {
      if (rig.form->ImageButton[i]->isPending()) dots += std::to_string(i);
    }
    return dots;
  }
  // As after any input of a person.
  void Look() {
    QTest::keyClick(rig.form.get(), Qt::Key_Shift);
    QApplication::processEvents();
  }
  void TypeName(const char* text) {
    TextField& name = *rig.form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName;
    name.setFocus();
    name.selectAll();
    QTest::keyClicks(&name, QLatin1String(text));
    QTest::keyClick(&name, Qt::Key_Return);
    QApplication::processEvents();
  }

  AppRig rig;
};

TEST_F(Pending, IsNothingAfterAReceive) {
  EXPECT_EQ(Count(), "");
  EXPECT_EQ(Dots(), "");
}

TEST_F(Pending, CountsEachEditAndDropsWhatIsPutBack) {
  TypeName("Bay 4");
  EXPECT_EQ(Count(), "1 change not sent");
  EXPECT_EQ(Dots(), "0");
  EXPECT_EQ(rig.form->ImageButton[0]->accessibleDescription(), "1 change not sent");
  GetK70().curNosepiece.code(1, 7);
  EXPECT_EQ(Count(), "2 changes not sent");
  EXPECT_EQ(Dots(), "01");
  TypeName("Harbour");
  EXPECT_EQ(Count(), "1 change not sent");
  EXPECT_EQ(Dots(), "1");
}

TEST_F(Pending, MakesNoCallToTheController) {
  rig.journal.Clear();
  TypeName("Bay 4");
  EXPECT_EQ(Count(), "1 change not sent");
  EXPECT_TRUE(rig.journal.Lines().empty());
}

TEST_F(Pending, IsGoneAfterASendAndAfterAReceive) {
  TypeName("Bay 4");
  ASSERT_EQ(Dots(), "0");
  rig.form->MenuConnectSend->trigger();
  EXPECT_EQ(Dots(), "");
  TypeName("Bay 5");
  ASSERT_EQ(Dots(), "0");
  rig.form->MenuConnectReceive->trigger();
  EXPECT_EQ(Dots(), "");
}

TEST_F(Pending, StaysForWhatASendDidNotWrite) {
  TypeName("Bay 4");
  GetK70().curNosepiece.code(1, 7);
  rig.faults.Add({"DeviceList.Item(1).Name"});
  rig.prompts.AcceptAnyBox();
  rig.form->MenuConnectSend->trigger();
  EXPECT_EQ(Dots(), "0") << "the name was not written, the objective was";
}

TEST_F(Pending, IsNothingWhereNoMicroscopeIsConnected) {
  TypeName("Bay 4");
  PendingChanges changes(GetK70());
  EXPECT_TRUE(changes.Find().empty()) << "nothing was received";
  changes.TakeReceived();
  GetK70().SystemName = "Bay 5";
  EXPECT_EQ(changes.Find().size(), 1U);
  changes.Forget();
  EXPECT_TRUE(changes.Find().empty());
}

TEST_F(Pending, ForgetsTheNameOfAMicroscopeThatIsGone) {
  PendingChanges changes(GetK70());
  changes.TakeReceived();
  EXPECT_EQ(changes.Device(), "Harbour");
  EXPECT_NE(changes.Held(), nullptr);
  changes.Forget();
  EXPECT_EQ(changes.Device(), "");
  EXPECT_EQ(changes.Held(), nullptr);
  GetK70().SystemName = "Bay 4";
  EXPECT_TRUE(changes.Find().empty());
}

TEST_F(Pending, HoldsNothingOfAMicroscopeWhoseNameNoSettingsFileHolds) {
  PendingChanges changes(GetK70());
  changes.TakeReceived();
  GetK70().SystemName = std::string("a\x01z");
  changes.TakeReceived();
  EXPECT_EQ(changes.Held(), nullptr);
  EXPECT_FALSE(changes.HeldState().has_value());
}

TEST_F(Pending, StandsInTheOrderOfThePagesAndOfTheFile) {
  PendingChanges changes(GetK70());
  changes.TakeReceived();
  for (const std::int32_t address : {3, 1, 2}) {
    const std::int32_t code = GetK70().curNosepiece.code(address);
    GetK70().curNosepiece.code(address, code == 7 ? 8 : 7);
  }
  GetK70().SystemName = "Bay 4";
  std::vector<std::string> found;
  for (const ItemChange& change : changes.Find())
    found.push_back(change.to.key.section + " " + change.to.key.position);
  EXPECT_EQ(found,
            (std::vector<std::string>{"SYSTEM ", "NOSEPIECE 1", "NOSEPIECE 2", "NOSEPIECE 3"}));
}

// Opening the tab drops input, and the comparison that the click asks for is due meanwhile.
TEST_F(Pending, IsLookedForOnceAnActThatDropsInputIsOver) {
  QTest::mousePress(rig.form->ImageButton[5], Qt::LeftButton);
  Look();
  InputFlush flush;
  int flushes = 0;
  rig.prompts.onCall = [&] {
    if (rig.prompts.Log().back() != "flush") return;
    ++flushes;
    flush.Run();
  };
  GetK70().curNosepiece.code(1, 7);
  QTest::mouseClick(rig.form->ControlSettingsCtl1->optControl->option(controltab::kOther),
                    Qt::LeftButton);
  DeliverAll();
  rig.prompts.onCall = {};
  ASSERT_EQ(flushes, 1);
  EXPECT_TRUE(rig.form->ImageButton[1]->isPending());
}

struct SectionPage {
  const char* section;
  std::size_t page;
};

TEST(PageOfAnItem, IsThatOfItsSection) {
  for (const SectionPage& row :
       {SectionPage{"SYSTEM", 0}, SectionPage{"NOSEPIECE", 1}, SectionPage{"FILTER", 2},
        SectionPage{"CONDENSER", 3}, SectionPage{"INTERLOCK", 4}, SectionPage{"CONTROL", 5},
        SectionPage{"SWITCH", 5}, SectionPage{"TACTOR", 5}, SectionPage{"ANOTHER", 0}}) {
    EXPECT_EQ(PageOf({row.section, "", "", ""}), row.page) << row.section;
  }
}

TEST_F(Pending, IsNotLookedForInATextThatNoSettingsFileHolds) {
  GetK70().SystemName = std::string("a\x01z");
  EXPECT_EQ(Count(), "");
}

TEST_F(Pending, IsListedUnderTheCaptionsOfThePages) {
  TypeName("Bay 4");
  GetK70().curNosepiece.code(1, 7);
  Look();
  const WhenShown<DifferencesDlg> person([](DifferencesDlg& dialog) {
    const QTreeWidget& list = *dialog.List1;
    ASSERT_EQ(list.topLevelItemCount(), 2);
    EXPECT_EQ(list.topLevelItem(0)->text(0), "System");
    EXPECT_EQ(list.topLevelItem(1)->text(0), "Objectives");
    const QTreeWidgetItem& name = *list.topLevelItem(0)->child(0);
    EXPECT_EQ(name.text(1), "Harbour");
    EXPECT_EQ(name.text(2), "Bay 4");
    dialog.ButtonCopy->click();
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.startsWith("System\n")) << copied.toStdString();
    EXPECT_TRUE(copied.contains("\tHarbour\tBay 4\n")) << copied.toStdString();
    dialog.ButtonClose->click();
  });
  note().ButtonPending->click();
  EXPECT_TRUE(rig.form->optMenu[0]->isChecked()) << "stays where it was";
}

TEST_F(Pending, ARowOfTheListGoesToItsPage) {
  GetK70().curNosepiece.code(1, 7);
  Look();
  const WhenShown<DifferencesDlg> person([](DifferencesDlg& dialog) {
    QTest::keyClick(dialog.List1, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  note().ButtonPending->click();
  EXPECT_TRUE(rig.form->optMenu[1]->isChecked());
}

// Without a body the page of the condensers is disabled, and a Send writes their data all the same.
class PendingWithoutABody : public Pending {
 protected:
  PendingWithoutABody() : Pending(benches::Named("Hub")) {}
};

TEST_F(PendingWithoutABody, ARowOfADisabledPageLeadsNowhere) {
  ASSERT_FALSE(rig.form->ImageButton[3]->isEnabled());
  clsCondenser& condenser = GetK70().curCondenser;
  condenser.code(1, condenser.code(1) == 1 ? 2 : 1);
  EXPECT_EQ(Count(), "1 change not sent");
  const WhenShown<DifferencesDlg> person(
      [](DifferencesDlg& dialog) { QTest::keyClick(dialog.List1, Qt::Key_Return); });
  note().ButtonPending->click();
  EXPECT_TRUE(rig.form->optMenu[0]->isChecked());
}

// The text was refused, and another value was sent.
TEST_F(Pending, ASendShowsWhatWasStored) {
  QTest::mousePress(rig.form->ImageButton[5], Qt::LeftButton);
  QTest::mouseClick(rig.form->ControlSettingsCtl1->optControl->option(controltab::kFocusDrive),
                    Qt::LeftButton);
  rig.prompts.AcceptAnyBox();
  auto& page = *rig.form->ControlSettingsCtl1->findChild<ControlFocusDriveCtl*>();
  auto& field = *page.findChild<TextField*>("TextNosepiece_0");
  field.setText("99999999");
  EXPECT_FALSE(field.Commit());
  ASSERT_TRUE(field.isRefused());
  rig.form->MenuConnectSend->trigger();
  EXPECT_FALSE(field.isRefused());
  EXPECT_NE(field.text(), "99999999");
}

}  // namespace
}  // namespace mortane::test

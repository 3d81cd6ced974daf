// The commands of the main window, from each control that reaches them.
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
#include "support/TempFolder.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

enum class Way { Menu, Tool, Key };

struct RouteRow {
  const char* first;  // what the command's log begins with
  Control<QAction> MortaneMainForm::*menu;
  int tool;
  int key;
};

const RouteRow kRoutes[] = {
    {"open", &MortaneMainForm::MenuFileOpen, 1, -1},
    {"save", &MortaneMainForm::MenuFileSave, 2, -1},
    {"box 33", &MortaneMainForm::FileMenuExit, -1, 3},
    {"pointer 11", &MortaneMainForm::MenuConnectReceive, 5, 1},
    {"pointer 11", &MortaneMainForm::MenuConnectSend, 6, 2},
};

TEST(Commands, AreReachedFromMenuToolBarAndKeys) {
  for (const RouteRow& row : kRoutes) {
    for (const Way way : {Way::Menu, Way::Tool, Way::Key}) {
      if ((way == Way::Tool && row.tool < 0) || (way == Way::Key && row.key < 0)) continue;
      CommandRig rig;
      const std::string first = row.first;
      if (first == "open") rig.app.prompts.ExpectFileToOpen("");
      if (first == "save") rig.app.prompts.ExpectFileToSave("");
      if (first == "box 33") {
        rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Cancel, kMainCaption);
      }
      if (way == Way::Menu) (rig.form().*row.menu)->trigger();
      if (way == Way::Tool) rig.Tool(row.tool);
      if (way == Way::Key) rig.Key(static_cast<std::size_t>(row.key));
      const Lines calls = Calls(rig.app.prompts);
      ASSERT_FALSE(calls.empty()) << row.first;
      EXPECT_TRUE(calls.front().starts_with(first)) << calls.front();
      EXPECT_EQ(calls.back(), "flush") << "what was clicked meanwhile is dropped";
      const bool sends = row.menu == &MortaneMainForm::MenuConnectSend;
      EXPECT_EQ(rig.app.CountLog("wait 3000"), sends ? 1 : 0);
    }
  }
}

TEST(Commands, SelectIsReachedFromMenuToolBarAndKey) {
  for (const Way way : {Way::Menu, Way::Tool, Way::Key}) {
    CommandRig rig;
    const WhenShown<SelScopeDlg> person([](SelScopeDlg& dialog) { dialog.CancelButton->click(); });
    if (way == Way::Menu) rig.form().MenuConnectSelect->trigger();
    if (way == Way::Tool) rig.Tool(4);
    if (way == Way::Key) rig.Key(0);
    EXPECT_EQ(Calls(rig.app.prompts), Lines{"flush"});
  }
}

TEST(Commands, StandBehindMnemonics) {
  CommandRig rig;
  rig.form().activateWindow();
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Cancel, kMainCaption);
  QTest::keyClick(&rig.form(), Qt::Key_F, Qt::AltModifier);
  QWidget* menu = QApplication::activePopupWidget();
  ASSERT_EQ(menu, rig.form().MenuFile);
  QTest::keyClick(menu, Qt::Key_X);
  EXPECT_EQ(rig.app.prompts.Boxes().size(), 1U);
}

TEST(Open, AsksForAnExistingFileAndCancelledDoesNothingElse) {
  CommandRig rig;
  rig.app.prompts.ExpectFileToOpen("");
  rig.form().MenuFileOpen->trigger();
  EXPECT_EQ(Calls(rig.app.prompts), (Lines{"open", "flush"}));
  const FileQuestion& question = rig.app.prompts.FileQuestions().front();
  EXPECT_EQ(question.flags, 6148);
  EXPECT_EQ(question.filter, "XML File (*.xml)|*.xml");
  EXPECT_TRUE(rig.fakes.calls.empty());
}

constexpr char kOtherName[] =
    "<Setup><SYSTEM><QHRMNAME NAME=\"From File\"/></SYSTEM><FILTER/></Setup>";

TEST(Open, ReadsTheChosenSectionsAndLoadsAllPagesDisabledOnesToo) {
  CommandRig rig;
  rig.fakes.enabled = {true, false, false, false, false, false};
  const TempFolder folder;
  rig.app.prompts.ExpectFileToOpen(folder.Write("a.xml", kOtherName));
  const WhenShown<SelFileItemDlg> person([&](SelFileItemDlg& dialog) {
    EXPECT_EQ(dialog.List1->rowCount(), 2);
    EXPECT_TRUE(rig.fakes.calls.empty());
    dialog.OkButton->click();
  });
  rig.form().MenuFileOpen->trigger();
  EXPECT_EQ(GetK70().SystemName, "From File");
  EXPECT_EQ(rig.fakes.calls, OfAllPages("LoadData"));
  EXPECT_TRUE(rig.app.journal.Writes().empty()) << "nothing is sent";
}

// Another program may write the file while the question stands.
TEST(Open, TakesWhatWasOfferedWhateverBecomesOfTheFile) {
  for (const char* later : {"<Setup><SYSTEM><QHRMNAME NAME=\"Later\"/></SYSTEM></Setup>", "gone"}) {
    CommandRig rig;
    const TempFolder folder;
    rig.app.prompts.ExpectFileToOpen(folder.Write("a.xml", kOtherName));
    const WhenShown<SelFileItemDlg> person([&](SelFileItemDlg& dialog) {
      folder.Write("a.xml", later);
      dialog.OkButton->click();
    });
    rig.form().MenuFileOpen->trigger();
    EXPECT_EQ(GetK70().SystemName, "From File");
    EXPECT_TRUE(rig.app.prompts.Boxes().empty());
  }
}

TEST(Open, WithTheDialogCancelledReadsNothingAndStillLoadsAllPages) {
  CommandRig rig;
  const std::string before = GetK70().SystemName;
  const TempFolder folder;
  rig.app.prompts.ExpectFileToOpen(folder.Write("a.xml", kOtherName));
  const WhenShown<SelFileItemDlg> person(
      [](SelFileItemDlg& dialog) { dialog.CancelButton->click(); });
  rig.form().MenuFileOpen->trigger();
  EXPECT_EQ(GetK70().SystemName, before);
  EXPECT_EQ(rig.fakes.calls, OfAllPages("LoadData"));
}

TEST(Open, WithTheSystemSectionUncheckedKeepsTheNameInTheField) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  const QString before = rig.form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName->text();
  const TempFolder folder;
  rig.prompts.ExpectFileToOpen(folder.Write("a.xml", kOtherName));
  const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) {
    dialog.List1->SetRowChecked(0, false);
    dialog.OkButton->click();
  });
  rig.form->MenuFileOpen->trigger();
  EXPECT_EQ(rig.form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName->text(), before);
}

struct BadFileRow {
  const char* content;
  const char* box;  // the file's name goes in front when it begins with a blank
};

TEST(Open, AFileThatCannotBeReadIsToldTwiceAndThePagesAreLoaded) {
  for (const BadFileRow& row :
       {BadFileRow{"no xml", "Can't Load Xml"}, BadFileRow{"", "Can't Load Xml"},
        BadFileRow{"<Other/>", " Other Format"}}) {
    CommandRig rig;
    const TempFolder folder;
    const std::string path = folder.Write("a.xml", row.content);
    const std::string box = row.box[0] == ' ' ? path + row.box : row.box;
    rig.app.prompts.ExpectFileToOpen(path);
    rig.app.prompts.ExpectBox(box, 0);
    rig.app.prompts.ExpectBox(box, 0);
    const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) {
      EXPECT_EQ(dialog.List1->rowCount(), 0);
      EXPECT_NE(dialog.List1->accessibleDescription(), "") << "it says why";
      dialog.OkButton->click();
    });
    rig.form().MenuFileOpen->trigger();
    EXPECT_EQ(rig.fakes.calls, OfAllPages("LoadData"));
    EXPECT_EQ(Calls(rig.app.prompts).back(), "flush");
  }
}

// A position beyond the switches ends the reading, and what stood before it is in the model.
TEST(Open, AFailureThatTheModelLetsPassIsToldAndThePagesAreLoaded) {
  CommandRig rig;
  const TempFolder folder;
  rig.app.prompts.ExpectFileToOpen(
      folder.Write("a.xml",
                   "<Setup><SYSTEM><QHRMNAME NAME=\"From File\"/></SYSTEM>"
                   "<SWITCH><SWITCH POSITION=\"17\" FUNCTION=\"1\"/></SWITCH></Setup>"));
  rig.app.prompts.AcceptAnyBox();
  const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  rig.form().MenuFileOpen->trigger();
  ASSERT_EQ(rig.app.prompts.Boxes().size(), 1U);
  EXPECT_EQ(rig.app.prompts.Boxes()[0].style, 16);
  EXPECT_EQ(GetK70().SystemName, "From File");
  EXPECT_EQ(rig.fakes.calls, OfAllPages("LoadData"));
  EXPECT_EQ(Calls(rig.app.prompts).back(), "flush");
}

TEST(Save, TakesTheVisiblePageBeforeItAsksAndNoOther) {
  CommandRig rig;
  QTest::mousePress(rig.form().ImageButton[4], Qt::LeftButton);
  rig.app.prompts.ExpectFileToSave("");
  rig.app.prompts.onCall = [&] {
    if (rig.app.prompts.Log().back() == "save") {
      EXPECT_EQ(rig.fakes.calls, Lines{"4.SaveData"});
    }
  };
  rig.form().MenuFileSave->trigger();
  EXPECT_EQ(Calls(rig.app.prompts), (Lines{"save", "flush"}));
  EXPECT_EQ(rig.fakes.calls, Lines{"4.SaveData"});
  EXPECT_EQ(rig.app.prompts.FileQuestions().front().flags, 2050);
}

TEST(Save, WritesTheFile) {
  CommandRig rig;
  const TempFolder folder;
  rig.app.prompts.ExpectFileToSave(folder.Path("new.xml"));
  rig.form().MenuFileSave->trigger();
  EXPECT_TRUE(TempFolder::Read(folder.Path("new.xml")).starts_with("<Setup><SYSTEM>"));
}

TEST(Save, ThatFailsIsToldByTheModel) {
  CommandRig rig;
  const TempFolder folder;
  rig.app.prompts.ExpectFileToSave(folder.Path("missing/new.xml"));
  rig.app.prompts.AcceptAnyBox();
  rig.form().MenuFileSave->trigger();
  ASSERT_EQ(rig.app.prompts.Boxes().size(), 1U);
  EXPECT_TRUE(rig.app.prompts.Boxes()[0].text.starts_with("XML File Write Error\r\n"));
  EXPECT_EQ(rig.app.prompts.Boxes()[0].style, 16);
}

TEST(Receive, LoadsAllPagesUnderTheHourglass) {
  CommandRig rig;
  rig.fakes.enabled[2] = false;
  rig.app.prompts.onCall = [&] {
    if (rig.app.prompts.Log().back() == "pointer 0") {
      EXPECT_EQ(rig.fakes.calls, OfAllPages("LoadData"));
    }
  };
  rig.form().MenuConnectReceive->trigger();
  EXPECT_EQ(Calls(rig.app.prompts), (Lines{"pointer 11", "pointer 0", "flush"}));
  EXPECT_EQ(rig.fakes.calls, OfAllPages("LoadData"));
  EXPECT_TRUE(rig.form().ImageButton[2]->isEnabled()) << "only Select asks again";
}

TEST(Receive, LeavesAPageButtonThatIsDisabledAsItIs) {
  CommandRig rig;
  rig.form().ImageButton[2]->setEnabled(false);
  rig.form().MenuConnectReceive->trigger();
  EXPECT_FALSE(rig.form().ImageButton[2]->isEnabled()) << "only Select asks again";
}

// Of the window itself: the fakes ask nothing.
TEST(Receive, MakesTheCallsOfTheModelAndNoOther) {
  CommandRig rig;
  GetK70().Receive();
  const Lines calls = rig.app.journal.Lines();
  ASSERT_FALSE(calls.empty());
  rig.app.journal.Clear();
  rig.form().MenuConnectReceive->trigger();
  EXPECT_EQ(rig.app.journal.Lines(), calls);
}

TEST(Receive, BringsTheNameBackToTheField) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  TextField& field = *rig.form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName;
  field.setText("typed");
  rig.form->MenuConnectReceive->trigger();
  EXPECT_EQ(field.text().toStdString(), rig.instrument().name);
}

TEST(Send, SavesTheVisiblePageSendsAndWaits) {
  CommandRig rig;
  QTest::mousePress(rig.form().ImageButton[2], Qt::LeftButton);
  GetK70().SystemName = "Bay 4";
  rig.form().MenuConnectSend->trigger();
  EXPECT_EQ(rig.fakes.calls, (Lines{"2.SaveData", "5.SendData"}));
  EXPECT_EQ(Calls(rig.app.prompts), (Lines{"pointer 11", "wait 3000", "pointer 0", "flush"}));
  ASSERT_FALSE(rig.app.journal.Writes().empty());
  EXPECT_EQ(rig.app.journal.Writes().front(), "SystemName = \"Bay 4\"");
}

// Nothing is compared before it.
TEST(Send, MakesTheCallsOfTheModelAndNoOther) {
  CommandRig rig;
  GetK70().Send();
  const Lines calls = rig.app.journal.Lines();
  ASSERT_FALSE(calls.empty());
  rig.app.journal.Clear();
  rig.form().MenuConnectSend->trigger();
  EXPECT_EQ(rig.app.journal.Lines(), calls);
}

TEST(Send, DisablesTheWindowFromSavingToTheEndOfTheWait) {
  CommandRig rig;
  std::vector<bool> enabled;
  rig.app.prompts.onCall = [&] { enabled.push_back(rig.form().isEnabled()); };
  rig.form().MenuConnectSend->trigger();
  ASSERT_GE(enabled.size(), 4U);
  EXPECT_TRUE(enabled.front()) << "the hourglass comes first";
  for (std::size_t i = 1; i + 2 < enabled.size(); ++i) EXPECT_FALSE(enabled[i]) << i;
  EXPECT_TRUE(enabled.back()) << "input is dropped by the window that is to get it";
  EXPECT_TRUE(rig.form().isEnabled());
}

TEST(Send, WithFailuresEndsAllTheSameWithTheWait) {
  CommandRig rig;
  GetK70().SystemName = "Bay 4";
  rig.app.faults.Add({"put SystemName"});
  rig.app.prompts.ExpectBox("System Name", 16, Answer::Ok, "Send", [&] {
    EXPECT_FALSE(rig.form().isEnabled());
    EXPECT_EQ(rig.app.CountLog("wait"), 0);
  });
  rig.form().MenuConnectSend->trigger();
  EXPECT_EQ(rig.app.CountLog("wait 3000"), 1);
  EXPECT_TRUE(rig.form().isEnabled());
  EXPECT_EQ(rig.app.prompts.PointerBalance(), 0);
}

TEST(Send, GivesTheFocusBackAndStoresNothingByTakingIt) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  rig.form->activateWindow();
  TextField& field = *rig.form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName;
  field.setFocus();
  rig.form->MenuConnectSend->trigger();
  EXPECT_TRUE(field.hasFocus());
}

TEST(Send, FromThePageOfANamelessControllerWritesNoName) {
  Bench bench = benches::Named("Harbour");
  bench.instruments[1].name = "";
  AppRig rig(bench);
  rig.Start();
  rig.form->MenuConnectSend->trigger();
  EXPECT_EQ(rig.instrument().name, "NoName");
}

TEST(Commands, DoNotRunWithinEachOther) {
  CommandRig rig;
  rig.app.prompts.onCall = [&] {
    if (rig.app.prompts.Log().back() == "flush") rig.form().MenuConnectSend->trigger();
  };
  rig.form().MenuConnectReceive->trigger();
  EXPECT_EQ(rig.app.CountLog("wait"), 0);
}

}  // namespace
}  // namespace mortane::test

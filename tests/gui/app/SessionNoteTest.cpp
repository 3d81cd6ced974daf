// The right end of the tool bar: which microscope is connected, and what was done last and when.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include "CommandRig.h"
#include "app/MainPages.h"
#include "app/SelFileItemDlg.h"
#include "app/SelScopeDlg.h"
#include "support/TempFolder.h"
#include "widgets/ListBox.h"
#include "widgets/ValueLabel.h"

namespace mortane::test {
namespace {

// A started window whose clock the test sets.
class Note : public testing::Test {
 protected:
  // `before` sets up what the start path is to meet.
  void Start(Bench bench, std::vector<std::string> arguments = {},
             const std::function<void(RigLibrary&)>& before = {}) {
    library.emplace(std::move(bench));
    if (before) before(*library);
    clsK70& k70 = ProvideK70(library->library, library->prompts);
    arguments.insert(arguments.begin(), "mortane");
    form = std::make_unique<MortaneMainForm>(
        FormServices{k70, library->library, library->prompts, joystick, arguments,
                     [this] { return time; }},
        fakes.Table());
    form->Load();
    form->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return form->IsStarted(); }));
  }
  ~Note() override {
    form.reset();
    ReleaseK70();
  }
  ScriptedPrompts& prompts() { return library->prompts; }
  std::string Text() { return form->findChild<ValueLabel*>("SessionNote")->text().toStdString(); }
  void Choose(int line) {
    const WhenShown<SelScopeDlg> person([line](SelScopeDlg& dialog) {
      dialog.List1->setIndex(line);
      dialog.OkButton->click();
    });
    form->MenuConnectSelect->trigger();
  }
  template <typename Act>
  void Open(const std::string& path, Act act) {
    prompts().ExpectFileToOpen(path);
    const WhenShown<SelFileItemDlg> person(act);
    form->MenuFileOpen->trigger();
  }

  QTime time{9, 12, 59};
  FakePages fakes;
  TempFolder folder;
  ScriptedJoystick joystick;
  std::optional<RigLibrary> library;
  std::unique_ptr<MortaneMainForm> form;
};

TEST_F(Note, IsEmptyBeforeAMicroscopeIsConnected) {
  RigLibrary rig(benches::Named("Harbour"));
  MortaneMainForm fresh(
      {ProvideK70(rig.library, rig.prompts), rig.library, rig.prompts, joystick, {}}, MainPages());
  fresh.Load();
  EXPECT_EQ(fresh.findChild<ValueLabel*>("SessionNote")->text(), "");
}

TEST_F(Note, TellsTheMicroscopeAndTheFirstReceive) {
  Start(benches::Named("Harbour"));
  EXPECT_EQ(Text(), "Harbour · Received 09:12");
}

TEST_F(Note, TellsOfTheSimulation) {
  Bench bench = benches::Named("Quay");
  bench.instruments[0].name = "Desk";
  Start(bench, {"/SIM"},
        [](RigLibrary& rig) { rig.prompts.ExpectBox("This application runs Simulation mode", 0); });
  EXPECT_EQ(Text(), "Desk, Simulation · Received 09:12");
}

TEST_F(Note, CallsANamelessMicroscopeSo) {
  Bench bench = benches::Named("Harbour");
  bench.instruments[1].name = "  ";
  Start(bench);
  EXPECT_EQ(Text(), "NoName · Received 09:12");
}

TEST_F(Note, TellsEachTransferWithItsTime) {
  Start(benches::Named("Harbour"));
  time = QTime(14, 5);
  form->MenuConnectReceive->trigger();
  EXPECT_EQ(Text(), "Harbour · Received 14:05");
  time = QTime(0, 7);
  GetK70().SystemName = "Bay 4";
  EXPECT_EQ(Text(), "Harbour · Received 14:05") << "the controller still holds the old name";
  form->MenuConnectSend->trigger();
  EXPECT_EQ(Text(), "Bay 4 · Sent 00:07");
}

TEST_F(Note, IsThereWhileTheSendWaits) {
  Start(benches::Named("Harbour"));
  time = QTime(9, 15);
  prompts().onCall = [this] {
    if (prompts().Log().back() != "wait 3000") return;
    EXPECT_EQ(Text(), "Harbour · Sent 09:15");
  };
  form->MenuConnectSend->trigger();
}

TEST_F(Note, TellsWhatRuns) {
  Start(benches::Named("Harbour"));
  Lines running;
  prompts().onCall = [&] {
    if (prompts().Log().back() == "progress 3/19") running.push_back(Text());
  };
  form->MenuConnectReceive->trigger();
  form->MenuConnectSend->trigger();
  EXPECT_EQ(running, (Lines{"Harbour · Receiving...", "Harbour · Sending..."}));
}

TEST_F(Note, TellsTransfersThatFailed) {
  Start(benches::Named("Harbour"));
  prompts().AcceptAnyBox();
  time = QTime(9, 15);
  library->faults.Add({"DeviceList.Item(1).Name"});
  GetK70().SystemName = "Bay 4";
  form->MenuConnectReceive->trigger();
  EXPECT_EQ(Text(), "Harbour · Received 09:15, with failures");
  form->MenuConnectSend->trigger();
  EXPECT_EQ(Text(), "Harbour · Sent 09:15, with failures");
}

TEST_F(Note, TellsAFirstReceiveThatFailed) {
  Start(benches::Named("Harbour"), {}, [](RigLibrary& rig) {
    rig.prompts.AcceptAnyBox();
    rig.faults.Add({"NosepieceDevice.Positions.Count", 2});
  });
  EXPECT_EQ(Text(), "Harbour · Received 09:12, with failures");
}

TEST_F(Note, TellsTheNameOfAFile) {
  Start(benches::Named("Harbour"));
  prompts().ExpectFileToSave(folder.Path("clinic 1.xml"));
  form->MenuFileSave->trigger();
  EXPECT_EQ(Text(), "Harbour · Saved clinic 1.xml");
  Open(folder.Path("clinic 1.xml"), [](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  EXPECT_EQ(Text(), "Harbour · Opened clinic 1.xml");
}

TEST_F(Note, TellsFilesThatFailed) {
  Start(benches::Named("Harbour"));
  prompts().AcceptAnyBox();
  prompts().ExpectFileToSave(folder.Path("missing/clinic.xml"));
  form->MenuFileSave->trigger();
  EXPECT_EQ(Text(), "Harbour · Save failed: clinic.xml");
  Open(folder.Write("bad.xml", "no xml"), [](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  EXPECT_EQ(Text(), "Harbour · Open failed: bad.xml");
  Open(folder.Write("other.xml", "<Other/>"),
       [](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  EXPECT_EQ(Text(), "Harbour · Open failed: other.xml");
  Open(folder.Write("part.xml",
                    "<Setup><SYSTEM><QHRMNAME NAME=\"123456789012345\"/></SYSTEM></Setup>"),
       [](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  EXPECT_EQ(Text(), "Harbour · Opened part.xml, with failures");
}

TEST_F(Note, StaysWhenNothingWasDone) {
  Start(benches::Named("Harbour"));
  prompts().ExpectFileToSave("");
  form->MenuFileSave->trigger();
  prompts().ExpectFileToOpen("");
  form->MenuFileOpen->trigger();
  Open(folder.Write("a.xml", "<Setup><FILTER/></Setup>"),
       [](SelFileItemDlg& dialog) { dialog.CancelButton->click(); });
  EXPECT_EQ(Text(), "Harbour · Received 09:12");
}

TEST_F(Note, FollowsTheSelectedMicroscope) {
  Start(Microscopes({"Alpha", "Beta"}), {"Alpha"});
  EXPECT_EQ(Text(), "Alpha · Received 09:12");
  time = QTime(9, 20);
  Choose(1);
  EXPECT_EQ(Text(), "Beta · Received 09:20");
}

TEST_F(Note, TellsThatNoneIsConnected) {
  Start(Microscopes({"Alpha", "Beta"}), {"Alpha"});
  library->faults.Add({"DeviceList.Item(2).Connect"});
  prompts().ExpectBox("Device Connect Error.", 16, Answer::Ok, {},
                      [this] { EXPECT_EQ(Text(), "Not connected"); });
  Choose(1);
  EXPECT_EQ(Text(), "Not connected");
}

TEST_F(Note, TellsThatAHeldMicroscopeIsNotConnected) {
  Start(Microscopes({"Alpha", "Beta"}), {"Alpha"});
  RigLibrary other(benches::Named("Quay"));
  clsK70 holder(other.library, other.prompts);
  ASSERT_TRUE(holder.CreateConnectionName("2"));
  prompts().ExpectBox("Other Application has already used this Microscope.", 0);
  Choose(1);
  EXPECT_EQ(Text(), "Not connected");
  prompts().AcceptAnyBox();
  for (const auto& [tool, text] : {std::pair{5, "Not connected · Receive failed 09:12"},
                                   std::pair{6, "Not connected · Send failed 09:12"}}) {
    QAction* button = form->Toolbar1->actions()[tool - 1];
    QTest::mouseClick(form->Toolbar1->widgetForAction(button), Qt::LeftButton);
    EXPECT_EQ(Text(), text);
  }
}

TEST_F(Note, StandsAtTheRightEndAndGivesWayToTheButtons) {
  Start(benches::Named("Harbour"));
  const auto& note = *form->findChild<ValueLabel*>("SessionNote");
  const auto& manual = *form->findChild<QToolButton*>("ButtonManual");
  const QToolBar& bar = *form->Toolbar1;
  EXPECT_EQ(bar.actions().size(), 6) << "it is none of the buttons";
  for (const int width : {1400, 1152, 800}) {
    form->resize(width, 600);
    QApplication::processEvents();
    EXPECT_EQ(note.width(), note.fontMetrics().horizontalAdvance(note.text())) << width;
    EXPECT_EQ(bar.width() - 1 - manual.geometry().right(), 20) << width;
    EXPECT_EQ(manual.x() - 1 - note.geometry().right(), 8) << width;
    EXPECT_EQ(note.height(), bar.height());
  }
  form->resize(720, 600);
  QApplication::processEvents();
  const QWidget* send = bar.widgetForAction(bar.actions().constLast());
  EXPECT_GT(note.x(), send->geometry().right());
}

TEST_F(Note, StaysOffThePanelsOfTheStatusBar) {
  Start(benches::Named("Harbour"));
  EXPECT_EQ(form->StatusBar1->findChildren<QLabel*>().size(), 1) << "the version";
}

TEST_F(Note, IsFoundByAScreenReaderInAToolBarWithAName) {
  Start(benches::Named("Harbour"));
  QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(form->Toolbar1);
  EXPECT_EQ(bar->text(QAccessible::Name), "Commands");
  QStringList names;
  for (int i = 0; i < bar->childCount(); ++i) {
    const QAccessibleInterface& child = *bar->child(i);
    if (child.role() == QAccessible::StaticText) names << child.text(QAccessible::Name);
  }
  EXPECT_EQ(names, QStringList(QString::fromStdString(Text()))) << "its words are its name";
}

}  // namespace
}  // namespace mortane::test

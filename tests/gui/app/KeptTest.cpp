// What is kept on the disk: the state before a Send, and the edits that are not sent.
#include <gtest/gtest.h>

#include <QAction>
#include <QDropEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QToolButton>
#include <QUrl>
#include <filesystem>

#include "AppRig.h"
#include "app/DifferencesDlg.h"
#include "app/KeptButton.h"
#include "app/MainPages.h"
#include "app/SelFileItemDlg.h"
#include "app/SelScopeDlg.h"
#include "app/SessionNote.h"
#include "app/UnsentEdits.h"
#include "gui/support/EventLoop.h"
#include "objectives/clsNosepiece.h"
#include "record/Backups.h"
#include "support/TempFolder.h"
#include "widgets/ListBox.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

// A window whose folders are the test's.
class Kept : public testing::Test {
 protected:
  ~Kept() override { End(); }

  void Start(const std::string& backups = {}) {
    library.emplace(bench);
    clsK70& k70 = ProvideK70(library->library, library->prompts);
    form = std::make_unique<MortaneMainForm>(
        FormServices{.k70 = k70,
                     .library = library->library,
                     .prompts = library->prompts,
                     .joystick = joystick,
                     .arguments = {"mortane"},
                     .now = [] { return QTime(14, 5); },
                     .backupFolder = backups.empty() ? folder.Path("backups") : backups,
                     .unsentFolder = folder.Path("unsent")},
        MainPages());
    form->Load();
    form->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return form->IsStarted(); }));
  }
  // As a process that is killed.
  void End() {
    form.reset();
    if (library) ReleaseK70();
    library.reset();
  }
  SessionNote& note() {
    return static_cast<SessionNote&>(*form->findChild<ValueLabel*>("SessionNote"));
  }
  std::vector<Backup> List() { return Backups(folder.Path("backups"), "Harbour").List(); }
  std::string Unsent(const std::string& device = "Harbour") {
    return folder.Path("unsent/" + DeviceFolderName(device) + "/Unsent.xml");
  }
  // Files in the folder of the device's edits.
  int UnsentFiles(const std::string& device = "Harbour") {
    const std::filesystem::path files = std::filesystem::path(Unsent(device)).parent_path();
    if (!std::filesystem::exists(files)) return 0;
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(files), {}));
  }
  // The edit, and what a person's next key brings about.
  void Edit(std::int32_t code) {
    GetK70().curNosepiece.code(1, code);
    QTest::keyClick(form.get(), Qt::Key_Shift);
    QApplication::processEvents();
  }
  // The time between two writings is over.
  void Keep(const std::string& device = "Harbour") {
    form->findChild<QTimer*>("UnsentTimer")->setInterval(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(Unsent(device)); }));
  }
  // Opens what was left by a process that died, with all its sections.
  void OpenKept() {
    const WhenShown<SelFileItemDlg> person(
        [](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
    note().ButtonKept->OpenKept->trigger();
  }

  TempFolder folder;
  Bench bench = benches::Named("Harbour");
  ScriptedJoystick joystick;
  std::optional<RigLibrary> library;
  std::unique_ptr<MortaneMainForm> form;
};

TEST_F(Kept, IsTheStateBeforeASendOnce) {
  Start();
  const std::int32_t before = GetK70().curNosepiece.code(1);
  Edit(before == 7 ? 8 : 7);
  library->journal.Clear();
  form->MenuConnectSend->trigger();
  ASSERT_EQ(List().size(), 1U);
  EXPECT_EQ(note().text().toStdString(), "Harbour · Sent 14:05");
  DomDocument document;
  ASSERT_TRUE(document.Load(List().front().path));
  GetK70().ReadItems(document, "backup");
  EXPECT_TRUE(GetK70().ReadSections(document, "backup"));
  EXPECT_EQ(GetK70().curNosepiece.code(1), before);
  form->MenuConnectReceive->trigger();
  form->MenuConnectSend->trigger();
  EXPECT_EQ(List().size(), 2U) << "the state of the first Send";
  form->MenuConnectSend->trigger();
  EXPECT_EQ(List().size(), 2U) << "the newest one is the same";
}

TEST_F(Kept, ASendGoesOnWithoutABackupAndSaysSo) {
  Start(folder.Write("taken", ""));
  Edit(7);
  form->MenuConnectSend->trigger();
  EXPECT_EQ(note().text().toStdString(), "Harbour · Sent 14:05, no backup");
}

TEST_F(Kept, EditsAreThereWhileTheyAreNotSent) {
  Start();
  EXPECT_FALSE(std::filesystem::exists(Unsent()));
  Edit(7);
  Keep();
  EXPECT_NE(TempFolder::Read(Unsent()).find("<Setup>"), std::string::npos);
  form->MenuConnectSend->trigger();
  DeliverAll();
  EXPECT_FALSE(std::filesystem::exists(Unsent()));
}

TEST_F(Kept, EditsAreGoneAfterAnOrderlyEnd) {
  Start();
  Edit(7);
  Keep();
  form->Unload();
  EXPECT_FALSE(std::filesystem::exists(Unsent()));
}

TEST_F(Kept, EditsAreNotWrittenAnyMoreAfterAnOrderlyEnd) {
  Start();
  Edit(7);
  auto& timer = *form->findChild<QTimer*>("UnsentTimer");
  ASSERT_TRUE(timer.isActive());
  timer.setInterval(0);
  form->Unload();
  DeliverAll();
  EXPECT_FALSE(std::filesystem::exists(Unsent()));
}

TEST_F(Kept, EditsOfAProcessThatDiedAreOfferedAndOpened) {
  Start();
  EXPECT_TRUE(note().ButtonKept->isHidden());
  const std::int32_t edited = GetK70().curNosepiece.code(1) == 7 ? 8 : 7;
  Edit(edited);
  Keep();
  End();
  Start();
  EXPECT_FALSE(note().ButtonKept->isHidden());
  EXPECT_TRUE(note().ButtonKept->text().startsWith("Unsent changes of "));
  ASSERT_NE(note().ButtonKept->menu(), nullptr);
  QStringList offered;
  for (const QAction* action : note().ButtonKept->menu()->actions()) offered << action->text();
  EXPECT_EQ(offered, QStringList({"Open", "Let Go"}));
  EXPECT_EQ(note().ButtonKept->popupMode(), QToolButton::InstantPopup);
  EXPECT_EQ(note().ButtonKept->focusPolicy(), Qt::TabFocus);
  EXPECT_TRUE(note().ButtonKept->autoRaise()) << "flat like the note beside it";
  QApplication::processEvents();
  const QToolButton& button = *note().ButtonKept;
  EXPECT_EQ(button.size(), button.sizeHint());
  EXPECT_TRUE(button.parentWidget()->rect().contains(button.geometry()));
  EXPECT_FALSE(button.geometry().intersects(note().geometry()));
  EXPECT_NE(GetK70().curNosepiece.code(1), edited);
  OpenKept();
  EXPECT_EQ(GetK70().curNosepiece.code(1), edited);
  EXPECT_TRUE(note().ButtonKept->isHidden());
  EXPECT_TRUE(std::filesystem::exists(Unsent())) << "kept anew before the old file goes";
  EXPECT_EQ(UnsentFiles(), 1);
}

TEST_F(Kept, EditsOfAProcessThatDiedStayUntilTheyAreLetGo) {
  Start();
  Edit(7);
  Keep();
  End();
  Start();
  Edit(8);
  form->Unload();
  EXPECT_EQ(UnsentFiles(), 1) << "not decided yet";
  End();
  Start();
  note().ButtonKept->LetKeptGo->trigger();
  EXPECT_TRUE(note().ButtonKept->isHidden());
  EXPECT_EQ(UnsentFiles(), 0);
}

TEST_F(Kept, EditsOfSeveralProcessesThatDiedAreOfferedOneByOneTheLastOnesFirst) {
  for (const std::int32_t code : {7, 8}) {
    Start();
    Edit(code);
    Keep();
    std::filesystem::last_write_time(
        Unsent(), std::filesystem::file_time_type::clock::now() + std::chrono::seconds(code));
    End();
  }
  Start();
  OpenKept();
  EXPECT_EQ(GetK70().curNosepiece.code(1), 8);
  EXPECT_FALSE(note().ButtonKept->isHidden());
  OpenKept();
  EXPECT_EQ(GetK70().curNosepiece.code(1), 7);
  EXPECT_TRUE(note().ButtonKept->isHidden());
}

TEST_F(Kept, EditsOfADeviceWithoutANameAreOfferedToo) {
  bench.instruments.back().name.clear();
  Start();
  Edit(7);
  Keep("");
  End();
  Start();
  EXPECT_FALSE(note().ButtonKept->isHidden());
}

TEST_F(Kept, EditsOfAProcessThatDiedStayOfferedWhenTheDeviceGetsAnotherName) {
  Start();
  const std::int32_t edited = GetK70().curNosepiece.code(1) == 7 ? 8 : 7;
  Edit(edited);
  Keep();
  End();
  Start();
  GetK70().SystemName = "Pier";
  form->MenuConnectSend->trigger();
  EXPECT_EQ(UnsentFiles(), 0);
  EXPECT_EQ(UnsentFiles("Pier"), 1);
  OpenKept();
  EXPECT_EQ(GetK70().curNosepiece.code(1), edited);
  EXPECT_TRUE(note().ButtonKept->isHidden());
}

// Works the dialog that chooses among several microscopes.
std::function<void(SelScopeDlg&)> Choose(int line) {
  return [line](SelScopeDlg& dialog) {
    dialog.List1->setIndex(line);
    dialog.OkButton->click();
  };
}

TEST_F(Kept, EditsOfAProcessThatDiedAreOfferedWhileTheirMicroscopeIsConnected) {
  bench = Microscopes({"Alpha", "Beta"});
  {
    const WhenShown<SelScopeDlg> person(Choose(0));
    Start();
  }
  Edit(7);
  Keep("Alpha");
  End();
  {
    const WhenShown<SelScopeDlg> person(Choose(1));
    Start();
  }
  EXPECT_FALSE(note().ButtonKept->isVisible());
  {
    const WhenShown<SelScopeDlg> person(Choose(0));
    form->MenuConnectSelect->trigger();
  }
  EXPECT_TRUE(note().ButtonKept->isVisible());
  library->faults.Add({"DeviceList.Item(2).Connect"});
  library->prompts.ExpectBox("Device Connect Error.", 16);
  const WhenShown<SelScopeDlg> person(Choose(1));
  form->MenuConnectSelect->trigger();
  EXPECT_FALSE(note().ButtonKept->isVisible());
}

TEST_F(Kept, EditsAreThereWhileABoxStands) {
  Start();
  Edit(7);
  const WhenShown<QMessageBox> person([this](QMessageBox& box) {
    Keep();
    box.accept();
  });
  QMessageBox(QMessageBox::NoIcon, {}, {}, QMessageBox::Ok, form.get()).exec();
}

TEST_F(Kept, EditsRightBeforeACommandAreThereWhileItAsks) {
  Start();
  GetK70().curNosepiece.code(1, 7);
  QTest::keyClick(form.get(), Qt::Key_Shift);
  library->prompts.AcceptAnyBox();
  const WhenShown<SelScopeDlg> person([this](SelScopeDlg& dialog) {
    Keep();
    dialog.reject();
  });
  form->MenuConnectSelect->trigger();
}

// What a drag of these files over the window comes to.
bool TakesDrop(QWidget& window, const QList<QUrl>& urls) {
  QMimeData data;
  data.setUrls(urls);
  QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  enter.ignore();
  QApplication::sendEvent(&window, &enter);
  if (!enter.isAccepted()) return false;
  QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window, &drop);
  return drop.isAccepted();
}

TEST_F(Kept, ASettingsFileThatIsDroppedIsOpened) {
  Start();
  const std::string path =
      folder.Write("a.XML", "<Setup><SYSTEM><QHRMNAME NAME=\"From File\"/></SYSTEM></Setup>");
  const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  EXPECT_TRUE(TakesDrop(*form, {QUrl::fromLocalFile(QString::fromStdString(path))}));
  EXPECT_TRUE(QTest::qWaitFor([] { return GetK70().SystemName == "From File"; }));
}

TEST_F(Kept, NothingElseIsTakenByDropping) {
  Start();
  const QUrl settings = QUrl::fromLocalFile(QString::fromStdString(folder.Write("a.xml", "")));
  for (const QList<QUrl>& urls :
       {QList<QUrl>{}, QList<QUrl>{settings, settings}, QList<QUrl>{QUrl("http://host/a.xml")},
        QList<QUrl>{QUrl::fromLocalFile(QString::fromStdString(folder.Write("a.txt", "")))},
        QList<QUrl>{QUrl::fromLocalFile(QString::fromStdString(folder.Path("gone.xml")))}}) {
    EXPECT_FALSE(TakesDrop(*form, urls)) << urls.size();
  }
}

TEST_F(Kept, AFileIsNoTextThatIsDroppedOnAField) {
  Start();
  auto* field = form->findChild<TextField*>("TextSystemName");
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(folder.Write("a.txt", "")))});
  QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(field, &enter);
  EXPECT_FALSE(enter.isAccepted());
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(folder.Write("a.xml", "")))});
  QDragEnterEvent settings(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(field, &settings);
  EXPECT_TRUE(settings.isAccepted()) << "by the window";
}

TEST_F(Kept, NothingIsTakenByDroppingUnderABox) {
  Start();
  const QUrl settings = QUrl::fromLocalFile(QString::fromStdString(folder.Write("a.xml", "")));
  const WhenShown<QMessageBox> person([&](QMessageBox& box) {
    EXPECT_FALSE(TakesDrop(*form, {settings}));
    box.accept();
  });
  QMessageBox(QMessageBox::NoIcon, {}, {}, QMessageBox::Ok, form.get()).exec();
}

TEST_F(Kept, TheListOfChangesIsSavedAsARecord) {
  Start();
  Edit(7);
  library->prompts.ExpectFileToSave(folder.Path("record.html"));
  const WhenShown<DifferencesDlg> person([](DifferencesDlg& dialog) {
    dialog.ButtonSaveRecord->click();
    dialog.ButtonClose->click();
  });
  note().ButtonPending->click();
  EXPECT_NE(TempFolder::Read(folder.Path("record.html")).find("<html"), std::string::npos);
}

}  // namespace
}  // namespace mortane::test

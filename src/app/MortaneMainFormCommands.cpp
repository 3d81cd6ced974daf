// The commands of the main window.
#include <QAction>
#include <QFileInfo>
#include <QPointer>
#include <QRadioButton>

#include "app/CommandBoundary.h"
#include "app/DifferencesDlg.h"
#include "app/MortaneMainForm.h"
#include "app/SettingsFiles.h"
#include "common/Text.h"
#include "hub/clsK70.h"
#include "platform/AtomicFile.h"
#include "record/Report.h"
#include "widgets/CommandKey.h"
#include "widgets/LatePage.h"
#include "widgets/Page.h"
#include "widgets/PageButton.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kWaitAfterSendMs = 3000;
constexpr std::size_t kControlPage = 5;

// Whether a Send lists what differs before it writes.
constexpr bool ModifyBeforeSend() {
  return false;
}

}  // namespace

void MortaneMainForm::Run(Command command) {
  RunCommand([this, command] { (this->*command)(); });
}

void MortaneMainForm::OnToolbarButton(int position) {
  switch (position) {
    case 1:
      return Run(&MortaneMainForm::DoOpen);
    case 2:
      return Run(&MortaneMainForm::DoSave);
    case 4:
      return Run(&MortaneMainForm::DoSelect);
    case 5:
      return Run(&MortaneMainForm::DoReceive);
    case 6:
      return Run(&MortaneMainForm::DoSend);
    default:
      return;
  }
}

void MortaneMainForm::DoOpen() {
  MakeLoadedPages(*this);
  TakeOpened(OpenSettings(prompts(), CommonDialog1, this));
}

void MortaneMainForm::TakeOpened(const FileResult& file) {
  if (!file.path.empty()) LoadAllPages();
  NoteFile(SessionNote::Act::Opened, file);
  prompts().FlushInput();
}

void MortaneMainForm::OpenDropped(const std::string& path) {
  RunCommand([this, path] {
    MakeLoadedPages(*this);
    TakeOpened(OpenSettingsFile(prompts(), path, this));
  });
}

void MortaneMainForm::DoSave() {
  SaveCurrentPage();
  NoteFile(SessionNote::Act::Saved, SaveSettings(prompts(), CommonDialog1));
  prompts().FlushInput();
}

void MortaneMainForm::DoReceive() {
  MakeLoadedPages(*this);
  {
    const HourglassScope hourglass(prompts());
    note_->ShowRunning(u"Receiving..."_s);
    Outcome outcome = Outcome::WithFailures;
    RunStep(prompts(), [&] { outcome = OutcomeOf(GetK70().Receive()); });
    TakeReceived();
    LoadAllPages();
    NoteTransfer(SessionNote::Act::Received, outcome);
  }
  prompts().FlushInput();
}

void MortaneMainForm::DoSend() {
  const QPointer<QWidget> focus = focusWidget();
  {
    const HourglassScope hourglass(prompts());
    setEnabled(false);
    note_->ShowRunning(u"Sending..."_s);
    repaint();  // the thread stands still from here on
    SaveCurrentPage();
    RunStep(prompts(), [] {
      if (ModifyBeforeSend()) static_cast<void>(GetK70().Modify());
    });
    const bool kept = KeepBackup();
    Outcome outcome = Outcome::WithFailures;
    RunStep(prompts(), [&] { outcome = OutcomeOf(GetK70().Send()); });
    if (Page* control = pages_[kControlPage]) {
      RunStep(prompts(), [control] { control->SendData(); });
    }
    TakeSent(outcome);
    ShowStored();
    NoteTransfer(SessionNote::Act::Sent, outcome, kept ? QString() : u", no backup"_s);
    repaint();  // over what a box of failures leaves on the display
    prompts().Wait(kWaitAfterSendMs);
  }
  setEnabled(true);
  if (focus) focus->setFocus();
  prompts().FlushInput();
}

// SaveData stores another value in place of a text that the field refuses.
void MortaneMainForm::ShowStored() {
  if (Page* page = CurrentPage()) RunStep(prompts(), [page] { page->ShowStored(); });
}

void MortaneMainForm::SaveRecord() {
  const std::string path =
      prompts().AskFileToSave({kFileSaveFlags, "HTML File (*.html)|*.html", ".html"});
  if (path.empty()) return;
  const clsK70& k70 = GetK70();
  WriteFileAtomically(path, ReportAsHtml({.state = StateOf(k70),
                                          .before = Pending().HeldState(),
                                          .device = Pending().Device(),
                                          .time = LocalTime(std::chrono::system_clock::now()),
                                          .version = MORTANE_VERSION,
                                          .accessories = AccessoriesOf(k70)}));
}

void MortaneMainForm::DoShowPending() {
  DifferencesDlg::Content content{
      Pending().Find(), Pending().HeldNames(), ItemNames(GetK70()), {}, [this] {
        RunStep(prompts(), [this] { SaveRecord(); });
      }};
  for (const PageRow& row : table_) content.pageTitles.push_back(row.title);
  DifferencesDlg dialog(content, this);
  dialog.exec();
  if (const std::optional<std::size_t> chosen = dialog.ChosenChange()) {
    GoTo(content.changes[*chosen]);
  }
}

void MortaneMainForm::GoTo(const ItemChange& change) {
  const std::size_t page = PageOf(change.to.key);
  if (!ImageButton[page]->isEnabled()) return;
  optMenu[page]->setChecked(true);
  Marks().GoTo(change, Pending().HeldNames());
}

void MortaneMainForm::DoExit() {
  AskAndUnload();
  prompts().FlushInput();
}

void MortaneMainForm::DoSelect() {
  MakeLoadedPages(*this);
  const std::int16_t device = AskDevice();
  if (device < 0 || device == GetK70().lConnectDevice) {
    prompts().FlushInput();
    return;
  }
  GetK70().Disconnect();
  TakeDisconnected();
  NoteConnection();
  if (!GetK70().CreateConnectionName(std::to_string(device))) {
    prompts().MsgBox("Other Application has already used this Microscope.", box::kOk);
    EnableTransfers(false);
    return;
  }
  const bool connected = GetK70().Connect(device);
  NoteConnection();
  if (!connected) {
    prompts().MsgBox("Device Connect Error.", box::kCritical);
    return;
  }
  TakeConnected();
  DoReceive();
  NoteKept();
  EnableTransfers(true);
  RefreshPages();
  prompts().FlushInput();
}

// Kept: the buttons of the tool bar stay enabled. A transfer without a connection lists its
// failures.
void MortaneMainForm::EnableTransfers(bool enabled) {
  ImageCommand[1]->setEnabled(enabled);
  ImageCommand[2]->setEnabled(enabled);
  MenuConnectReceive->setEnabled(enabled);
  MenuConnectSend->setEnabled(enabled);
}

// The name that the controller is known to hold: as it was connected, received or sent.
void MortaneMainForm::NoteConnection() {
  const clsK70& k70 = GetK70();
  if (k70.lConnectDevice < 0) return note_->ShowNoMicroscope();
  note_->ShowMicroscope(QString::fromStdString(FirstCharacters(k70.SystemName, kSystemNameLength)),
                        k70.lConnectDevice == kSimulator);
}

// Without a connection nothing of a transfer was done.
void MortaneMainForm::NoteTransfer(SessionNote::Act act, Outcome outcome, const QString& remark) {
  if (!IsConnected()) outcome = Outcome::NotDone;
  if (outcome == Outcome::Complete) NoteConnection();
  note_->ShowDone(act, outcome, Now().toString(u"HH:mm"_s) + remark);
}

void MortaneMainForm::NoteFile(SessionNote::Act act, const FileResult& file) {
  if (!file.outcome) return;
  note_->ShowDone(act, *file.outcome, QFileInfo(QString::fromStdString(file.path)).fileName());
}

}  // namespace mortane

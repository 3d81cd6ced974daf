#include "app/ProgramForm.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <utility>

#include "app/CommandBoundary.h"
#include "app/ConnectMicroscope.h"
#include "app/InputFlush.h"
#include "app/KeptButton.h"
#include "app/Manual.h"
#include "app/SelScopeDlg.h"
#include "app/SettingsFiles.h"
#include "common/Failure.h"
#include "hub/DeviceAvailability.h"
#include "hub/clsK70.h"
#include "platform/AtomicFile.h"
#include "record/Backups.h"
#include "widgets/LatePage.h"
#include "widgets/ProgressLine.h"
#include "widgets/Theme.h"

namespace mortane {

namespace {

// Of the edits that are not sent.
constexpr int kBetweenWritesMs = 1000;

bool IsSameAs(const Backup& backup, const DomDocument& document) {
  try {
    return ReadWholeFile(backup.path) == document.ToText();
  } catch (const Failure&) {
    return false;
  }
}

}  // namespace

ProgramForm::ProgramForm(const FormServices& services, const QString& title)
    : CommonDialog1(SettingsFileQuestion()),
      services_(services),
      place_(services.placeFile),
      pending_(services.k70),
      unsent_(services.unsentFolder, services.k70) {
  setWindowTitle(title);
  setContextMenuPolicy(Qt::PreventContextMenu);  // which would offer to hide the tool bar
  BuildStatusBar();
  connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, &ProgramForm::ShowManual);
  pendingTimer_.setObjectName("PendingTimer");
  pendingTimer_.setSingleShot(true);
  connect(&pendingTimer_, &QTimer::timeout, this, &ProgramForm::LookForPending);
  unsentTimer_.setObjectName("UnsentTimer");
  unsentTimer_.setSingleShot(true);
  unsentTimer_.setInterval(kBetweenWritesMs);
  connect(&unsentTimer_, &QTimer::timeout, this, &ProgramForm::KeepUnsent);
  QCoreApplication::instance()->installEventFilter(this);
}

// Panels 1 to 4 stay empty and take no room.
void ProgramForm::BuildStatusBar() {
  StatusBar1 = statusBar();
  StatusBar1->setSizeGripEnabled(false);
  StatusBar1->setContentsMargins(0, 0, grid::kBetweenColumns, 0);
  versionPanel_ = new QLabel(StatusBar1);
  versionPanel_->setFont(CaptionFont());
  versionPanel_->setForegroundRole(QPalette::PlaceholderText);
  StatusBar1->addPermanentWidget(versionPanel_);
}

void ProgramForm::SetContent(QWidget* content) {
  auto* center = new QWidget(this);
  auto* cell = new QGridLayout(center);
  cell->setContentsMargins({});
  cell->addWidget(content, 0, 0);
  progress_ = new ProgressLine(center);
  cell->addWidget(progress_, 0, 0, Qt::AlignBottom);
  progress_->raise();
  setCentralWidget(center);
  if (!place_.Restore(*this)) resize(OpeningSize(screen()->availableSize()));
}

void ProgramForm::ShowVersion() {
  versionPanel_->setText(QStringLiteral(MORTANE_VERSION));
}

// The field with the focus keeps it, and its text.
void ProgramForm::ShowManual() {
  RunCommand([this] { OpenManual(services_.manualFolder, Chapter(), prompts()); });
}

bool ProgramForm::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) Start();
  if (event->type() == QEvent::WindowUnblocked) AskWhenFree();
  return QMainWindow::event(event);
}

// Some platforms never tell a window that it is active; the first painting stands in for it.
void ProgramForm::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  Start();
}

// The start path opens dialogs, so it runs from the event loop and not inside an event.
void ProgramForm::Start() {
  if (std::exchange(startBegun_, true)) return;
  QTimer::singleShot(0, this, [this] {
    RunCommand([this] { FirstActivation(); });
    startEnded_ = true;
    LookForPending();
  });
}

void ProgramForm::FirstActivation() {
  bool connected = false;
  Outcome outcome = Outcome::NotDone;
  RunStep(prompts(), [&] {
    connected = ConnectMicroscope({GetK70(), services_.library, prompts(), services_.arguments,
                                   [this] { return std::int32_t{AskDevice()}; },
                                   [&](Outcome received) {
                                     outcome = received;
                                     TakeReceived();
                                   }});
  });
  if (connected) {
    OnConnected(outcome);
  } else {
    Unload();
  }
}

void ProgramForm::RunCommand(const std::function<void()>& command) {
  if (commandRunning_) return;
  if (pendingTimer_.isActive()) LookForPending();  // the command may stand in a dialog for long
  commandRunning_ = true;
  const QPointer<QWidget> form(this);  // a command may end it
  RunStep(prompts(), command);
  if (!form) return;
  commandRunning_ = false;
  AskWhenFree();
  pendingTimer_.start(0);
}

// Whatever a person does may have stored an edit by the time that the event loop comes round.
bool ProgramForm::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::FocusOut:
    case QEvent::Wheel:
    case QEvent::Drop:
      if (!commandRunning_) pendingTimer_.start(0);
      break;
    default:
      break;
  }
  return QMainWindow::eventFilter(watched, event);
}

// The end of a command starts the timer anew, and so does the end of a flush. A window that has
// closed keeps nothing any more.
void ProgramForm::LookForPending() {
  if (!startEnded_ || commandRunning_ || !isVisible()) return;
  if (InputFlush::IsRunning()) {
    InputFlush::WhenOver(*this, [this] { pendingTimer_.start(0); });
    return;
  }
  const std::vector<ItemChange> changes = pending_.Find();
  if (changes.empty()) {
    unsentTimer_.stop();
    unsent_.Remove();
  } else if (!unsentTimer_.isActive()) {
    unsentTimer_.start();
  }
  marks_.Show(changes, pending_.HeldNames());
  ShowPending(changes);
}

// Under a box and a dialog, too, which may stand there when the process dies.
void ProgramForm::KeepUnsent() {
  if (InputFlush::IsRunning()) return unsentTimer_.start();
  unsent_.Keep();
}

void ProgramForm::OfferKept(KeptButton& button, std::function<void(const FileResult&)> opened) {
  kept_ = &button;
  keptOpened_ = std::move(opened);
  connect(button.OpenKept, &QAction::triggered, this,
          [this] { RunCommand([this] { OpenKept(); }); });
  connect(button.LetKeptGo, &QAction::triggered, this,
          [this] { RunCommand([this] { LetKeptGo(); }); });
}

void ProgramForm::NoteKept() {
  kept_->ShowLeft(unsent_.FromBefore());
}

void ProgramForm::OpenKept() {
  const auto left = unsent_.FromBefore();
  if (!left) return;
  MakeLoadedPages(*this);
  const FileResult file = OpenSettingsFile(prompts(), left->path, this);
  if (file.outcome && *file.outcome != Outcome::NotDone) {
    unsent_.Keep();
    unsent_.Forget(*left);
  }
  NoteKept();
  keptOpened_(file);
}

void ProgramForm::LetKeptGo() {
  if (const auto left = unsent_.FromBefore()) unsent_.Forget(*left);
  NoteKept();
}

void ProgramForm::TakeReceived() {
  if (!isConnected_) return;
  const bool first = pending_.Held() == nullptr;
  pending_.TakeReceived();
  if (first) {
    unsent_.Follow(pending_.Device());
  } else {
    unsent_.Rename(pending_.Device());
  }
}

void ProgramForm::TakeSent(Outcome sent) {
  if (!isConnected_) return;
  pending_.TakeSent(sent);
  unsent_.Rename(pending_.Device());
}

void ProgramForm::TakeConnected() {
  isConnected_ = true;
}

void ProgramForm::TakeDisconnected() {
  isConnected_ = false;
  pending_.Forget();
  unsent_.Remove();
  unsent_.FollowNone();
  NoteKept();
}

bool ProgramForm::KeepBackup() const {
  const DomDocument* held = pending_.Held();
  if (services_.backupFolder.empty() || held == nullptr) return true;
  try {
    const Backups backups(services_.backupFolder, pending_.Device());
    const std::vector<Backup> kept = backups.List();
    if (kept.empty() || !IsSameAs(kept.front(), *held)) backups.Keep(*held);
    return true;
  } catch (const Failure&) {
    return false;
  }
}

// A command, an act of a page that drops input at its end, and a box that stands over the window.
bool ProgramForm::IsBusy() const {
  return commandRunning_ || InputFlush::IsRunning() || QApplication::activeModalWidget() != nullptr;
}

// From the event loop, when what a page does around a flush or a box has come to its end, too.
void ProgramForm::AskWhenFree() {
  if (!closeRequested_) return;
  InputFlush::WhenOver(*this, [this] {
    if (!closeRequested_ || IsBusy()) return;
    closeRequested_ = false;
    if (isVisible()) RunCommand([this] { AskAndUnload(); });
  });
}

std::int16_t ProgramForm::AskDevice() {
  SelScopeDlg dialog(
      GetK70(), prompts(),
      [this](std::int32_t n) { return IsDeviceAvailable(services_.library, n); }, this);
  dialog.exec();
  return dialog.Selected;
}

bool ProgramForm::AgreesToExit() {
  return prompts().MsgBox("Exit Setup?\r\nPush OK to Exit.", box::kOkCancel + box::kQuestion,
                          windowTitle().toStdString()) == Answer::Ok;
}

void ProgramForm::AskAndUnload() {
  if (AgreesToExit()) Unload();
}

void ProgramForm::Unload() {
  close();
}

// Only a person who closes the window is asked: the program's own close and the end of the session,
// which lets the program close its windows, come without a question. A request that comes in during
// a command, a flush or a box waits for its end.
void ProgramForm::closeEvent(QCloseEvent* event) {
  if (!isVisible()) return;
  if (event->spontaneous() && IsBusy()) {
    closeRequested_ = true;
    event->ignore();
    AskWhenFree();
  } else if (event->spontaneous() && !AgreesToExit()) {
    event->ignore();
  } else {
    place_.Keep(*this);
    unsentTimer_.stop();
    unsent_.Remove();
  }
}

}  // namespace mortane

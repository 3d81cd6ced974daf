// What the windows of the programs do alike: the start path at the first activation, one command
// at a time, and the question before closing.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <cstdint>
#include <functional>

#include "app/FormServices.h"
#include "app/Outcome.h"
#include "app/PendingChanges.h"
#include "app/PendingMarks.h"
#include "app/UnsentEdits.h"
#include "app/WindowPlace.h"
#include "common/Prompts.h"
#include "widgets/Control.h"

class QLabel;
class QStatusBar;

namespace mortane {

class KeptButton;
class ProgressLine;
struct FileResult;

// Made once by the program, which calls Load and shows it. The first activation connects a
// microscope; when there is none to be had, the window closes itself.
class ProgramForm : public QMainWindow {
 public:
  ProgramForm(const FormServices& services, const QString& title);

  // Brings the controls to their first state.
  virtual void Load() = 0;

  // Closes the window without the question that the close box asks.
  void Unload();

  // Keeps the state that a Send is about to overwrite, unless the newest backup is the same. False
  // where that was not possible; the Send goes on either way.
  bool KeepBackup() const;

  // Whether the start path has come to its end.
  bool IsStarted() const { return startEnded_; }

  Control<QStatusBar> StatusBar1{"StatusBar1"};
  FileQuestion CommonDialog1;

  // The line that shows how far a transfer is.
  ProgressLine* Progress() const { return progress_; }

 protected:
  // A microscope is connected, and the model filled from it.
  virtual void OnConnected(Outcome received) = 0;

  // Everything between tool bar and status bar. The window gets its size and place.
  void SetContent(QWidget* content);
  // Writes the program's version into panel 5 of the status bar.
  void ShowVersion();

  // The chapter of the manual that tells of what the window shows.
  [[nodiscard]] virtual QString Chapter() const = 0;
  void ShowManual();

  // A command that is asked for while another runs is dropped.
  void RunCommand(const std::function<void()>& command);

  // The device chosen in the selection dialog, -1 for none.
  std::int16_t AskDevice();
  // Closes the window if the person agrees.
  void AskAndUnload();

  // The edits that are not sent yet, told whenever they may have changed but during a command.
  virtual void ShowPending(const std::vector<ItemChange>& changes) = 0;
  const PendingChanges& Pending() const { return pending_; }
  PendingMarks& Marks() { return marks_; }
  // The window's button for what a session that died has left unsent; `opened` is told when the
  // person has opened it, as any settings file.
  void OfferKept(KeptButton& button, std::function<void(const FileResult&)> opened);
  // Shows the button where something was left for the device that is connected.
  void NoteKept();
  // The model was received or was sent. Without a connection neither counts: what the model holds
  // belongs to no microscope then.
  void TakeReceived();
  void TakeSent(Outcome sent);
  // Another microscope was chosen: the former one is gone, and the new one is there or is not.
  void TakeDisconnected();
  void TakeConnected();
  [[nodiscard]] bool IsConnected() const { return isConnected_; }

  Prompts& prompts() const { return services_.prompts; }
  // The time of day.
  QTime Now() const { return services_.now(); }

  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildStatusBar();
  void Start();
  void FirstActivation();
  bool AgreesToExit();
  [[nodiscard]] bool IsBusy() const;
  void AskWhenFree();
  void LookForPending();
  void KeepUnsent();
  void OpenKept();
  void LetKeptGo();

  FormServices services_;
  WindowPlace place_;
  Control<QLabel> versionPanel_{"StatusBar1_5"};
  ProgressLine* progress_ = nullptr;
  PendingChanges pending_;
  PendingMarks marks_{*this};
  QTimer pendingTimer_{this};  // for one comparison after all input of a round of the event loop
  UnsentEdits unsent_;
  KeptButton* kept_ = nullptr;
  std::function<void(const FileResult&)> keptOpened_;
  QTimer unsentTimer_{this};
  bool startBegun_ = false;
  bool startEnded_ = false;
  bool commandRunning_ = false;
  bool closeRequested_ = false;
  bool isConnected_ = true;  // the window ends where the start path does not connect
};

}  // namespace mortane

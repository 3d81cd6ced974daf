#include "app/QtPrompts.h"

#include <QApplication>
#include <QTimer>
#include <utility>

#include "app/FileDialog.h"
#include "app/PromptBox.h"
#include "widgets/ProgressLine.h"

namespace mortane {
namespace {

std::string AskFile(QFileDialog::AcceptMode mode, const FileQuestion& question,
                    RecentFiles& recent) {
  const QPointer<FileDialog> dialog = new FileDialog(mode, question, recent);
  const QString path = dialog->Ask();
  delete dialog;  // nothing, where its window has ended and taken it along
  if (!path.isEmpty()) recent.Add(path);
  return path.toStdString();
}

}  // namespace

QtPrompts::QtPrompts(Sleeper sleep, RecentFiles recent)
    : sleep_(std::move(sleep)), recent_(std::move(recent)) {}

void QtPrompts::ShowProgressOn(ProgressLine* line) {
  progress_ = line;
}

Answer QtPrompts::MsgBox(const std::string& text, int style, const std::string& caption) {
  return PromptBox(text, style, caption).Ask();
}

Answer QtPrompts::TimedMsgBox(int milliseconds, const std::string& prompt, int style,
                              const std::string& title, const std::string&, int) {
  bool timeRanOut = false;
  PromptBox box(prompt, style, title);
  // Repeating: a tick that comes before the box stands would otherwise leave it open for ever.
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
    timeRanOut = true;
    box.Close();
  });
  timer.start(milliseconds);
  const Answer answer = box.Ask();
  timer.stop();
  return timeRanOut ? Answer::TimedOut : answer;
}

std::string QtPrompts::AskFileToOpen(const FileQuestion& question) {
  return AskFile(QFileDialog::AcceptOpen, question, recent_);
}

std::string QtPrompts::AskFileToSave(const FileQuestion& question) {
  return AskFile(QFileDialog::AcceptSave, question, recent_);
}

void QtPrompts::SetPointer(Pointer pointer) {
  if (pointer == Pointer::Hourglass) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
  ClearEndedProgress();
}

void QtPrompts::FlushInput() {
  flush_.Run();
}

void QtPrompts::Wait(int milliseconds) {
  sleep_(milliseconds);
}

void QtPrompts::ShowProgress(int done, int total) {
  if (!progress_) return;
  progress_->setProgress(done, total);
  progressEnded_ = done >= total;
  ClearEndedProgress();
}

// A command may go on working, or wait, after its transfer.
void QtPrompts::ClearEndedProgress() {
  if (!progressEnded_ || QApplication::overrideCursor() != nullptr) return;
  progressEnded_ = false;
  if (progress_) progress_->clear();
}

}  // namespace mortane

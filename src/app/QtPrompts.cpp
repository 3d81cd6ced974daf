#include "app/QtPrompts.h"

#include <QApplication>
#include <QFileDialog>
#include <QTimer>
#include <utility>

#include "app/PromptBox.h"
#include "widgets/ProgressLine.h"

namespace mortane {
namespace {

constexpr int kOverwritePrompt = 2;
constexpr int kFileMustExist = 4096;

// "XML File (*.xml)|*.xml" as the toolkit spells it: "XML File (*.xml)".
QString NameFilter(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split(u'|');
  const QString label = parts.front().section(u'(', 0, 0).trimmed();
  const QString patterns = parts.back().split(u';').join(u' ');
  return QStringLiteral("%1 (%2)").arg(label, patterns);
}

std::string AskFile(QFileDialog::AcceptMode mode, const FileQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow());
  dialog.setAcceptMode(mode);
  dialog.setNameFilter(NameFilter(question.filter));
  dialog.setFileMode((question.flags & kFileMustExist) != 0 ? QFileDialog::ExistingFile
                                                            : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, (question.flags & kOverwritePrompt) == 0);
  // The extension is given with its dot, which the toolkit adds by itself.
  QString suffix = QString::fromStdString(question.defaultExtension);
  if (suffix.startsWith(u'.')) suffix.remove(0, 1);
  dialog.setDefaultSuffix(suffix);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().front().toStdString();
}

}  // namespace

QtPrompts::QtPrompts(Sleeper sleep) : sleep_(std::move(sleep)) {}

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
  return AskFile(QFileDialog::AcceptOpen, question);
}

std::string QtPrompts::AskFileToSave(const FileQuestion& question) {
  return AskFile(QFileDialog::AcceptSave, question);
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

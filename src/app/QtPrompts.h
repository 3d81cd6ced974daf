// The real boxes, file dialogs and pointer behind Prompts.
#pragma once

#include <QPointer>
#include <QString>
#include <functional>

#include "app/InputFlush.h"
#include "app/RecentFiles.h"
#include "common/Prompts.h"

namespace mortane {

class ProgressLine;

// Made by the program after its QApplication and before the model. Boxes stand over the active
// window, also while that window is disabled. File dialogs begin in the folder that was used last.
class QtPrompts : public Prompts {
 public:
  using Sleeper = std::function<void(int milliseconds)>;

  // `sleep` is the wait of Wait; the program sleeps for real. `recent` are the files that dialogs
  // begin with and add to.
  explicit QtPrompts(Sleeper sleep, RecentFiles recent = {});

  // Where ShowProgress draws; nowhere before a window gives its line. The line of a transfer that
  // has ended stays whole while the hourglass does.
  void ShowProgressOn(ProgressLine* line);

  Answer MsgBox(const std::string& text, int style, const std::string& caption = {}) override;
  Answer TimedMsgBox(int milliseconds, const std::string& prompt, int style,
                     const std::string& title, const std::string& helpFile = {},
                     int context = 0) override;
  std::string AskFileToOpen(const FileQuestion& question) override;
  std::string AskFileToSave(const FileQuestion& question) override;
  void SetPointer(Pointer pointer) override;
  void FlushInput() override;
  void Wait(int milliseconds) override;
  void ShowProgress(int done, int total) override;

 private:
  void ClearEndedProgress();

  Sleeper sleep_;
  QPointer<ProgressLine> progress_;
  bool progressEnded_ = false;
  RecentFiles recent_;
  InputFlush flush_;
};

}  // namespace mortane

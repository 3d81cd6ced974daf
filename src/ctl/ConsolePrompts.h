// What the core has to say, on the standard error of a program without windows.
#pragma once

#include <string>
#include <vector>

#include "common/Prompts.h"
#include "ctl/Surroundings.h"

namespace mortane::ctl {

// Nobody is asked: every box is kept, and answered as a person who does not agree would. Progress
// is a line that is written over, on a terminal only.
class ConsolePrompts : public Prompts {
 public:
  explicit ConsolePrompts(Surroundings& surroundings) : surroundings_(surroundings) {}
  ~ConsolePrompts() override;

  // The lines of all boxes since the last call.
  std::vector<std::string> TakeLines();

  // What the line of progress says is being done: "Receiving". Each step of a transfer raises
  // EndAsked when the program is to end.
  void NameTransfer(std::string name) { transfer_ = std::move(name); }
  // From now on transfers run to their end, whoever asks.
  void StayToTheEnd() { stays_ = true; }

  // One line on standard error, with the program's name.
  void Say(const std::string& line);

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
  void ClearProgress();

  Surroundings& surroundings_;
  std::vector<std::string> lines_;
  std::string transfer_ = "Working";
  bool stays_ = false;
  bool progressShown_ = false;
};

}  // namespace mortane::ctl

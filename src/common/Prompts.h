// How the core asks and informs the user: boxes, file dialogs, pointer, progress. Nothing else in
// the core shows anything.
#pragma once

#include <cstdint>
#include <string>

namespace mortane {

// Styles of a message box, added up: a button set and an icon.
namespace box {
inline constexpr int kOk = 0;
inline constexpr int kOkCancel = 1;
inline constexpr int kYesNo = 4;
inline constexpr int kCancelTryContinue = 6;
inline constexpr int kCritical = 16;
inline constexpr int kQuestion = 32;
inline constexpr int kExclamation = 48;
inline constexpr int kInformation = 64;
}  // namespace box

// The button that ended a box; the values are those of the platform's message box.
enum class Answer {
  TimedOut = 0,
  Ok = 1,
  Cancel = 2,
  Yes = 6,
  No = 7,
  TryAgain = 10,
  Continue = 11,
};

enum class Pointer { Default = 0, Hourglass = 11 };

// Flags of a file dialog, added up; the values are those of the platform's common dialog.
namespace dialogflag {
inline constexpr int kOverwritePrompt = 2;
inline constexpr int kHideReadOnly = 4;
inline constexpr int kPathMustExist = 2048;
inline constexpr int kFileMustExist = 4096;
}  // namespace dialogflag

// What a file dialog is to ask. `filter` is "label|pattern".
struct FileQuestion {
  int flags = 0;
  std::string filter;
  std::string defaultExtension;
};
inline constexpr int kFileOpenFlags =
    dialogflag::kHideReadOnly + dialogflag::kPathMustExist + dialogflag::kFileMustExist;
inline constexpr int kFileSaveFlags = dialogflag::kOverwritePrompt + dialogflag::kPathMustExist;

// The program shows real boxes; tests use a double that fails on a question nobody scripted.
// All calls come from the user-interface thread. An empty caption means the application's title.
class Prompts {
 public:
  virtual ~Prompts() = default;

  virtual Answer MsgBox(const std::string& text, int style, const std::string& caption = {}) = 0;

  // A box that closes itself after `milliseconds`. Once that time is over the answer is TimedOut,
  // even if a button was pressed before the box was gone. `helpFile` and `context` are not used.
  virtual Answer TimedMsgBox(int milliseconds, const std::string& prompt, int style,
                             const std::string& title, const std::string& helpFile = {},
                             int context = 0) = 0;

  // The chosen path; an empty text when the user cancelled. Dialogs start with no name.
  virtual std::string AskFileToOpen(const FileQuestion& question) = 0;
  virtual std::string AskFileToSave(const FileQuestion& question) = 0;

  // Every Hourglass is followed by one Default.
  virtual void SetPointer(Pointer pointer) = 0;

  // Drops the mouse and keyboard input that is queued, so that clicks made during a long
  // operation do not fire after it.
  virtual void FlushInput() = 0;

  // Blocks the thread; the program handles no input meanwhile.
  virtual void Wait(int milliseconds) = 0;

  // A transfer has finished `done` of `total` units; with done == total it has ended, and is shown
  // no longer than the hourglass.
  virtual void ShowProgress(int done, int total) = 0;
};

// Shows the hourglass for its lifetime.
class HourglassScope {
 public:
  explicit HourglassScope(Prompts& prompts) : prompts_(prompts) {
    prompts_.SetPointer(Pointer::Hourglass);
  }
  ~HourglassScope() { prompts_.SetPointer(Pointer::Default); }
  HourglassScope(const HourglassScope&) = delete;
  HourglassScope& operator=(const HourglassScope&) = delete;

 private:
  Prompts& prompts_;
};

}  // namespace mortane

// Prompts for tests: every question is scripted beforehand, and everything is recorded.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "common/Prompts.h"

namespace mortane {

// Questions must come in the order in which they were scripted, with exactly the text, style
// and caption given there. A question that nobody scripted fails the test, and so does an
// answer that nobody asked for when the double is destroyed.
class ScriptedPrompts : public Prompts {
 public:
  // What a box looked like. `milliseconds` is 0 but for a box that closes itself.
  struct Box {
    std::string text;
    int style = 0;
    std::string caption;
    int milliseconds = 0;

    bool operator==(const Box&) const = default;
  };
  using Action = std::function<void()>;

  ScriptedPrompts() = default;
  ~ScriptedPrompts() override;

  // Scripts the next box. `during` runs while the box stands.
  void ExpectBox(std::string text, int style, Answer answer = Answer::Ok, std::string caption = {},
                 Action during = {});
  void ExpectTimedBox(int milliseconds, std::string prompt, int style, std::string title,
                      Answer answer, Action during = {});
  // From here on every box without a script is answered with Ok and only recorded, for tests that
  // make many calls fail and check the boxes afterwards. With false only scripted ones again.
  void AcceptAnyBox(bool accept = true) { acceptAnyBox_ = accept; }
  // Scripts the next file dialog; an empty path is a person who cancels.
  void ExpectFileToOpen(std::string path);
  void ExpectFileToSave(std::string path);

  // Every call so far as one line of text: "box 16: text", "pointer 11", "flush",
  // "wait 3000", "progress 1/18", "open", "save".
  const std::vector<std::string>& Log() const { return log_; }
  const std::vector<Box>& Boxes() const { return boxes_; }
  const std::vector<FileQuestion>& FileQuestions() const { return fileQuestions_; }
  bool AllAnswersUsed() const { return boxScript_.empty() && fileScript_.empty(); }
  // 0 when every hourglass was taken back.
  int PointerBalance() const { return pointerBalance_; }
  void ClearRecords();

  // Runs with each new line of the log.
  Action onCall;

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
  struct BoxScript {
    Box box;
    Answer answer;
    Action during;
  };
  struct FileScript {
    std::string kind;  // "open" or "save"
    std::string path;
  };

  void Record(std::string line);
  Answer AnswerBox(Box box);
  std::string AnswerFile(const std::string& kind, const FileQuestion& question);

  std::deque<BoxScript> boxScript_;
  std::deque<FileScript> fileScript_;
  std::vector<std::string> log_;
  std::vector<Box> boxes_;
  std::vector<FileQuestion> fileQuestions_;
  int pointerBalance_ = 0;
  bool acceptAnyBox_ = false;
};

}  // namespace mortane

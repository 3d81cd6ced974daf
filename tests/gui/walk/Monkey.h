// A user without sense: works a window at random, the same way for the same seed.
#pragma once

#include <QPointer>
#include <QTimer>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "app/InputFlush.h"
#include "common/Prompts.h"

class QWidget;

namespace mortane::test {

// Answers boxes and file dialogs at random. The question before the end of the program is refused,
// unless the walk lets the program end.
class MonkeyPrompts : public Prompts {
 public:
  // Files to open are any of both lists, files to save those of the first.
  MonkeyPrompts(std::mt19937& random, std::vector<std::string> files,
                std::vector<std::string> foreign = {})
      : random_(random), files_(std::move(files)), foreign_(std::move(foreign)) {}

  // The texts of all boxes so far.
  std::vector<std::string> boxes;
  int hourglasses = 0;
  bool mayEnd = false;
  // Whether the question before the end was agreed to.
  bool agreedToEnd = false;
  // Whether a file to open was asked for.
  bool askedToOpen = false;
  // Whether a file that the program did not write was opened.
  bool openedForeign = false;

  Answer MsgBox(const std::string& text, int style, const std::string& caption) override;
  Answer TimedMsgBox(int milliseconds, const std::string& prompt, int style,
                     const std::string& title, const std::string& helpFile, int context) override;
  std::string AskFileToOpen(const FileQuestion& question) override;
  std::string AskFileToSave(const FileQuestion& question) override;
  void SetPointer(Pointer pointer) override { hourglasses += pointer == Pointer::Default ? -1 : 1; }
  void FlushInput() override { flush_.Run(); }
  void Wait(int) override {}
  void ShowProgress(int, int) override {}

 private:
  bool Agrees() { return random_() % 2 == 0; }

  std::mt19937& random_;
  std::vector<std::string> files_;
  std::vector<std::string> foreign_;
  InputFlush flush_;
};

class Monkey {
 public:
  // The window must outlive the monkey.
  Monkey(QWidget& window, std::mt19937& random);

  // One click, key, turn of the wheel or short text somewhere, and what it entails. Dialogs that it
  // opens are worked and closed.
  void Act();
  // A click somewhere in the window that comes while the program is at work.
  void PostClick();
  // Whether such a click came in the last act.
  bool HasPosted() const { return posted_; }

  // What was done last, for a failure's message.
  const std::string& LastAct() const { return last_; }
  // What the last act worked, what had the focus before, and all that these stand in. Some of it
  // may be gone.
  const std::set<const QObject*>& Worked() const { return worked_; }
  // Their names and classes.
  const std::set<QString>& WorkedNames() const { return workedNames_; }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
  template <typename List>
  std::size_t Any(const List& list) {
    return random_() % list.size();
  }
  void NoteWorked(const QWidget* control);
  std::vector<QWidget*> Controls(QWidget& top) const;
  void ActIn(QWidget& top);
  void Click(QWidget& control);
  void Turn(QWidget& control);
  void Press();
  void Fill(const std::vector<QWidget*>& controls);
  void ClickIfWorkable(QWidget* control);
  void Type();
  void WorkDialog();
  void ClosePopup();
  void PressInPopup();

  QWidget& window_;
  std::mt19937& random_;
  QTimer dialogs_;
  std::string last_;
  bool posted_ = false;
  std::set<const QObject*> worked_;
  std::set<QString> workedNames_;
};

}  // namespace mortane::test

// A user without sense: works the whole window at random, the same way for the same seed.
#pragma once

#include <QPointer>
#include <QTimer>
#include <random>
#include <string>
#include <vector>

#include "common/Prompts.h"

class QWidget;

namespace mortane::test {

// Answers boxes and file dialogs at random, but never lets the program end.
class MonkeyPrompts : public Prompts {
 public:
  MonkeyPrompts(std::mt19937& random, std::vector<std::string> files)
      : random_(random), files_(std::move(files)) {}

  // The texts of all boxes so far.
  std::vector<std::string> boxes;
  int hourglasses = 0;

  Answer MsgBox(const std::string& text, int style, const std::string& caption) override;
  Answer TimedMsgBox(int milliseconds, const std::string& prompt, int style,
                     const std::string& title, const std::string& helpFile, int context) override;
  std::string AskFileToOpen(const FileQuestion& question) override;
  std::string AskFileToSave(const FileQuestion& question) override;
  void SetPointer(Pointer pointer) override { hourglasses += pointer == Pointer::Default ? -1 : 1; }
  void FlushInput() override {}
  void Wait(int) override {}
  void ShowProgress(int, int) override {}

 private:
  std::string AnyFile();

  std::mt19937& random_;
  std::vector<std::string> files_;
};

class Monkey {
 public:
  // The window must outlive the monkey.
  Monkey(QWidget& window, std::mt19937& random);

  // One click, key, turn of the wheel or short text somewhere, and what it entails. Dialogs that it
  // opens are worked and closed.
  void Act();

  // What was done last, for a failure's message.
  const std::string& LastAct() const { return last_; }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
  template <typename List>
  std::size_t Any(const List& list) {
    return random_() % list.size();
  }
  std::vector<QWidget*> Controls(QWidget& top) const;
  void ActIn(QWidget& top);
  void Click(QWidget& control);
  void Turn(QWidget& control);
  void Press();
  void Type();
  void WorkDialog();
  void ClosePopup();

  QWidget& window_;
  std::mt19937& random_;
  QTimer dialogs_;
  std::string last_;
};

}  // namespace mortane::test

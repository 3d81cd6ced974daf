#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <utility>

namespace mortane {

namespace {

std::string Describe(const ScriptedPrompts::Box& box) {
  std::string text = "box " + std::to_string(box.style);
  if (box.milliseconds != 0) text += " for " + std::to_string(box.milliseconds) + " ms";
  if (!box.caption.empty()) text += " [" + box.caption + "]";
  return text + ": " + box.text;
}

}  // namespace

ScriptedPrompts::~ScriptedPrompts() {
  for (const BoxScript& script : boxScript_) {
    ADD_FAILURE() << "nobody asked: " << Describe(script.box);
  }
  for (const FileScript& script : fileScript_) {
    ADD_FAILURE() << "nobody asked for a file to " << script.kind;
  }
}

void ScriptedPrompts::ExpectBox(std::string text, int style, Answer answer, std::string caption,
                                Action during) {
  boxScript_.push_back(
      {{std::move(text), style, std::move(caption), 0}, answer, std::move(during)});
}

void ScriptedPrompts::ExpectTimedBox(int milliseconds, std::string prompt, int style,
                                     std::string title, Answer answer, Action during) {
  boxScript_.push_back(
      {{std::move(prompt), style, std::move(title), milliseconds}, answer, std::move(during)});
}

void ScriptedPrompts::ExpectFileToOpen(std::string path) {
  fileScript_.push_back({"open", std::move(path)});
}

void ScriptedPrompts::ExpectFileToSave(std::string path) {
  fileScript_.push_back({"save", std::move(path)});
}

void ScriptedPrompts::ClearRecords() {
  log_.clear();
  boxes_.clear();
  fileQuestions_.clear();
}

void ScriptedPrompts::Record(std::string line) {
  log_.push_back(std::move(line));
  if (onCall) onCall();
}

Answer ScriptedPrompts::AnswerBox(Box box) {
  const std::string told = Describe(box);
  Record(told);
  boxes_.push_back(std::move(box));
  if (boxScript_.empty()) {
    if (acceptAnyBox_) return Answer::Ok;
    ADD_FAILURE() << "nobody scripted: " << told;
    return Answer::Cancel;
  }
  const BoxScript script = std::move(boxScript_.front());
  boxScript_.pop_front();
  EXPECT_EQ(told, Describe(script.box)) << "another box was scripted";
  if (script.during) script.during();
  return script.answer;
}

std::string ScriptedPrompts::AnswerFile(const std::string& kind, const FileQuestion& question) {
  Record(kind);
  fileQuestions_.push_back(question);
  if (fileScript_.empty()) {
    ADD_FAILURE() << "nobody scripted a file to " << kind;
    return {};
  }
  const FileScript script = std::move(fileScript_.front());
  fileScript_.pop_front();
  EXPECT_EQ(kind, script.kind) << "another file dialog was scripted";
  return script.path;
}

Answer ScriptedPrompts::MsgBox(const std::string& text, int style, const std::string& caption) {
  return AnswerBox({text, style, caption, 0});
}

Answer ScriptedPrompts::TimedMsgBox(int milliseconds, const std::string& prompt, int style,
                                    const std::string& title, const std::string&, int) {
  return AnswerBox({prompt, style, title, milliseconds});
}

std::string ScriptedPrompts::AskFileToOpen(const FileQuestion& question) {
  return AnswerFile("open", question);
}

std::string ScriptedPrompts::AskFileToSave(const FileQuestion& question) {
  return AnswerFile("save", question);
}

void ScriptedPrompts::SetPointer(Pointer pointer) {
  pointerBalance_ += pointer == Pointer::Hourglass ? 1 : -1;
  EXPECT_GE(pointerBalance_, 0) << "a pointer was restored that nobody had set";
  Record("pointer " + std::to_string(static_cast<int>(pointer)));
}

void ScriptedPrompts::FlushInput() {
  Record("flush");
}

void ScriptedPrompts::Wait(int milliseconds) {
  Record("wait " + std::to_string(milliseconds));
}

void ScriptedPrompts::ShowProgress(int done, int total) {
  Record("progress " + std::to_string(done) + "/" + std::to_string(total));
}

}  // namespace mortane

#include "ctl/ConsolePrompts.h"

#include <ostream>
#include <utility>

#include "ctl/Outcome.h"
#include "ctl/ShownText.h"

namespace mortane::ctl {
namespace {

// To the first column, and the line cleared.
constexpr char kEraseLine[] = "\r\x1B[K";
constexpr int kButtons = 15;  // the part of a box's style that names its buttons

Answer Disagreement(int style) {
  switch (style & kButtons) {
    case box::kOkCancel:
    case box::kCancelTryContinue:
      return Answer::Cancel;
    case box::kYesNo:
      return Answer::No;
    default:
      return Answer::Ok;
  }
}

}  // namespace

ConsolePrompts::~ConsolePrompts() {
  ClearProgress();
  for (const std::string& line : lines_) Say(line);
}

std::vector<std::string> ConsolePrompts::TakeLines() {
  return std::exchange(lines_, {});
}

void ConsolePrompts::Say(const std::string& line) {
  ClearProgress();
  surroundings_.err << kProgram << ": " << Shown(line) << std::endl;
}

Answer ConsolePrompts::MsgBox(const std::string& text, int style, const std::string& /*caption*/) {
  for (std::string& line : LinesOf(text)) lines_.push_back(std::move(line));
  return Disagreement(style);
}

Answer ConsolePrompts::TimedMsgBox(int /*milliseconds*/, const std::string& prompt, int style,
                                   const std::string& title, const std::string& /*helpFile*/,
                                   int /*context*/) {
  MsgBox(prompt, style, title);
  return Answer::TimedOut;
}

std::string ConsolePrompts::AskFileToOpen(const FileQuestion& /*question*/) {
  return {};
}

std::string ConsolePrompts::AskFileToSave(const FileQuestion& /*question*/) {
  return {};
}

void ConsolePrompts::SetPointer(Pointer /*pointer*/) {}

void ConsolePrompts::FlushInput() {}

void ConsolePrompts::Wait(int milliseconds) {
  surroundings_.sleepMilliseconds(milliseconds);
}

void ConsolePrompts::ShowProgress(int done, int total) {
  if (done == total) return ClearProgress();
  if (!stays_ && surroundings_.endAsked()) throw EndAsked();
  if (!surroundings_.showsProgress) return;
  surroundings_.err << kEraseLine << transfer_ << " " << done << "/" << total << std::flush;
  progressShown_ = true;
}

void ConsolePrompts::ClearProgress() {
  if (std::exchange(progressShown_, false)) surroundings_.err << kEraseLine << std::flush;
}

}  // namespace mortane::ctl

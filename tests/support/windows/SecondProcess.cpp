#include "support/SecondProcess.h"

#include <windows.h>

#include <shellapi.h>

#include <exception>
#include <map>

#include "platform/NamedMutex.h"
#include "support/Utf8Path.h"
#include "support/windows/PartOption.h"
#include "support/windows/StartedProgram.h"

namespace mortane::test {

struct SecondProcess::Process {
  StartedProgram program;
};

namespace {

constexpr int kExceptionCode = 99;

std::map<std::string, SecondProcess::Play>& Parts() {
  static std::map<std::string, SecondProcess::Play> parts;
  return parts;
}

struct PipeSide : SecondProcess::Side {
  explicit PipeSide(const PartOption& option) : option_(option) {}
  void Tell() const override { SendByte(option_.out); }
  void AwaitTest() const override { ReceiveByte(option_.in); }

  const PartOption& option_;
};

std::wstring Joined(const Words& words) {
  std::wstring line;
  for (const std::string& word : words) line += Quoted(PathOf(word).native()) + L" ";
  return line;
}

Words OwnArguments() {
  Words arguments;
  int count = 0;
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) arguments.push_back(Utf8Of(wide[i]));
  LocalFree(wide);
  return arguments;
}

int PlayIt(const PartOption& option, const Words& words) {
  try {
    return Parts().at(option.part)(PipeSide(option), words);
  } catch (const std::exception&) {
    return kExceptionCode;
  }
}

}  // namespace

SecondProcess::Part::Part(const char* partName, Play partPlay) : name(partName), play(partPlay) {
  Parts()[name] = play;
}

SecondProcess::SecondProcess(const Part& part, const Words& words)
    : process_(new Process{StartedProgram(part.name, Joined(words))}) {}

SecondProcess::~SecondProcess() = default;

void SecondProcess::Await() const {
  process_->program.Await();
}

void SecondProcess::Tell() const {
  process_->program.Tell();
}

void SecondProcess::Kill() {
  process_->program.Kill();
}

int SecondProcess::Wait() {
  return process_->program.Wait();
}

std::optional<int> PlayPart() {
  const Words arguments = OwnArguments();
  const auto option = arguments.empty() ? std::nullopt : ReadPartOption(arguments.front());
  if (!option) return std::nullopt;
  NamedMutex::SetScope(option->mutexScope);
  return PlayIt(*option, Words(arguments.begin() + 1, arguments.end()));
}

}  // namespace mortane::test

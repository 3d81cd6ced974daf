#include "support/windows/StartedProgram.h"

#include <array>
#include <stdexcept>

#include "platform/NamedMutex.h"
#include "support/Utf8Path.h"
#include "support/windows/PartOption.h"

namespace mortane::test {
namespace {

constexpr UINT kKilled = 98;

void Check(BOOL succeeded, const char* what) {
  if (!succeeded) throw std::runtime_error(what + (": error " + std::to_string(GetLastError())));
}

struct Pipe {
  Pipe() {
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    Check(CreatePipe(&reading, &writing, nullptr, 0), "pipe");
    read = Handle(reading);
    write = Handle(writing);
  }
  Handle read;
  Handle write;
};

void Inherit(const Handle& handle) {
  Check(SetHandleInformation(handle.Get(), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT), "inherit");
}

std::wstring ProgramPath() {
  std::array<wchar_t, 32768> path{};
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  return {path.data(), length};
}

// What is left when the test program is killed ends with its last handle of the job.
Handle MakeJob() {
  Handle job(CreateJobObjectW(nullptr, nullptr));
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  Check(
      SetInformationJobObject(job.Get(), JobObjectExtendedLimitInformation, &limits, sizeof limits),
      "job");
  return job;
}

}  // namespace

std::wstring Quoted(const std::wstring& argument) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : argument) {
    // Before a quotation mark each backslash counts double.
    if (c == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  return quoted.append(backslashes, L'\\') + L"\"";
}

StartedProgram::StartedProgram(const std::string& part, const std::wstring& arguments)
    : job_(MakeJob()) {
  Pipe toIt;
  Pipe fromIt;
  Inherit(toIt.read);
  Inherit(fromIt.write);
  const PartOption option{part, toIt.read.Get(), fromIt.write.Get(), NamedMutex::Scope()};
  const std::wstring program = ProgramPath();
  std::wstring line =
      Quoted(program) + L" " + Quoted(PathOf(option.Text()).native()) + L" " + arguments;
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION made{};
  Check(CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED,
                       nullptr, nullptr, &start, &made),
        "process");
  process_ = Handle(made.hProcess);
  const Handle thread(made.hThread);
  Check(AssignProcessToJobObject(job_.Get(), process_.Get()), "process of a job");
  ResumeThread(thread.Get());
  in_ = std::move(fromIt.read);
  out_ = std::move(toIt.write);
}

void StartedProgram::Tell() const {
  SendByte(out_.Get());
}

void StartedProgram::Await() const {
  ReceiveByte(in_.Get());
}

void StartedProgram::Kill() {
  Check(TerminateProcess(process_.Get(), kKilled), "kill");
  Wait();
}

int StartedProgram::Wait() {
  Check(WaitForSingleObject(process_.Get(), INFINITE) == WAIT_OBJECT_0, "wait");
  DWORD code = 0;
  Check(GetExitCodeProcess(process_.Get(), &code), "exit code");
  return static_cast<int>(code);
}

}  // namespace mortane::test

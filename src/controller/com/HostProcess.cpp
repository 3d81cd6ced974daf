#include "controller/com/HostProcess.h"

#include <objbase.h>
#include <windows.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "controller/com/ComError.h"
#include "controller/com/HostPipes.h"
#include "controller/com/host/HostProtocol.h"
#include "platform/windows/Wide.h"

namespace mortane::controller {
namespace {

constexpr DWORD kEndMs = 3000;  // the host gives its library two seconds

// A job that ends its processes when the last handle to it is closed, which the system does for a
// program that was killed.
SystemHandle MakeJob() {
  SystemHandle job(CreateJobObjectW(nullptr, nullptr));
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

// What a process that is started gets of this one: two handles and nothing else.
class StartInformation {
 public:
  explicit StartInformation(const HostPipes& pipes)
      : inherited_{pipes.TheirInput(), pipes.TheirOutput()} {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    attributes_.resize(size);
    start_.StartupInfo.cb = sizeof start_;
    start_.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
    start_.StartupInfo.hStdInput = pipes.TheirInput();
    start_.StartupInfo.hStdOutput = pipes.TheirOutput();
    start_.lpAttributeList = reinterpret_cast<PPROC_THREAD_ATTRIBUTE_LIST>(attributes_.data());
    InitializeProcThreadAttributeList(start_.lpAttributeList, 1, 0, &size);
    UpdateProcThreadAttribute(start_.lpAttributeList, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST,
                              inherited_.data(), sizeof inherited_, nullptr, nullptr);
  }
  ~StartInformation() { DeleteProcThreadAttributeList(start_.lpAttributeList); }
  StartInformation(const StartInformation&) = delete;
  StartInformation& operator=(const StartInformation&) = delete;

  STARTUPINFOW* get() { return &start_.StartupInfo; }

 private:
  std::array<HANDLE, 2> inherited_;
  std::vector<std::byte> attributes_;
  STARTUPINFOEXW start_{};
};

ComPointer<IDispatch> Unmarshal(const std::string& bytes) {
  ComPointer<IStream> stream;
  RequireSuccess(CreateStreamOnHGlobal(nullptr, TRUE, stream.Out()));
  RequireSuccess(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
  RequireSuccess(stream->Seek({}, STREAM_SEEK_SET, nullptr));
  void* object = nullptr;
  RequireSuccess(CoUnmarshalInterface(stream.get(), IID_IDispatch, &object));
  return ComPointer<IDispatch>(static_cast<IDispatch*>(object));
}

// The whole of a text as a number.
template <typename Number>
std::optional<Number> Parse(std::string_view text, int base) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return number;
}

std::string FileName(const std::wstring& path) {
  return ToUtf8(std::wstring_view(path).substr(path.find_last_of(L'\\') + 1));
}

}  // namespace

// A started process that has said its name and version.
class HostProcess::Running {
 public:
  // A process that is refused is ended: the object is whole before it starts.
  Running(const std::wstring& file, const HostLimits& limits) : Running(FileName(file), limits) {
    Start(file);
    Greet();
  }

  // The process is given the time to leave its library in good order.
  ~Running() {
    pipes_.EndInput();
    if (process_ && WaitForSingleObject(process_.get(), answers_ ? kEndMs : 0) != WAIT_OBJECT_0) {
      TerminateProcess(process_.get(), 1);
      WaitForSingleObject(process_.get(), kEndMs);
    }
  }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

  bool IsUsable() const {
    return answers_ && WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT;
  }

  ComPointer<IDispatch> Create(const std::string& className) {
    const ULONGLONG until = GetTickCount64() + limits_.creationMs;
    const std::string request = std::string(host::kCreate) + className + "\n";
    if (request.size() > host::kMostOfLine || className.find('\n') != std::string::npos) {
      RaiseComError(CO_E_CLASSSTRING);
    }
    answers_ = false;
    pipes_.Say(request);
    const std::optional<std::string> head = pipes_.Line(host::kMostOfLine, until);
    if (!head) RaiseSilence(limits_.creationMs);
    if (head->starts_with(host::kFailed)) {
      const auto number = Parse<std::uint32_t>(head->substr(host::kFailed.size()), 16);
      if (!number) RaiseStranger();
      answers_ = true;
      RaiseComError(static_cast<HRESULT>(*number));
    }
    if (!head->starts_with(host::kObject)) RaiseStranger();
    const auto count = Parse<std::size_t>(head->substr(host::kObject.size()), 10);
    if (!count || *count > host::kMostOfObject) RaiseStranger();
    const std::optional<std::string> bytes = pipes_.Bytes(*count, until);
    if (!bytes) RaiseSilence(limits_.creationMs);
    answers_ = true;
    return Unmarshal(*bytes);
  }

 private:
  Running(std::string name, const HostLimits& limits) : name_(std::move(name)), limits_(limits) {}

  void Start(const std::wstring& file) {
    std::wstring command = L'"' + file + L'"';
    StartInformation start(pipes_);
    PROCESS_INFORMATION started{};
    if (CreateProcessW(file.c_str(), command.data(), nullptr, nullptr, TRUE,
                       CREATE_NO_WINDOW | CREATE_SUSPENDED | EXTENDED_STARTUPINFO_PRESENT, nullptr,
                       nullptr, start.get(), &started) == FALSE) {
      RaiseComError(HRESULT_FROM_WIN32(GetLastError()));
    }
    process_ = SystemHandle(started.hProcess);
    const SystemHandle thread(started.hThread);
    // Where a job cannot be had, the end of its input ends the process.
    AssignProcessToJobObject(job_.get(), process_.get());
    ResumeThread(thread.get());
    pipes_.CloseTheirs();
    // A library's own window comes to the front.
    AllowSetForegroundWindow(started.dwProcessId);
  }

  void Greet() {
    const ULONGLONG until = GetTickCount64() + limits_.startMs;
    const std::optional<std::string> line = pipes_.Line(host::kMostOfLine, until);
    if (!line) RaiseSilence(limits_.startMs);
    const std::string name = std::string(host::kName) + " ";
    if (!line->starts_with(name)) RaiseStranger();
    const std::string version = line->substr(name.size());
    if (version != MORTANE_VERSION) {
      RaiseComError(RPC_E_VERSION_MISMATCH, name_ + " has version " + version +
                                                ", this program has version " MORTANE_VERSION);
    }
    answers_ = true;
  }

  [[noreturn]] void RaiseStranger() const {
    RaiseComError(CO_E_SERVER_EXEC_FAILURE, name_ + " is not the program of that name");
  }

  // Why nothing came.
  [[noreturn]] void RaiseSilence(DWORD limitMs) const {
    if (pipes_.WasLate()) {
      RaiseComError(RPC_E_TIMEOUT, name_ + " did not answer within " +
                                       std::to_string(limitMs / 1000) + " seconds");
    }
    DWORD code = 0;
    if (WaitForSingleObject(process_.get(), kEndMs) != WAIT_OBJECT_0 ||
        GetExitCodeProcess(process_.get(), &code) == FALSE) {
      RaiseStranger();
    }
    RaiseComError(RPC_E_SERVER_DIED,
                  name_ + " ended with code " + Hex(static_cast<std::int32_t>(code)));
  }

  std::string name_;
  HostLimits limits_;
  SystemHandle job_ = MakeJob();
  HostPipes pipes_;
  SystemHandle process_;
  bool answers_ = false;  // not while an answer is due
};

std::wstring HostFile() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  const std::wstring name(host::kName.begin(), host::kName.end());
  return path.substr(0, path.find_last_of(L'\\') + 1) + name + L".exe";
}

HostProcess::HostProcess(std::wstring file, HostLimits limits)
    : file_(std::move(file)), limits_(limits) {}

HostProcess::~HostProcess() = default;

ComPointer<IDispatch> HostProcess::Create(const std::string& className) {
  if (running_ && !running_->IsUsable()) running_.reset();
  if (!running_) running_ = std::make_unique<Running>(file_, limits_);
  try {
    return running_->Create(className);
  } catch (const Failure&) {
    if (!running_->IsUsable()) running_.reset();
    throw;
  }
}

}  // namespace mortane::controller

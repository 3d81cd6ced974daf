#include "controller/com/HostPipes.h"

#include <objbase.h>

#include <array>
#include <utility>

#include "controller/com/ComError.h"

namespace mortane::controller {
namespace {

constexpr DWORD kPipeBytes = 65536;  // more than a request, so that saying one never waits

void Require(bool success) {
  if (!success) RaiseComError(HRESULT_FROM_WIN32(GetLastError()));
}

std::wstring NewPipeName() {
  GUID guid{};
  RequireSuccess(CoCreateGuid(&guid));
  std::array<wchar_t, 39> text{};
  StringFromGUID2(guid, text.data(), static_cast<int>(text.size()));
  return LR"(\\.\pipe\mortane-host32-)" + std::wstring(text.data());
}

SECURITY_ATTRIBUTES Inherited() {
  return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
}

}  // namespace

SystemHandle::SystemHandle(HANDLE owned)
    : handle_(owned == INVALID_HANDLE_VALUE ? nullptr : owned) {}
SystemHandle::SystemHandle(SystemHandle&& other) noexcept
    : handle_(std::exchange(other.handle_, nullptr)) {}
SystemHandle& SystemHandle::operator=(SystemHandle&& other) noexcept {
  std::swap(handle_, other.handle_);
  return *this;
}
SystemHandle::~SystemHandle() {
  Close();
}
void SystemHandle::Close() {
  if (handle_ != nullptr) CloseHandle(std::exchange(handle_, nullptr));
}

// The pipe for answers has a name because only such pipes are read with a limit of time.
HostPipes::HostPipes() {
  SECURITY_ATTRIBUTES inherited = Inherited();
  HANDLE read = nullptr;
  HANDLE write = nullptr;
  Require(CreatePipe(&read, &write, &inherited, kPipeBytes) != FALSE);
  theirInput_ = SystemHandle(read);
  input_ = SystemHandle(write);
  Require(SetHandleInformation(input_.get(), HANDLE_FLAG_INHERIT, 0) != FALSE);

  const std::wstring name = NewPipeName();
  output_ = SystemHandle(CreateNamedPipeW(
      name.c_str(), PIPE_ACCESS_INBOUND | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
      PIPE_TYPE_BYTE | PIPE_REJECT_REMOTE_CLIENTS, 1, 0, kPipeBytes, 0, nullptr));
  Require(static_cast<bool>(output_));
  theirOutput_ = SystemHandle(
      CreateFileW(name.c_str(), GENERIC_WRITE, 0, &inherited, OPEN_EXISTING, 0, nullptr));
  Require(static_cast<bool>(theirOutput_));
  arrived_ = SystemHandle(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  Require(static_cast<bool>(arrived_));
}

void HostPipes::CloseTheirs() {
  theirInput_.Close();
  theirOutput_.Close();
}

bool HostPipes::Say(std::string_view text) {
  DWORD written = 0;
  const auto size = static_cast<DWORD>(text.size());
  return WriteFile(input_.get(), text.data(), size, &written, nullptr) != FALSE && written == size;
}

void HostPipes::EndInput() {
  input_.Close();
}

std::optional<std::string> HostPipes::Line(std::size_t most, ULONGLONG until) {
  for (;;) {
    const std::size_t end = received_.find('\n');
    if (end != std::string::npos) {
      std::string line = received_.substr(0, end);
      received_.erase(0, end + 1);
      return line;
    }
    if (received_.size() > most || !Receive(until)) return {};
  }
}

std::optional<std::string> HostPipes::Bytes(std::size_t count, ULONGLONG until) {
  while (received_.size() < count) {
    if (!Receive(until)) return {};
  }
  std::string bytes = received_.substr(0, count);
  received_.erase(0, count);
  return bytes;
}

bool HostPipes::Receive(ULONGLONG until) {
  std::array<char, 4096> chunk{};
  OVERLAPPED pending{};
  pending.hEvent = arrived_.get();
  if (ReadFile(output_.get(), chunk.data(), static_cast<DWORD>(chunk.size()), nullptr, &pending) ==
          FALSE &&
      GetLastError() != ERROR_IO_PENDING) {
    return false;
  }
  const ULONGLONG now = GetTickCount64();
  HANDLE event = arrived_.get();
  DWORD which = 0;
  const HRESULT waited = CoWaitForMultipleHandles(
      0, now < until ? static_cast<DWORD>(until - now) : 0, 1, &event, &which);
  if (FAILED(waited)) CancelIo(output_.get());
  // What arrived just before the read was cancelled is taken.
  DWORD count = 0;
  const bool arrived =
      GetOverlappedResult(output_.get(), &pending, &count, TRUE) != FALSE && count > 0;
  late_ = !arrived && FAILED(waited);
  received_.append(chunk.data(), arrived ? count : 0);
  return arrived;
}

}  // namespace mortane::controller

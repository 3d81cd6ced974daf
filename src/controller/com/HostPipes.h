// The two ends of a host's standard input and output.
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace mortane::controller {

// A Windows handle, closed at its end.
class SystemHandle {
 public:
  SystemHandle() = default;
  explicit SystemHandle(HANDLE owned);  // an invalid one is as good as none
  SystemHandle(SystemHandle&& other) noexcept;
  SystemHandle& operator=(SystemHandle&& other) noexcept;
  ~SystemHandle();

  HANDLE get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }
  void Close();

 private:
  HANDLE handle_ = nullptr;
};

// Waiting lets the calls of COM through that reach the thread's apartment meanwhile.
class HostPipes {
 public:
  // Raises the system's failure.
  HostPipes();

  // Of the other process: its standard input and output. They are closed here once it runs.
  HANDLE TheirInput() const { return theirInput_.get(); }
  HANDLE TheirOutput() const { return theirOutput_.get(); }
  void CloseTheirs();

  bool Say(std::string_view text);
  // The other process's input ends.
  void EndInput();

  // Nothing when the other process ended, wrote more than `most` without the end of a line, or let
  // the time (of GetTickCount64) pass.
  std::optional<std::string> Line(std::size_t most, ULONGLONG until);
  std::optional<std::string> Bytes(std::size_t count, ULONGLONG until);
  // Whether it was the time.
  bool WasLate() const { return late_; }

 private:
  bool Receive(ULONGLONG until);

  SystemHandle theirInput_;
  SystemHandle theirOutput_;
  SystemHandle input_;
  SystemHandle output_;
  SystemHandle arrived_;
  std::string received_;
  bool late_ = false;
};

}  // namespace mortane::controller

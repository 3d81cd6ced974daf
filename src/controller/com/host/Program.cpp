// mortane-host32.exe: a process of 32 bits in which a library of 32 bits serves a program of 64.
#include <fcntl.h>
#include <io.h>
#include <objbase.h>
#include <windows.h>

#include <array>
#include <csignal>
#include <memory>
#include <string>
#include <thread>

#include "controller/com/host/Answers.h"
#include "controller/com/host/HostProtocol.h"

namespace mortane::controller::host {
namespace {

constexpr UINT kRequest = WM_APP;  // its second parameter owns a text
constexpr UINT kEnd = WM_APP + 1;

// For a library that does not come back from a call when the input has ended.
constexpr DWORD kGraceMs = 2000;
constexpr UINT kNotInTime = 2;
constexpr UINT kAborted = 3;  // with which the C library ends a program

HANDLE requests = nullptr;
HANDLE answers = nullptr;

// Ends without the boxes of the system and of the C library: the program tells how it ended.
LONG WINAPI EndAtException(EXCEPTION_POINTERS* what) {
  TerminateProcess(GetCurrentProcess(), what->ExceptionRecord->ExceptionCode);
  return EXCEPTION_EXECUTE_HANDLER;
}

void EndAtAbort(int) {
  TerminateProcess(GetCurrentProcess(), kAborted);
}

void EndWithoutBoxes() {
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
  SetUnhandledExceptionFilter(EndAtException);
  std::signal(SIGABRT, EndAtAbort);
}

// The standard handle becomes one that leads nowhere; what it was is returned, for this code alone.
HANDLE TakeStandard(DWORD which, int descriptor, int mode) {
  HANDLE own = nullptr;
  const HANDLE process = GetCurrentProcess();
  DuplicateHandle(process, GetStdHandle(which), process, &own, 0, FALSE, DUPLICATE_SAME_ACCESS);
  const int nowhere = _open("NUL", mode);
  _dup2(nowhere, descriptor);
  SetStdHandle(which, reinterpret_cast<HANDLE>(_get_osfhandle(descriptor)));
  return own;
}

// A library that writes to the standard output or reads the standard input is not in between.
void TakePipes() {
  requests = TakeStandard(STD_INPUT_HANDLE, 0, _O_RDONLY);
  answers = TakeStandard(STD_OUTPUT_HANDLE, 1, _O_WRONLY);
}

bool Say(const std::string& text) {
  DWORD written = 0;
  const auto size = static_cast<DWORD>(text.size());
  return WriteFile(answers, text.data(), size, &written, nullptr) != FALSE && written == size;
}

// Requests go to the window, where they are also met while a library runs a box of its own.
LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == kRequest) {
    const std::unique_ptr<std::string> request(reinterpret_cast<std::string*>(second));
    if (!Say(AnswerTo(*request))) PostQuitMessage(1);
    return 0;
  }
  if (message == kEnd) {
    PostQuitMessage(0);
    return 0;
  }
  return DefWindowProcW(window, message, first, second);
}

HWND MakeWindow() {
  WNDCLASSW about{};
  about.lpfnWndProc = OnMessage;
  about.lpszClassName = L"MortaneHost32";
  about.hInstance = GetModuleHandleW(nullptr);
  RegisterClassW(&about);
  return CreateWindowExW(0, about.lpszClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                         about.hInstance, nullptr);
}

void ReadRequests(HWND window) {
  std::array<char, 512> chunk{};
  std::string line;
  DWORD count = 0;
  while (line.size() < kMostOfLine &&
         ReadFile(requests, chunk.data(), static_cast<DWORD>(chunk.size()), &count, nullptr) !=
             FALSE &&
         count > 0) {
    line.append(chunk.data(), count);
    for (std::size_t end = line.find('\n'); end != std::string::npos; end = line.find('\n')) {
      auto request = std::make_unique<std::string>(line, 0, end);
      line.erase(0, end + 1);
      PostMessageW(window, kRequest, 0, reinterpret_cast<LPARAM>(request.release()));
    }
  }
  PostMessageW(window, kEnd, 0, 0);
  Sleep(kGraceMs);
  TerminateProcess(GetCurrentProcess(), kNotInTime);
}

int Serve() {
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
  const HWND window = MakeWindow();
  if (window == nullptr) return 1;
  std::thread(ReadRequests, window).detach();
  if (!Say(std::string(kName) + " " + MORTANE_VERSION + "\n")) return 1;
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  CoUninitialize();
  return static_cast<int>(message.wParam);
}

}  // namespace
}  // namespace mortane::controller::host

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  using namespace mortane::controller::host;
  EndWithoutBoxes();
  TakePipes();
  return Serve();
}

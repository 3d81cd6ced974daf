// The test server as a program: /RegServer, /UnregServer, or -Embedding, with which COM starts it.
// "-Embedding -Family {...}" gives its classes other identifiers than the registered ones.
#include <objbase.h>
#include <shellapi.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "comserver/ClassFactory.h"
#include "comserver/Registration.h"
#include "comserver/Server.h"
#include "controller/com/ComPointer.h"

namespace mortane::comserver {
namespace {

std::vector<std::wstring> Arguments() {
  int count = 0;
  wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::wstring> arguments(words + 1, words + count);
  LocalFree(words);
  return arguments;
}

bool IsSwitch(const std::wstring& word, const wchar_t* name) {
  return (word.starts_with(L'-') || word.starts_with(L'/')) &&
         _wcsicmp(word.c_str() + 1, name) == 0;
}

void TellReady(const ClassFamily& family) {
  const HANDLE ready = OpenEventW(EVENT_MODIFY_STATE, FALSE, ReadyEventName(family).c_str());
  if (ready == nullptr) return;
  SetEvent(ready);
  CloseHandle(ready);
}

// Serves until the last object is gone.
int Serve(const ClassFamily& family) {
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
  std::array<DWORD, kClassNames.size()> cookies{};
  for (std::size_t place = 0; place < cookies.size(); ++place) {
    const controller::ComPointer<IClassFactory> factory(MakeFactory(place));
    if (FAILED(CoRegisterClassObject(family.ClassId(place), factory.get(), CLSCTX_LOCAL_SERVER,
                                     REGCLS_MULTIPLEUSE | REGCLS_SUSPENDED, &cookies[place]))) {
      return 1;
    }
  }
  // No class can be created any more once the program is on its way out.
  OnServerUnused([] {
    CoSuspendClassObjects();
    PostQuitMessage(0);
  });
  CoResumeClassObjects();
  TellReady(family);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  for (const DWORD cookie : cookies) CoRevokeClassObject(cookie);
  CoUninitialize();
  return 0;
}

int Run() {
  const Registration entry{kOwnProcessFamily, std::wstring(kOwnProcessPrefix), L"LocalServer32",
                           L'"' + ModulePath(nullptr) + L'"', 0};
  ClassFamily family = kOwnProcessFamily;
  bool serves = false;
  const std::vector<std::wstring> words = Arguments();
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (IsSwitch(words[i], L"RegServer")) return SUCCEEDED(Register(entry)) ? 0 : 1;
    if (IsSwitch(words[i], L"UnregServer")) return SUCCEEDED(Unregister(entry)) ? 0 : 1;
    if (IsSwitch(words[i], L"Embedding")) serves = true;
    if (IsSwitch(words[i], L"Family") && i + 1 < words.size() &&
        FAILED(CLSIDFromString(words[i + 1].c_str(), &family.base))) {
      return 2;
    }
  }
  return serves ? Serve(family) : 2;
}

}  // namespace
}  // namespace mortane::comserver

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  return mortane::comserver::Run();
}

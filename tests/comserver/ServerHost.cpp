#include "comserver/ServerHost.h"

#include <objbase.h>

#include <stdexcept>

#include "controller/com/ComPointer.h"
#include "platform/windows/Wide.h"

namespace mortane::comserver {
namespace {

using controller::ComPointer;

constexpr DWORD kStartMs = 20000;

void Require(bool success, const char* what) {
  if (!success) throw std::runtime_error(what + (": " + SystemMessage(GetLastError())));
}

using GetClassObject = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);

// Loaded once and kept: objects may live until the process ends.
GetClassObject LoadServer() {
  static const HMODULE module = LoadLibraryW(ServerFile(L"mortane_test_library.dll").c_str());
  Require(module != nullptr, "test server's library");
  return reinterpret_cast<GetClassObject>(
      reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
}

// A job that ends its processes when the last handle to it is closed.
HANDLE MakeJob() {
  const HANDLE job = CreateJobObjectW(nullptr, nullptr);
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

}  // namespace

ClassFamily NewFamily() {
  ClassFamily family{};
  Require(SUCCEEDED(CoCreateGuid(&family.base)), "identifier");
  return family;
}

std::vector<controller::ComClass> ClassesOf(const ClassFamily& family) {
  std::vector<controller::ComClass> classes;
  for (std::size_t place = 0; place < kClassNames.size(); ++place) {
    classes.push_back({std::string(kClassNames[place]), ToUtf8(GuidText(family.ClassId(place)))});
  }
  return classes;
}

std::wstring ServerFile(const wchar_t* name) {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path.substr(0, path.find_last_of(L'\\') + 1) + name;
}

InProcessServer::InProcessServer() {
  Require(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)), "apartment");
  const GetClassObject classObject = LoadServer();
  for (std::size_t place = 0; place < cookies_.size(); ++place) {
    const CLSID id = Family().ClassId(place);
    void* made = nullptr;
    Require(SUCCEEDED(classObject(id, IID_IClassFactory, &made)), "factory");
    const ComPointer<IUnknown> factory(static_cast<IUnknown*>(made));
    Require(SUCCEEDED(CoRegisterClassObject(id, factory.get(), CLSCTX_INPROC_SERVER,
                                            REGCLS_MULTIPLEUSE, &cookies_[place])),
            "class");
  }
}

InProcessServer::~InProcessServer() {
  for (const DWORD cookie : cookies_) CoRevokeClassObject(cookie);
  CoUninitialize();
}

ServerProcess::ServerProcess(const ClassFamily& family) : family_(family), job_(MakeJob()) {
  const Handle ready(CreateEventW(nullptr, TRUE, FALSE, ReadyEventName(family).c_str()));
  Require(ready.get() != nullptr, "event");
  std::wstring command = L"\"" + ServerFile(L"mortane_test_server.exe") +
                         L"\" -Embedding -Family " + GuidText(family.base);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  Require(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED,
                         nullptr, nullptr, &start, &process_) != FALSE,
          "test server's program");
  AssignProcessToJobObject(job_.get(), process_.hProcess);
  ResumeThread(process_.hThread);
  const std::array<HANDLE, 2> either{ready.get(), process_.hProcess};
  if (WaitForMultipleObjects(2, either.data(), FALSE, kStartMs) != WAIT_OBJECT_0) {
    Kill();
    throw std::runtime_error("the test server's program does not serve");
  }
}

ServerProcess::~ServerProcess() {
  Kill();
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

void ServerProcess::Kill() {
  TerminateProcess(process_.hProcess, 99);
  WaitForSingleObject(process_.hProcess, kStartMs);
}

bool ServerProcess::EndsWithin(DWORD milliseconds) const {
  return WaitForSingleObject(process_.hProcess, milliseconds) == WAIT_OBJECT_0;
}

controller::LibraryWays HostFiles::Ways() const {
  return are32 ? controller::LibraryWays::kAny : controller::LibraryWays::kHost32;
}

HostFiles OwnHostFiles() {
  return {ServerFile(L""), false};
}

std::vector<HostFiles> AllHostFiles() {
  std::vector<HostFiles> all{OwnHostFiles()};
  std::wstring folder(32768, L'\0');
  folder.resize(GetEnvironmentVariableW(L"MORTANE_TEST_HOST32", folder.data(),
                                        static_cast<DWORD>(folder.size())));
  if (!folder.empty()) all.push_back({folder + L"\\", true});
  return all;
}

RegisteredLibrary::RegisteredLibrary(const HostFiles& files, const wchar_t* library)
    : entry_{NewFamily(), L"", L"InprocServer32", files.File(library),
             files.are32 ? REGSAM{KEY_WOW64_32KEY} : REGSAM{KEY_WOW64_64KEY}} {
  const std::wstring id = GuidText(entry_.family.base);
  entry_.progIdPrefix = L"MortaneTest." + id.substr(1, 13) + L".";
  Require(SUCCEEDED(comserver::Register(entry_)), "registration");
  SetEnvironmentVariableW(kFamilyVariable, id.c_str());
}

RegisteredLibrary::~RegisteredLibrary() {
  SetEnvironmentVariableW(kFamilyVariable, nullptr);
  comserver::Unregister(entry_);
}

HostedProcess::HostedProcess(DWORD id)
    : id_(id), process_(OpenProcess(PROCESS_ALL_ACCESS, FALSE, id)) {
  Require(process_.get() != nullptr, "host's process");
}

void HostedProcess::Kill() const {
  TerminateProcess(process_.get(), 99);
  WaitForSingleObject(process_.get(), kStartMs);
}

bool HostedProcess::EndsWithin(DWORD milliseconds) const {
  return WaitForSingleObject(process_.get(), milliseconds) == WAIT_OBJECT_0;
}

bool HostedProcess::Is32Bit() const {
  BOOL is32 = FALSE;
  IsWow64Process(process_.get(), &is32);
  return is32 != FALSE;
}

RegisteredNames::RegisteredNames() : prefix_(L"MortaneTest." + GuidText(NewFamily().base) + L".") {}

RegisteredNames::~RegisteredNames() {
  comserver::Unregister(Entry());
}

void RegisteredNames::PointTo(const ClassFamily& family) {
  comserver::Unregister(Entry());
  family_ = family;
  Require(SUCCEEDED(comserver::Register(Entry())), "registration");
}

std::vector<controller::ComClass> RegisteredNames::Classes() const {
  std::vector<controller::ComClass> classes;
  for (std::size_t place = 0; place < kClassNames.size(); ++place) {
    classes.push_back({std::string(kClassNames[place]), ToUtf8(ProgId(prefix_, place))});
  }
  return classes;
}

Registration RegisteredNames::Entry() const {
  return {family_, prefix_, L"LocalServer32",
          L'"' + ServerFile(L"mortane_test_server.exe") + L"\" -Family " + GuidText(family_.base),
          0};
}

}  // namespace mortane::comserver

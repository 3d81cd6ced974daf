// A library that does what no library should. Its microscope is made in the way that the variable
// MORTANE_FAULTY names; what it offers besides is sound.
#include <objbase.h>
#include <oleauto.h>
#include <windows.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "comserver/FaultyLibrary.h"
#include "comserver/ServedClasses.h"
#include "comserver/Unknown.h"

namespace mortane::comserver {
namespace {

// The compiler may not see that it is null.
int* volatile nowhere = nullptr;

struct Member {
  std::wstring_view name;
  LONG (*act)(LONG argument);
};

constexpr std::array kMembers{
    Member{L"Number", [](LONG) -> LONG { return 7; }},
    Member{L"ProcessId", [](LONG) { return static_cast<LONG>(GetCurrentProcessId()); }},
    Member{L"Sleep",
           [](LONG milliseconds) {
             Sleep(static_cast<DWORD>(milliseconds));
             return milliseconds;
           }},
    Member{L"Throw", [](LONG) -> LONG { throw 1; }},
    Member{L"Crash", [](LONG) -> LONG { return *nowhere; }},
    Member{L"End",
           [](LONG code) {
             ExitProcess(static_cast<UINT>(code));
             return code;
           }},
    Member{L"AskInBox",
           [](LONG) -> LONG {
             return MessageBoxW(nullptr, L"Is the lid closed?", kFaultyBoxTitle, MB_OKCANCEL);
           }},
    Member{L"ShowWindow", [](LONG) {
             return static_cast<LONG>(reinterpret_cast<LONG_PTR>(
                 CreateWindowExW(0, L"STATIC", kFaultyWindowTitle, WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                 0, 0, 100, 50, nullptr, nullptr, nullptr, nullptr)));
           }}};

// What is done while an object is made.
struct Fault {
  std::wstring_view name;
  HRESULT (*commit)();
};

HRESULT Print() {
  std::puts("object 5\nThe library says good morning.");
  std::fflush(stdout);
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), "failed 0\n", 9, &written, nullptr);
  std::getchar();
  return S_OK;
}

constexpr std::array kFaults{Fault{L"", [] { return S_OK; }},
                             Fault{L"hangs",
                                   [] {
                                     Sleep(INFINITE);
                                     return S_OK;
                                   }},
                             Fault{L"throws", []() -> HRESULT { throw 1; }},
                             Fault{L"crashes", [] { return static_cast<HRESULT>(*nowhere); }},
                             Fault{L"aborts", []() -> HRESULT { std::abort(); }},
                             Fault{L"ends",
                                   [] {
                                     ExitProcess(5);
                                     return S_OK;
                                   }},
                             Fault{L"prints", Print},
                             Fault{L"fails", [] { return static_cast<HRESULT>(0x80041234UL); }},
                             Fault{L"asks", [] {
                                     MessageBoxW(nullptr, L"Is the lid closed?", kFaultyBoxTitle,
                                                 MB_OK);
                                     return S_OK;
                                   }}};

HRESULT CommitFault() {
  std::array<wchar_t, 16> name{};
  GetEnvironmentVariableW(L"MORTANE_FAULTY", name.data(), static_cast<DWORD>(name.size()));
  for (const Fault& row : kFaults) {
    if (row.name == name.data()) return row.commit();
  }
  return E_INVALIDARG;
}

class FaultyObject : public Unknown<IDispatch> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    *info = nullptr;
    return DISP_E_BADINDEX;
  }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    for (std::size_t place = 0; place < kMembers.size(); ++place) {
      if (kMembers[place].name == names[0]) {
        ids[0] = static_cast<DISPID>(place + 1);
        return S_OK;
      }
    }
    return DISP_E_UNKNOWNNAME;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO*, UINT*) override {
    const LONG argument = parameters->cArgs == 0 ? 0 : parameters->rgvarg[0].lVal;
    const LONG answer = kMembers.at(static_cast<std::size_t>(id) - 1).act(argument);
    if (result != nullptr) {
      result->vt = VT_I4;
      result->lVal = answer;
    }
    return S_OK;
  }
};

class FaultyFactory : public Unknown<IClassFactory> {
 public:
  explicit FaultyFactory(bool faulty) : faulty_(faulty) {}

  STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** object) override {
    const HRESULT result = faulty_ ? CommitFault() : S_OK;
    if (FAILED(result)) return result;
    auto* made = new FaultyObject;
    const HRESULT asked = made->QueryInterface(id, object);
    made->Release();
    return asked;
  }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }

 private:
  bool faulty_;
};

}  // namespace
}  // namespace mortane::comserver

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
  namespace server = mortane::comserver;
  const server::ClassFamily family = server::FamilyOfEnvironment();
  for (std::size_t place = 0; place < server::kClassNames.size(); ++place) {
    if (classId == family.ClassId(place)) {
      auto* factory = new server::FaultyFactory(place == 0);
      const HRESULT result = factory->QueryInterface(id, object);
      factory->Release();
      return result;
    }
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
  return S_FALSE;
}

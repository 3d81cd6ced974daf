#include "controller/com/LibraryWays.h"

#include <objbase.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "controller/ControllerError.h"
#include "controller/com/ComError.h"
#include "controller/com/HostProcess.h"
#include "platform/Environment.h"
#include "platform/windows/Wide.h"

namespace mortane::controller {
namespace {

constexpr const char* kVariable = "MORTANE_LIBRARY";

struct NamedWays {
  const char* name;
  LibraryWays ways;
};

constexpr std::array<NamedWays, 3> kNamedWays{{{"", LibraryWays::kAny},
                                               {"inprocess", LibraryWays::kInProcess},
                                               {"host32", LibraryWays::kHost32}}};

constexpr const char* kOwnProcess = "in this program's process";
constexpr const char* kServerProcess = "in a registered server's process";
constexpr const char* kHost = "in mortane-host32.exe";

HRESULT FindClass(const std::wstring& name, CLSID& id) {
  return name.starts_with(L'{') ? CLSIDFromString(name.c_str(), &id)
                                : CLSIDFromProgID(name.c_str(), &id);
}

std::wstring TextOf(const CLSID& id) {
  std::array<wchar_t, 39> text{};
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

ComPointer<IDispatch> MakeIn(DWORD context, const CLSID& id) {
  void* made = nullptr;
  RequireSuccess(CoCreateInstance(id, nullptr, context, IID_IDispatch, &made));
  return ComPointer<IDispatch>(static_cast<IDispatch*>(made));
}

// The default value of a key in the list of classes that programs of 32 bits see.
std::optional<std::wstring> Text32(const std::wstring& key) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &opened) !=
      ERROR_SUCCESS) {
    return {};
  }
  std::array<wchar_t, 1024> text{};
  DWORD bytes = sizeof text - sizeof(wchar_t);
  const LSTATUS status = RegQueryValueExW(opened, nullptr, nullptr, nullptr,
                                          reinterpret_cast<BYTE*>(text.data()), &bytes);
  RegCloseKey(opened);
  if (status != ERROR_SUCCESS) return {};
  return std::wstring(text.data());
}

// By its name or its identifier; a name may stand in the list for programs of 64 bits alone.
bool IsLibraryOf32Bits(const std::wstring& name) {
  const std::optional<std::wstring> id = name.starts_with(L'{') ? name : Text32(name + L"\\CLSID");
  return id && Text32(L"CLSID\\" + *id + L"\\InprocServer32");
}

// The ways that were tried in vain.
class Attempts {
 public:
  using Make = std::function<ComPointer<IDispatch>()>;

  ComPointer<IDispatch> Try(const char* where, const Make& make) {
    try {
      return make();
    } catch (const ControllerError& error) {
      failed_.push_back({where, error});
      return {};
    }
  }

  bool AreAllUnregistered() const { return std::none_of(failed_.begin(), failed_.end(), SaysMore); }

  // The last failure that says more than that a class is not registered comes last: its number is
  // the one that is raised.
  [[noreturn]] void Raise() {
    const auto telling = std::find_if(failed_.rbegin(), failed_.rend(), SaysMore);
    if (telling != failed_.rend()) std::rotate(telling.base() - 1, telling.base(), failed_.end());
    std::string lines;
    for (const Attempt& attempt : failed_) {
      if (!lines.empty()) lines += kLineBreak;
      lines += std::string(attempt.where) + ": " + attempt.error.Description();
      if (&attempt != &failed_.back()) lines += " (" + Hex(attempt.error.Number()) + ")";
    }
    throw ControllerError(failed_.back().error.Source(), failed_.back().error.Number(), lines);
  }

 private:
  struct Attempt {
    const char* where;
    ControllerError error;
  };

  static bool SaysMore(const Attempt& attempt) {
    return attempt.error.Number() != std::int32_t{REGDB_E_CLASSNOTREG};
  }

  std::vector<Attempt> failed_;
};

ComPointer<IDispatch> MakeInHost(Attempts& attempts, const std::string& className,
                                 HostProcess& host) {
  if (auto made = attempts.Try(kHost, [&] { return host.Create(className); })) return made;
  attempts.Raise();
}

}  // namespace

LibraryWays WaysOfEnvironment() {
  const std::string wanted = EnvironmentVariable(kVariable);
  const auto row = std::find_if(kNamedWays.begin(), kNamedWays.end(),
                                [&](const NamedWays& known) { return known.name == wanted; });
  if (row == kNamedWays.end()) {
    RaiseComError(E_INVALIDARG, std::string(kVariable) + " is \"" + wanted +
                                    "\", which is neither \"inprocess\" nor \"host32\"");
  }
  return row->ways;
}

ComPointer<IDispatch> MakeByFirstWay(const std::string& className, LibraryWays ways,
                                     HostProcess& host) {
  Attempts attempts;
  if (ways == LibraryWays::kHost32) return MakeInHost(attempts, className, host);
  const std::wstring name = ToWide(className);
  CLSID id{};
  const HRESULT found = FindClass(name, id);
  if (SUCCEEDED(found)) {
    const auto in = [&](DWORD context) { return [&id, context] { return MakeIn(context, id); }; };
    if (auto made = attempts.Try(kOwnProcess, in(CLSCTX_INPROC_SERVER))) return made;
    if (ways == LibraryWays::kInProcess) attempts.Raise();
    if (auto made = attempts.Try(kServerProcess, in(CLSCTX_LOCAL_SERVER))) return made;
  }
  const bool unregistered = SUCCEEDED(found) && attempts.AreAllUnregistered();
  const bool in32 = ways == LibraryWays::kAny &&
                    (unregistered || IsLibraryOf32Bits(SUCCEEDED(found) ? TextOf(id) : name));
  if (in32) return MakeInHost(attempts, className, host);
  if (FAILED(found)) RaiseComError(found);
  attempts.Raise();
}

}  // namespace mortane::controller

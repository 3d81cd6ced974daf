#include "comserver/Registration.h"

#include <array>

namespace mortane::comserver {
namespace {

const std::array kRoots{HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER};
constexpr std::wstring_view kClasses = L"Software\\Classes\\";

LSTATUS Set(HKEY root, const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  return RegSetKeyValueW(root, (std::wstring(kClasses) + key).c_str(), name, REG_SZ, text.c_str(),
                         bytes);
}

HRESULT RegisterIn(HKEY root, const Registration& entry) {
  for (std::size_t place = 0; place < kClassNames.size(); ++place) {
    const std::wstring id = GuidText(entry.family.ClassId(place));
    const std::wstring progId = ProgId(entry.progIdPrefix, place);
    const std::wstring server = L"CLSID\\" + id + L"\\" + entry.serverKey;
    for (const LSTATUS status :
         {Set(root, L"CLSID\\" + id, nullptr, progId), Set(root, server, nullptr, entry.command),
          Set(root, server, L"ThreadingModel", L"Apartment"),
          Set(root, L"CLSID\\" + id + L"\\ProgID", nullptr, progId),
          Set(root, progId, nullptr, progId), Set(root, progId + L"\\CLSID", nullptr, id)}) {
      if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(static_cast<unsigned long>(status));
    }
  }
  return S_OK;
}

}  // namespace

HRESULT Register(const Registration& entry) {
  HRESULT result = E_FAIL;
  for (const HKEY root : kRoots) {
    result = RegisterIn(root, entry);
    if (SUCCEEDED(result)) break;
  }
  return result;
}

// A key that is not there is as good as removed.
HRESULT Unregister(const Registration& entry) {
  for (const HKEY root : kRoots) {
    for (std::size_t place = 0; place < kClassNames.size(); ++place) {
      for (const std::wstring& key : {L"CLSID\\" + GuidText(entry.family.ClassId(place)),
                                      ProgId(entry.progIdPrefix, place)}) {
        RegDeleteTreeW(root, (std::wstring(kClasses) + key).c_str());
      }
    }
  }
  return S_OK;
}

std::wstring ModulePath(HMODULE module) {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

}  // namespace mortane::comserver

#include "comserver/Registration.h"

#include <array>

namespace mortane::comserver {
namespace {

const std::array kRoots{HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER};
constexpr std::wstring_view kClasses = L"Software\\Classes\\";

// Values are written by way of an opened key: the call that does both knows no other list.
LSTATUS Set(HKEY root, REGSAM view, const std::wstring& key, const wchar_t* name,
            const std::wstring& text) {
  HKEY opened = nullptr;
  const LSTATUS status = RegCreateKeyExW(root, (std::wstring(kClasses) + key).c_str(), 0, nullptr,
                                         0, KEY_WRITE | view, nullptr, &opened, nullptr);
  if (status != ERROR_SUCCESS) return status;
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  const LSTATUS written =
      RegSetValueExW(opened, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), bytes);
  RegCloseKey(opened);
  return written;
}

void Remove(HKEY root, REGSAM view, const std::wstring& key) {
  const std::wstring whole = std::wstring(kClasses) + key;
  HKEY opened = nullptr;
  if (RegOpenKeyExW(root, whole.c_str(), 0, KEY_ALL_ACCESS | view, &opened) != ERROR_SUCCESS)
    return;
  RegDeleteTreeW(opened, nullptr);
  RegCloseKey(opened);
  RegDeleteKeyExW(root, whole.c_str(), view, 0);
}

HRESULT RegisterIn(HKEY root, const Registration& entry) {
  for (std::size_t place = 0; place < kClassNames.size(); ++place) {
    const std::wstring id = GuidText(entry.family.ClassId(place));
    const std::wstring progId = ProgId(entry.progIdPrefix, place);
    const std::wstring server = L"CLSID\\" + id + L"\\" + entry.serverKey;
    const auto set = [&](const std::wstring& key, const wchar_t* name, const std::wstring& text) {
      return Set(root, entry.view, key, name, text);
    };
    for (const LSTATUS status :
         {set(L"CLSID\\" + id, nullptr, progId), set(server, nullptr, entry.command),
          set(server, L"ThreadingModel", L"Apartment"),
          set(L"CLSID\\" + id + L"\\ProgID", nullptr, progId), set(progId, nullptr, progId),
          set(progId + L"\\CLSID", nullptr, id)}) {
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
        Remove(root, entry.view, key);
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

#include "controller/InstalledLibrary.h"

#include <windows.h>
#include <winver.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "common/Text.h"
#include "controller/ControllerError.h"
#include "controller/com/ComLibrary.h"
#include "platform/windows/Wide.h"

namespace mortane::controller {
namespace {

constexpr std::string_view kRootClass = "Microscope";

std::string ProgIdOf(const std::vector<ComClass>& classes, std::string_view name) {
  const auto row = std::find_if(classes.begin(), classes.end(),
                                [&](const ComClass& known) { return known.name == name; });
  return row == classes.end() ? std::string(name) : row->progId;
}

// COM's own text for an unknown name does not help the user.
std::string ReasonOf(const ControllerError& error) {
  const auto result = static_cast<HRESULT>(error.Number());
  if (result == CO_E_CLASSSTRING) return " not registered";
  return std::string(kLineBreak) + error.Description();
}

constexpr DWORD kLongestText = 1024;

// The default value of a key of the classes, of those for programs of 64 bits or else of those for
// programs of 32; empty when there is none.
std::string RegisteredText(const std::string& key) {
  for (const DWORD list : {DWORD{RRF_SUBKEY_WOW6464KEY}, DWORD{RRF_SUBKEY_WOW6432KEY}}) {
    std::array<wchar_t, kLongestText> text{};
    DWORD size = sizeof text;
    if (RegGetValueW(HKEY_CLASSES_ROOT, ToWide(key).c_str(), nullptr, RRF_RT_REG_SZ | list, nullptr,
                     text.data(), &size) == ERROR_SUCCESS) {
      return ToUtf8(text.data());
    }
  }
  return {};
}

std::string VersionOfFile(const std::string& path) {
  const std::wstring file = ToWide(path);
  DWORD unused = 0;
  const DWORD size = GetFileVersionInfoSizeW(file.c_str(), &unused);
  if (size == 0) return {};
  std::vector<char> block(size);
  if (GetFileVersionInfoW(file.c_str(), 0, size, block.data()) == FALSE) return {};
  void* found = nullptr;
  UINT length = 0;
  if (VerQueryValueW(block.data(), L"\\", &found, &length) == FALSE) return {};
  const auto* version = static_cast<const VS_FIXEDFILEINFO*>(found);
  return std::to_string(HIWORD(version->dwFileVersionMS)) + "." +
         std::to_string(LOWORD(version->dwFileVersionMS)) + "." +
         std::to_string(HIWORD(version->dwFileVersionLS)) + "." +
         std::to_string(LOWORD(version->dwFileVersionLS));
}

}  // namespace

LibraryIdentity InstalledLibraryIdentity() {
  const std::string name = ProgIdOf(InstalledClasses(), kRootClass);
  const std::string id = name.starts_with('{') ? name : RegisteredText(name + "\\CLSID");
  if (id.empty()) return {name, {}};
  const std::string version = RegisteredText("CLSID\\" + id + "\\Version");
  if (!version.empty()) return {name, version};
  return {name, VersionOfFile(RegisteredText("CLSID\\" + id + "\\InprocServer32"))};
}

std::unique_ptr<ControllerLibrary> OpenInstalledLibrary() {
  const std::vector<ComClass> classes = InstalledClasses();
  auto library = std::make_unique<ComLibrary>(classes, WaysOfEnvironment());
  try {
    library->Create(kRootClass);
  } catch (const ControllerError& error) {
    throw ControllerError(error.Source(), error.Number(),
                          ProgIdOf(classes, kRootClass) + ":" + ReasonOf(error));
  }
  return library;
}

}  // namespace mortane::controller

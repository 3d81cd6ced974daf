#include "platform/windows/SystemPath.h"

#include "platform/windows/Wide.h"

namespace mortane {
namespace {

constexpr std::wstring_view kDevice = LR"(\\.\)";
constexpr std::wstring_view kVerbatim = LR"(\\?\)";
constexpr std::wstring_view kShare = LR"(\\)";
constexpr std::wstring_view kVerbatimShare = LR"(\\?\UNC\)";

// The system's longest path and the NUL at its end.
constexpr DWORD kLongestPath = 32768;

std::wstring AbsolutePath(const std::wstring& path) {
  std::wstring absolute(kLongestPath, L'\0');
  const DWORD length = GetFullPathNameW(path.c_str(), kLongestPath, absolute.data(), nullptr);
  if (length == 0 || length >= kLongestPath) return path;
  absolute.resize(length);
  return absolute;
}

}  // namespace

std::wstring SystemPath(std::string_view utf8Path) {
  if (utf8Path.empty()) return {};
  const std::wstring absolute = AbsolutePath(ToWide(utf8Path));
  if (absolute.starts_with(kVerbatim) || IsDevicePath(absolute)) return absolute;
  if (absolute.starts_with(kShare))
    return std::wstring(kVerbatimShare) + absolute.substr(kShare.size());
  return std::wstring(kVerbatim) + absolute;
}

std::wstring PlainPath(const std::wstring& systemPath) {
  if (systemPath.starts_with(kVerbatimShare))
    return std::wstring(kShare) + systemPath.substr(kVerbatimShare.size());
  return systemPath.starts_with(kVerbatim) ? systemPath.substr(kVerbatim.size()) : systemPath;
}

bool IsDevicePath(std::wstring_view systemPath) {
  return systemPath.starts_with(kDevice);
}

std::wstring FolderOf(const std::wstring& systemPath) {
  return systemPath.substr(0, systemPath.find_last_of(L'\\') + 1);
}

Handle OpenShared(const std::wstring& systemPath, DWORD access) {
  constexpr DWORD kWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return Handle(CreateFileW(systemPath.c_str(), access, kWithAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

std::wstring FinalPath(const Handle& file, const std::wstring& otherwise) {
  std::wstring path(kLongestPath, L'\0');
  const DWORD length =
      GetFinalPathNameByHandleW(file.Get(), path.data(), kLongestPath, FILE_NAME_NORMALIZED);
  if (length == 0 || length >= kLongestPath) return otherwise;
  path.resize(length);
  return path;
}

}  // namespace mortane

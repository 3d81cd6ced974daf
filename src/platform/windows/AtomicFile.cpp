#include "platform/AtomicFile.h"

#include <windows.h>

#include <algorithm>

#include "platform/windows/FileFailure.h"
#include "platform/windows/ReplacementFile.h"
#include "platform/windows/SystemPath.h"

namespace mortane {
namespace {

constexpr std::size_t kLargestStep = std::size_t{1} << 24U;

// Refuses folders, devices and read-only files, which a rename would replace all the same, and
// files that another program has open for itself alone.
SaveTarget CheckedTarget(const std::string& utf8Path) {
  SaveTarget target{utf8Path, SystemPath(utf8Path)};
  if (IsDevicePath(target.path)) RaiseNoRegularFile("write", utf8Path);
  const Handle file = OpenShared(target.path, DELETE | FILE_READ_ATTRIBUTES);
  if (!file.IsOpen()) {
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_NOT_FOUND) return target;
    RaiseFileFailure("write", utf8Path, error);
  }
  if (GetFileType(file.Get()) != FILE_TYPE_DISK) RaiseNoRegularFile("write", utf8Path);
  BY_HANDLE_FILE_INFORMATION status{};
  if (!GetFileInformationByHandle(file.Get(), &status))
    RaiseFileFailure("write", utf8Path, GetLastError());
  target.exists = true;
  target.attributes = status.dwFileAttributes;
  if ((target.attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) RaiseNoRegularFile("write", utf8Path);
  if ((target.attributes & FILE_ATTRIBUTE_READONLY) != 0)
    RaiseFileFailure("write", utf8Path, ERROR_ACCESS_DENIED);
  target.path = FinalPath(file, target.path);
  return target;
}

Handle OpenToRead(const std::string& utf8Path) {
  const std::wstring path = SystemPath(utf8Path);
  if (IsDevicePath(path)) RaiseNoRegularFile("read", utf8Path);
  Handle file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                          OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.IsOpen()) RaiseFileFailure("read", utf8Path, GetLastError());
  if (GetFileType(file.Get()) != FILE_TYPE_DISK) RaiseNoRegularFile("read", utf8Path);
  return file;
}

}  // namespace

std::string ReadWholeFile(const std::string& utf8Path, std::size_t limit) {
  const Handle file = OpenToRead(utf8Path);
  LARGE_INTEGER size{};
  if (!GetFileSizeEx(file.Get(), &size)) RaiseFileFailure("read", utf8Path, GetLastError());
  if (static_cast<unsigned long long>(size.QuadPart) > limit)
    RaiseFileFailure("read", utf8Path, ERROR_FILE_TOO_LARGE);

  std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const auto step = static_cast<DWORD>(std::min(bytes.size() - filled, kLargestStep));
    DWORD count = 0;
    if (!ReadFile(file.Get(), bytes.data() + filled, step, &count, nullptr))
      RaiseFileFailure("read", utf8Path, GetLastError());
    if (count == 0) break;
    filled += count;
  }
  bytes.resize(filled);
  return bytes;
}

void WriteFileAtomically(const std::string& utf8Path, std::string_view bytes) {
  const SaveTarget target = CheckedTarget(utf8Path);
  RemoveLeftTemporaries(FolderOf(target.path));
  ReplacementFile replacement(target);
  replacement.TakeAccessRights();
  replacement.Write(bytes);
  replacement.RenameToTarget();
}

}  // namespace mortane

#include "platform/AtomicFile.h"

#include <windows.h>

#include <algorithm>
#include <limits>

#include "common/Failure.h"
#include "common/TemporaryName.h"
#include "platform/windows/Handle.h"
#include "platform/windows/Wide.h"

namespace mortane {
namespace {

constexpr std::size_t kLargestStep = std::size_t{1} << 24U;

[[noreturn]] void RaiseFileFailure(std::string_view attempt, const std::string& path, DWORD error) {
  const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
  RaiseOwnFailure(missing ? kMissingFileError : kFileError,
                  "Cannot " + std::string(attempt) + " " + path + ": " + SystemMessage(error));
}

// Refuses folders and read-only files, which a rename would replace all the same.
bool TargetExists(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(ToWide(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_NOT_FOUND) return false;
    RaiseFileFailure("write", path, error);
  }
  constexpr DWORD kUntouchable =
      FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DEVICE;
  if ((attributes & kUntouchable) != 0) RaiseFileFailure("write", path, ERROR_ACCESS_DENIED);
  return true;
}

// Resolves links; the path itself when there is no file yet.
std::string FollowLinks(const std::string& path) {
  const Handle file(CreateFileW(ToWide(path).c_str(), 0,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!file.IsOpen()) return path;
  std::wstring name(32768, L'\0');
  const DWORD length = GetFinalPathNameByHandleW(
      file.Get(), name.data(), static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED);
  if (length == 0 || length >= name.size()) return path;
  name.resize(length);
  return ToUtf8(name);
}

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.find_last_of("/\\:") + 1);
}

bool IsDead(std::int64_t process) {
  if (process > std::numeric_limits<DWORD>::max()) return false;
  const Handle handle(OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process)));
  if (!handle.IsOpen()) return GetLastError() == ERROR_INVALID_PARAMETER;
  return WaitForSingleObject(handle.Get(), 0) == WAIT_OBJECT_0;
}

// A process that was killed during a save could not remove its temporary file. A file that a
// process of another machine still writes is open without sharing, so it cannot be deleted.
void RemoveLeftTemporaries(const std::string& folder) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(ToWide(folder + ".mortane-*.tmp").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::string name = ToUtf8(found.cFileName);
    const auto process = ProcessOfTemporary(name);
    if (process && IsDead(*process)) DeleteFileW(ToWide(folder + name).c_str());
  } while (FindNextFileW(search, &found));
  FindClose(search);
}

// A temporary file beside the target, removed unless it was renamed.
class Temporary {
 public:
  Temporary(const std::string& shownPath, const std::string& target)
      : shownPath_(shownPath), target_(ToWide(target)) {
    const std::string folder = FolderOf(target);
    DWORD error = ERROR_FILE_EXISTS;
    for (int number = 0; error == ERROR_FILE_EXISTS && number < kTemporaryNames; ++number) {
      path_ = ToWide(folder + TemporaryName(GetCurrentProcessId(), number));
      file_ = Handle(CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                 FILE_ATTRIBUTE_NORMAL, nullptr));
      if (file_.IsOpen()) return;
      error = GetLastError();
    }
    RaiseFileFailure("write", shownPath_, error);
  }
  ~Temporary() {
    file_.Close();
    if (!path_.empty()) DeleteFileW(path_.c_str());
  }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;

  void Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const auto step = static_cast<DWORD>(std::min(bytes.size(), kLargestStep));
      DWORD written = 0;
      if (!WriteFile(file_.Get(), bytes.data(), step, &written, nullptr)) Raise();
      bytes.remove_prefix(written);
    }
    if (!FlushFileBuffers(file_.Get()) || !file_.Close()) Raise();
  }

  // ReplaceFile keeps the access rights of the old file, but needs one.
  void RenameToTarget(bool targetExists) {
    const BOOL renamed =
        targetExists ? ReplaceFileW(target_.c_str(), path_.c_str(), nullptr, 0, nullptr, nullptr)
                     : MoveFileExW(path_.c_str(), target_.c_str(), MOVEFILE_WRITE_THROUGH);
    if (!renamed) Raise();
    path_.clear();
  }

 private:
  [[noreturn]] void Raise() const { RaiseFileFailure("write", shownPath_, GetLastError()); }

  std::string shownPath_;
  std::wstring target_;
  std::wstring path_;
  Handle file_;
};

}  // namespace

std::string ReadWholeFile(const std::string& utf8Path, std::size_t limit) {
  const Handle file(CreateFileW(ToWide(utf8Path).c_str(), GENERIC_READ,
                                FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.IsOpen()) RaiseFileFailure("read", utf8Path, GetLastError());
  if (GetFileType(file.Get()) != FILE_TYPE_DISK)
    RaiseFileFailure("read", utf8Path, ERROR_INVALID_NAME);
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
  const bool exists = TargetExists(utf8Path);
  const std::string target = exists ? FollowLinks(utf8Path) : utf8Path;
  RemoveLeftTemporaries(FolderOf(target));
  Temporary temporary(utf8Path, target);
  temporary.Write(bytes);
  temporary.RenameToTarget(exists);
}

}  // namespace mortane

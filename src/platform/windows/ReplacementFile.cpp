#include "platform/windows/ReplacementFile.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <vector>

#include "common/TemporaryName.h"
#include "platform/windows/FileFailure.h"
#include "platform/windows/SystemPath.h"
#include "platform/windows/Wide.h"

namespace mortane {
namespace {

constexpr std::size_t kLargestStep = std::size_t{1} << 24U;

constexpr DWORD kKeptAttributes = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_ENCRYPTED |
                                  FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED |
                                  FILE_ATTRIBUTE_SYSTEM;

// Of the rename that Windows 10 brought; the headers of MinGW-w64 keep these names back.
constexpr auto kRenameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
constexpr DWORD kReplaceIfExists = 1;
constexpr DWORD kPosixSemantics = 2;

// Who may do what with a file, as the file system keeps it; empty on one without such rights.
std::vector<std::byte> AccessRightsOf(const Handle& file) {
  DWORD size = 0;
  GetKernelObjectSecurity(file.Get(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> rights(size);
  if (size == 0 ||
      !GetKernelObjectSecurity(file.Get(), DACL_SECURITY_INFORMATION, rights.data(), size, &size)) {
    return {};
  }
  return rights;
}

bool SetAccessRights(const Handle& file, std::vector<std::byte> rights) {
  SECURITY_DESCRIPTOR_CONTROL control = 0;
  DWORD revision = 0;
  if (!GetSecurityDescriptorControl(rights.data(), &control, &revision)) return false;
  // Entries that came from the folder stay known as such.
  constexpr SECURITY_DESCRIPTOR_CONTROL kFromFolder = SE_DACL_AUTO_INHERIT_REQ;
  if ((control & SE_DACL_AUTO_INHERITED) != 0)
    SetSecurityDescriptorControl(rights.data(), kFromFolder, kFromFolder);
  return SetKernelObjectSecurity(file.Get(), DACL_SECURITY_INFORMATION, rights.data()) != 0;
}

bool IsDead(std::int64_t process) {
  if (process > std::numeric_limits<DWORD>::max()) return false;
  const Handle handle(OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process)));
  if (!handle.IsOpen()) return GetLastError() == ERROR_INVALID_PARAMETER;
  return WaitForSingleObject(handle.Get(), 0) == WAIT_OBJECT_0;
}

std::wstring OwnName(const std::wstring& folder, int number) {
  return folder + ToWide(TemporaryName(GetCurrentProcessId(), number));
}

std::wstring UnusedName(const std::wstring& folder) {
  int number = 0;
  while (number < kTemporaryNames - 1 &&
         GetFileAttributesW(OwnName(folder, number).c_str()) != INVALID_FILE_ATTRIBUTES) {
    ++number;
  }
  return OwnName(folder, number);
}

}  // namespace

// Open without sharing, so that no save on another machine takes it for left.
ReplacementFile::ReplacementFile(const SaveTarget& target) : target_(target) {
  const std::wstring folder = FolderOf(target.path);
  const DWORD kept = target.attributes & kKeptAttributes;
  DWORD error = ERROR_FILE_EXISTS;
  for (int number = 0; error == ERROR_FILE_EXISTS && number < kTemporaryNames; ++number) {
    path_ = OwnName(folder, number);
    file_ = Handle(CreateFileW(path_.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                               kept == 0 ? FILE_ATTRIBUTE_NORMAL : kept, nullptr));
    if (file_.IsOpen()) return;
    error = GetLastError();
  }
  RaiseFileFailure("write", target_.shownPath, error);
}

ReplacementFile::~ReplacementFile() {
  file_.Close();
  if (!path_.empty()) DeleteFileW(path_.c_str());
}

void ReplacementFile::Raise() const {
  RaiseFileFailure("write", target_.shownPath, GetLastError());
}

void ReplacementFile::TakeAccessRights() {
  if (!target_.exists) return;
  const std::vector<std::byte> rights = AccessRightsOf(OpenShared(target_.path, READ_CONTROL));
  if (rights.empty()) return;
  const Handle own = OpenShared(path_, READ_CONTROL | WRITE_DAC);
  if (!own.IsOpen() || !SetAccessRights(own, rights)) Raise();
}

void ReplacementFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto step = static_cast<DWORD>(std::min(bytes.size(), kLargestStep));
    DWORD written = 0;
    if (!WriteFile(file_.Get(), bytes.data(), step, &written, nullptr)) Raise();
    bytes.remove_prefix(written);
  }
  if (!FlushFileBuffers(file_.Get())) Raise();
}

void ReplacementFile::RenameToTarget() {
  if (!PutInPlace()) Raise();
  path_.clear();
}

bool ReplacementFile::PutInPlace() {
  if (RenameOver()) return file_.Close();
  if (!file_.Close()) return false;
  return Move() || (target_.exists && Replace());
}

// NTFS knows this rename from Windows 10 on; a network or a memory stick may not.
bool ReplacementFile::RenameOver() {
  std::vector<std::byte> request = RenameRequest(target_.path);
  return SetFileInformationByHandle(file_.Get(), kRenameInfoEx, request.data(),
                                    static_cast<DWORD>(request.size())) != 0;
}

bool ReplacementFile::Move() const {
  constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  return MoveFileExW(path_.c_str(), target_.path.c_str(), kFlags) != 0;
}

// Takes two renames where Move takes one, and can also replace a file that others have open. That
// one gets another name, under which the next save finds it should it be left.
bool ReplacementFile::Replace() const {
  const std::wstring old = UnusedName(FolderOf(path_));
  const BOOL replaced =
      ReplaceFileW(target_.path.c_str(), path_.c_str(), old.c_str(), 0, nullptr, nullptr);
  const DWORD error = GetLastError();
  const bool halfWay = !replaced && error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
  if (replaced || (halfWay && Move())) {
    DeleteFileW(old.c_str());
    return true;
  }
  if (halfWay) MoveFileExW(old.c_str(), target_.path.c_str(), 0);
  SetLastError(error);
  return false;
}

std::vector<std::byte> RenameRequest(const std::wstring& path) {
  const std::size_t bytes = path.size() * sizeof(wchar_t);
  std::vector<std::byte> request(sizeof(FILE_RENAME_INFO) + bytes);
  auto* const info = reinterpret_cast<FILE_RENAME_INFO*>(request.data());
  // In place of the older form's first member.
  const DWORD flags = kReplaceIfExists | kPosixSemantics;
  std::memcpy(request.data(), &flags, sizeof flags);
  info->FileNameLength = static_cast<DWORD>(bytes);
  std::memcpy(info->FileName, path.data(), bytes);
  return request;
}

// A file that a process of another machine still writes is open without sharing, so it cannot be
// deleted.
void RemoveLeftTemporaries(const std::wstring& folder) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW((folder + L".mortane-*.tmp").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const auto process = ProcessOfTemporary(ToUtf8(found.cFileName));
    if (process && IsDead(*process)) DeleteFileW((folder + found.cFileName).c_str());
  } while (FindNextFileW(search, &found));
  FindClose(search);
}

}  // namespace mortane

#include "platform/Folder.h"

#include <windows.h>

#include <utility>

#include "platform/windows/FileFailure.h"
#include "platform/windows/SystemPath.h"
#include "platform/windows/Wide.h"

namespace mortane {
namespace {

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::wstring WithoutSeparatorAtEnd(std::wstring path) {
  while (path.ends_with(L'\\')) path.pop_back();
  return path;
}

// A drive's or share's own folder is there or cannot be made.
bool Make(const std::wstring& folder) {
  if (IsFolder(folder)) return true;
  const std::wstring name = WithoutSeparatorAtEnd(folder);
  const std::wstring above = FolderOf(name);
  if (above.empty() || !Make(above)) return false;
  // Another copy of the program may be quicker.
  return CreateDirectoryW(name.c_str(), nullptr) != 0 || IsFolder(name);
}

}  // namespace

// The user's folders give what is made in them their own access rights.
bool MakeFolder(const std::string& utf8Path) {
  const std::wstring folder = SystemPath(utf8Path);
  return !folder.empty() && !IsDevicePath(folder) && Make(folder);
}

std::vector<std::string> NamesInFolder(const std::string& utf8Path) {
  std::vector<std::string> names;
  const std::wstring folder = SystemPath(utf8Path);
  if (folder.empty() || IsDevicePath(folder)) return names;
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW((WithoutSeparatorAtEnd(folder) + L"\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    std::string name = ToUtf8(found.cFileName);
    if (name != "." && name != "..") names.push_back(std::move(name));
  } while (FindNextFileW(search, &found) != 0);
  FindClose(search);
  return names;
}

void RemoveFile(const std::string& utf8Path) {
  const std::wstring path = SystemPath(utf8Path);
  if (path.empty() || IsDevicePath(path)) RaiseNoRegularFile("remove", utf8Path);
  if (DeleteFileW(path.c_str()) == 0) RaiseFileFailure("remove", utf8Path, GetLastError());
}

}  // namespace mortane

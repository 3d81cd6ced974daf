#include "platform/Folder.h"

#include <windows.h>

#include "platform/windows/SystemPath.h"

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

}  // namespace mortane
